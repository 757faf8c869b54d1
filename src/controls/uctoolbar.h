// ucToolbar: a button bar painted by the control itself.
//
// The host creates the control, calls Initialize once, fills the image list with AddIcon or
// AddBitmap, adds buttons with AddButton and reacts to the six signals. Before Initialize
// every method is a no-op that answers 0, false or an empty string.
//
// Buttons are addressed by id: the n-th AddButton call (separators included) creates id n.
// The zero-based position of a button is its id minus 1.
//
// Interface (getters carry the member's name, setters the same name prefixed with "Set"):
//   bool Initialize(int ImageSize, bool FlatStyle, bool ListStyle, bool Divider)
//       FlatStyle: buttons show a frame only while hot, pressed or checked;
//       ListStyle: caption to the right of the image instead of below it;
//       Divider: a two-pixel etched line along the top edge.
//       The control's font becomes the host's font.
//   int  AddBitmap(QPixmap hBitmap, QColor MaskColor = invalid) -> image index or -1
//       a valid MaskColor is made transparent
//   int  AddIcon(QIcon hIcon) -> image index or -1
//   void AddButton(Caption, Image, TipText, Style, Autosize, ItemData)
//       Style: 0 button, 1 separator, 2 check, 4 group (with 2: one checked in the group),
//       8 drop-down (with an arrow part that raises ButtonDropDown).
//       Tip texts are kept cut to 80 characters; an empty tip text shows no tooltip.
//   int  ToolbarHeight()   bottom edge of the button at zero-based position 1, plus 2 when
//                          the divider is shown (position 1, not 0, is measured on purpose)
//   int  ButtonCount()
//   ButtonCaption / ButtonImage / ButtonTipText / ButtonEnabled / ButtonChecked /
//   ButtonPressed / ButtonVisible (id) and their Set... counterparts
//   QFont Font() / SetFont(QFont New_Font)
//   QRect ButtonRect(id): the button's rectangle in the control's coordinates
//
// Signals (the control's events):
//   ButtonClick(id)            a button was clicked (or activated with Enter / Space)
//   ButtonLeave(id)            the hot button changed away from a button
//   ButtonEnter(id)            the hot button changed to an enabled button
//   ButtonDropDown(id, x, y)   the arrow of a drop-down button was pressed (or Down / Alt+Down
//                              on it); x, y: the button's bottom-left corner in the
//                              coordinates of the host window (window())
//   ToolbarLeave()             the hot button changed to none
//   ToolbarEnter()             the hot button changed from none to an enabled button
//
// Keyboard: the control takes focus with Tab; Left / Right / Home / End move the hot button
// over the enabled buttons, Enter / Space click the hot button. Accessibility: the control is
// a tool bar whose children are its buttons (name = caption, description = tip text).
#pragma once

#include <QFont>
#include <QIcon>
#include <QList>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

class QToolButton;

namespace quovara {

class ucToolbar : public QWidget {
    Q_OBJECT
public:
    // Button styles understood by AddButton.
    enum ButtonStyle {
        tbrButton = 0,
        tbrSeparator = 1,
        tbrCheck = 2,
        tbrGroup = 4,
        tbrDropDown = 8
    };
    // Button state bits.
    enum ButtonState { tbrChecked = 1, tbrPressed = 2, tbrEnabled = 4, tbrHidden = 8 };

    explicit ucToolbar(QWidget* parent = nullptr);
    ~ucToolbar() override;

    bool Initialize(int ImageSize, bool FlatStyle, bool ListStyle, bool Divider);
    int AddBitmap(const QPixmap& hBitmap, const QColor& MaskColor = QColor());
    int AddIcon(const QIcon& hIcon);
    void AddButton(const QString& Caption = QString(), int Image = -1,
                   const QString& TipText = QString(), int Style = tbrButton, bool Autosize = false,
                   qint32 ItemData = 0);

    int ToolbarHeight() const;
    int ButtonCount() const;

    QString ButtonCaption(int Button) const;
    void SetButtonCaption(int Button, const QString& Caption);
    int ButtonImage(int Button) const;
    void SetButtonImage(int Button, int Image);
    QString ButtonTipText(int Button) const;
    void SetButtonTipText(int Button, const QString& TipText);
    bool ButtonEnabled(int Button) const;
    void SetButtonEnabled(int Button, bool bState);
    bool ButtonChecked(int Button) const;
    void SetButtonChecked(int Button, bool bState);
    bool ButtonPressed(int Button) const;
    void SetButtonPressed(int Button, bool bState);
    bool ButtonVisible(int Button) const;
    void SetButtonVisible(int Button, bool bState);

    QFont Font() const;
    void SetFont(const QFont& New_Font);

    // Helpers for hosts, accessibility and tests.
    bool IsInitialized() const { return m_initialised; }
    QRect ButtonRect(int Button) const;
    int ButtonStyleOf(int Button) const;
    qint32 ButtonItemData(int Button) const;
    int HotButton() const { return m_hot; }
    int ImageCount() const { return int(m_images.size()); }
    // Activates a button as a click would (used by keyboard and accessibility).
    void ActivateButton(int Button);
    // Raises the drop-down of a drop-down button as its arrow would.
    void DropDownButton(int Button);
    // The buttons that do not fit in the toolbar's width; they are offered by its overflow
    // arrow (object name "Overflow"), shown only while there are any.
    QList<int> OverflowButtons() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void ButtonClick(int Button);
    void ButtonLeave(int Button);
    void ButtonEnter(int Button);
    void ButtonDropDown(int Button, int x, int y);
    void ToolbarLeave();
    void ToolbarEnter();

protected:
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    void placeOverflow();
    void showOverflowMenu();
    ::QToolButton* m_overflow = nullptr;

    struct Button {
        QString caption;
        int image = -1;
        int id = 0;
        int state = tbrEnabled;
        int style = tbrButton;
        bool autosize = false;
        qint32 itemData = 0;
        QRect rect; // in client coordinates (below the divider)
    };

    Button* find(int id);
    const Button* find(int id) const;
    bool hasState(int id, int mask) const;
    void setState(int id, int mask, bool on);
    void relayout();
    int clientTop() const { return m_divider ? 2 : 0; }
    QRect widgetRect(const Button& b) const;
    QRect arrowRect(const Button& b) const;
    int buttonAt(const QPoint& pos) const;
    // The buttons are wider than the toolbar: the overflow arrow is shown.
    bool overflowing() const;
    // A button that does not fit and is offered by the overflow arrow instead.
    bool behindArrow(const Button& b) const;
    void setHot(int id, bool fromKeyboard = false);
    void moveHot(int step, bool toEnd = false);
    void paintButton(class QPainter& p, const Button& b) const;
    void notifyAccessibleFocus(int id);

    bool m_initialised = false;
    int m_imageSize = 16;
    bool m_flat = false;
    bool m_list = false;
    bool m_divider = false;
    QList<QIcon> m_images;
    QList<Button> m_buttons;
    QStringList m_tipTexts; // index = button id; entry 0 unused
    QFont m_font;
    int m_hot = 0;
    int m_pressedId = 0;
    QSize m_contentSize;
    int m_preferredWidth = 0; // every button as wide as the widest
};

} // namespace quovara
