// TaskPaneBar: a vertical task pane of collapsible groups.
//
// The pane shows, top to bottom: the special group (if shown; items, a header of its own
// colours), the ordinary groups in the order they were added (items, or one hosted child
// widget), and the details group (if shown; a title, a free text and an image). The host
// builds the structure by code.
//
// Group references (the `Group` arguments, a QVariant): a number is the group's index (1 is
// the first ordinary group, -1 the special group, -2 the details group); a string is
// resolved as a key: the ordinary groups' keys in index order (case-sensitive, first match
// wins), else "Special Group" gives -1, "Details" gives -2, anything else -3. The details
// group's own key is "Details Group", but only "Details" finds it.
//
// Methods (each repaints unless updates are disabled):
//   AddGroup(sKey, sCaption)                   appends an expanded ordinary group
//   AddItem(Group, sKey, sCaption, iIcon)      appends an item (-1: special group); unknown
//                                              groups add nothing (debug log)
//   SetImageList(icons)                        item icons; iIcon counts from 1 in this list
//   AddSpecialGroup(sCaption, imgIcon, imgBackground) / HideSpecialGroup()
//   AddDetailsGroup(Caption, sTittle, sDetails) / SetDetailsText(sDetails) / HideDetailsGroup()
//   SetDetailsImage(detailsImage)
//   OpenLink(sLink)                            hands a file, folder or address to the desktop
//   About()                                    a box naming the control
//   ClearStructure()                           removes everything, gives hosted children
//                                              back to their former parent (hidden)
//   ClearGroup(Group)                          empties a group's items
//   SetGroupChild(Group, pChild)               hosts a widget in an ordinary group's body
//   ExpandGroup(Group [, bExpand])             sets, or without the flag toggles, expansion
//   SetItemIcon(Group, item, iNewIcon) / SetItemText(Group, item, sNewCaption)
//                                              item = index (from 1) or key; an unknown key
//                                              shows the "glakre" error box
//   DisableUpdates(bDisable)                   suspends all drawing while true
//   GetControlVersion()                        "1.70"
//
// Signals (the control's events):
//   MouseOver() / MouseOut()                   the cursor entered / left the pane
//   GroupHover(key) / GroupOut(key)            the cursor entered / left a group header
//   ItemHover(groupKey, itemKey) / ItemOut(groupKey, itemKey)
//   ItemClick(sGroup, sItemKey)                left click on an item of an expanded group
//   GroupClick(Index, bool& bExpanded)         left click on a header, after the toggle;
//                                              bExpanded is the group's own flag: assigning
//                                              it (direct connection) vetoes or forces it
// The special group's key is "Special Group", the details group's "Details Group".
//
// Styles: "Classic" (system colours) when the desktop has no themed drawing; otherwise the
// colour scheme's name picks "Metallic" (silver), "HomeStead" (olive) or, for any other name,
// the default blue look. The style follows DesktopTheme at run time.
//
// Keyboard: Tab focuses the pane; Up / Down (and Left / Right) move the hot header or item,
// Enter / Space activate it as a click does. Accessibility: headers are expandable buttons,
// items are links, the details text is static text.
#pragma once

#include <QIcon>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <optional>

class QScrollBar;
class QTimer;

namespace quovara {

struct TaskPanePalette;

class TaskPaneBar : public QWidget {
    Q_OBJECT
public:
    static constexpr int SpecialGroupIndex = -1;
    static constexpr int DetailsGroupIndex = -2;
    static constexpr int UnknownGroupIndex = -3;

    explicit TaskPaneBar(QWidget* parent = nullptr);
    ~TaskPaneBar() override;

    void AddGroup(const QString& sKey, const QString& sCaption);
    void AddItem(const QVariant& Group, const QString& sKey, const QString& sCaption,
                 int iIcon = 0);
    void SetImageList(const QList<QIcon>& ImageListObj);
    void AddSpecialGroup(const QString& sCaption, const QPixmap& imgIcon = QPixmap(),
                         const QPixmap& imgBackground = QPixmap());
    void HideSpecialGroup();
    void AddDetailsGroup(const QString& Caption, const QString& sTittle, const QString& sDetails);
    void SetDetailsText(const QString& sDetails);
    void HideDetailsGroup();
    bool OpenLink(const QString& sLink);
    void About();
    void ClearStructure();
    void ClearGroup(const QVariant& Group);
    void SetGroupChild(const QVariant& Group, QWidget* pChild);
    void ExpandGroup(const QVariant& Group, std::optional<bool> bExpand = std::nullopt);
    void SetItemIcon(const QVariant& Group, const QVariant& item, int iNewIcon);
    void SetItemText(const QVariant& Group, const QVariant& item, const QString& sNewCaption);
    void DisableUpdates(bool bDisable);
    void SetDetailsImage(const QPixmap& detailsImage);
    QString GetControlVersion() const;
    // The narrowest width at which every group's caption and a child `childWidth` wide show
    // whole, also beside the pane's scroll bar: hosts widen the pane to it for long
    // (translated) texts.
    int WidthToShowWhole(int childWidth) const;

    // Read access for hosts, accessibility and tests.
    int ResolveGroup(const QVariant& Group) const;
    int GroupCount() const { return int(m_groups.size()) - 1; }
    QString GroupKey(int Index) const;
    QString GroupCaption(int Index) const;
    bool GroupExpanded(const QVariant& Group) const;
    bool GroupVisible(int Index) const;
    int GroupHeaderState(const QVariant& Group) const;
    QRect GroupHeaderRect(const QVariant& Group) const;
    int ItemCount(const QVariant& Group) const;
    QString ItemKey(const QVariant& Group, int Index) const;
    QString ItemCaption(const QVariant& Group, int Index) const;
    int ItemIcon(const QVariant& Group, int Index) const;
    QRect ItemRect(const QVariant& Group, int Index) const;
    QString DetailsTitle() const;
    QString DetailsText() const;
    QWidget* GroupChildContainer(const QVariant& Group) const;
    bool UpdatesEnabled() const { return m_updatesEnabled; }
    bool MouseInside() const { return m_mouseInside; }
    // Hot header (group index, 0 = none) and hot item (group index and item index).
    int HotHeader() const { return m_hotHeader; }
    int HotItemGroup() const { return m_hotItemGroup; }
    int HotItemIndex() const { return m_hotItem; }
    QString StyleName() const { return m_styleName; }
    QString ThemeFilePath() const { return m_themeFile; }
    QString ShellStylePath() const { return m_shellStylePath; }
    QScrollBar* ScrollBar() const { return m_ScrollBar; }
    // Draws this pane in a fixed colour scheme ("Classic", "Metallic", "HomeStead",
    // "NormalColor", ...) instead of the desktop's; an empty name follows the desktop again.
    // Meant for previews that show several styles side by side.
    void SetStyleOverride(const QString& schemeName);
    // Number of full paints so far (a paint while updates are disabled does not count).
    int PaintCount() const { return m_paintCount; }

    // The painted parts in paint order: headers, items of expanded groups, details text.
    struct Element {
        enum Kind { Header = 1, Item = 2, DetailsText = 3 };
        Kind kind = Header;
        int group = 0;
        int item = 0;
        bool operator==(const Element&) const = default;
    };
    QList<Element> Elements() const;
    QRect ElementRect(const Element& e) const;
    QString ElementText(const Element& e) const;
    // Acts on a header or item as a left click on it does.
    void ActivateElement(const Element& e);

    QSize sizeHint() const override { return QSize(210, 400); }

signals:
    void MouseOver();
    void MouseOut();
    void GroupHover(const QString& Key);
    void GroupOut(const QString& Key);
    void ItemClick(const QString& sGroup, const QString& sItemKey);
    void GroupClick(int Index, bool& bExpanded);
    void ItemHover(const QString& sGroup, const QString& sItemKey);
    void ItemOut(const QString& sGroup, const QString& sItemKey);

protected:
    // Places the scroll bar and sets its range (0 to `maximum`) and page step; false when the
    // bar does not hold them afterwards. A subclass may stand in for the bar (tests do).
    virtual bool SetScrollBarProperties(const QRect& geometry, int maximum, int pageStep);

    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void changeEvent(QEvent* e) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Item {
        QString groupKey;
        QString key;
        int index = 0;
        QString caption;
        int icon = 0;
        QRect rect;
    };
    struct Group {
        QString key;
        QString caption;
        QList<Item> items; // items[0] is item 1
        bool expanded = true;
        bool visible = true;
        QRect headerRect;
        QRect bodyRect;
        int headerState = 0;
        QWidget* container = nullptr;
        QPointer<QWidget> child;
        QPointer<QWidget> childFormerParent;
        QPixmap icon;       // special group
        QPixmap background; // special group
        QString title;      // details group
        QString text;       // details group
        QPixmap image;      // details group
        QRect detailsTextRect;
    };

    Group* group(int index);
    const Group* group(int index) const;
    QString groupText(const QVariant& Group) const;
    int findItem(const Group& g, const QVariant& item) const;
    void itemNotFound();
    // The item that SetItemIcon / SetItemText change, or null (reported as they require).
    Item* itemToChange(const QVariant& Group, const QVariant& item, const char* what);
    void repaintPane();
    void relayout();
    int layoutGroup(Group& g, int index, int top, int left, int width);
    void detectTheme();
    void applyContainerColours(QWidget* container);
    void headerAt(const QPoint& pos, int& header) const;
    void itemAt(const QPoint& pos, int& group, int& item) const;
    void handleMove(const QPoint& pos, bool synthetic);
    void setHot(int header, int itemGroup, int item);
    void pollCursor();
    void moveKeyboardHot(int step);
    void ensureVisible(const QRect& r);
    void SetHandCur(bool Hand);
    QString hotTraceGroup(int index, bool enter) const;
    void reportIcon(const Item& it);
    QIcon iconFor(const Item& it);

    void paintPane(class QPainter& p, const TaskPanePalette& pal);
    void paintHeader(QPainter& p, const TaskPanePalette& pal, const Group& g, int index);
    void paintBody(QPainter& p, const TaskPanePalette& pal, const Group& g, int index);
    void paintChevron(QPainter& p, const TaskPanePalette& pal, const QRect& header, bool expanded,
                      bool hot, bool special);

    QList<Group> m_groups; // m_groups[0] is never used
    Group m_special;
    Group m_details;
    QList<QIcon> m_images;
    QSet<quint64> m_reportedIcons;
    bool m_updatesEnabled = true;
    bool m_mouseInside = false;
    bool m_inLayout = false;
    int m_hotHeader = 0;
    int m_hotItemGroup = 0;
    int m_hotItem = 0;
    int m_contentHeight = 0;
    int m_paintCount = 0;
    QString m_styleName;
    QString m_styleOverride;
    QString m_themeFile;
    QString m_shellStylePath;
    QScrollBar* m_ScrollBar = nullptr;
    QWidget* m_tempImg = nullptr;
    QTimer* m_timUpdate = nullptr;
    QPixmap m_frame; // the last full paint, shown while updates are disabled
};

} // namespace quovara
