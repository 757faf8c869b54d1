#include "frminfo.h"

#include "core/desktop.h"
#include "ui/common/handcursor.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QSvgRenderer>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcAbout, "quovara.ui.about")

// The About pictures live in the ui library's own resource file; a static library's
// resources are pulled in by name, from outside any namespace.
static void initAboutResources() {
    Q_INIT_RESOURCE(about);
}

namespace quovara {

namespace {

// A link label: reachable with Tab, shows a focus frame, and opens its target with a click,
// Enter or Space (handled by the window's event filter).
class LinkLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = contentsRect();
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
};

QLabel* label(const char* name, const QString& text, QWidget* parent) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(QLatin1String(name));
    return l;
}

QLabel* picture(const char* name, const char* resource, int size, const QString& accessible,
                QWidget* parent) {
    auto* l = new QLabel(parent);
    l->setObjectName(QLatin1String(name));
    l->setAccessibleName(accessible);
    QSvgRenderer renderer(QString::fromLatin1(resource));
    if (!renderer.isValid()) {
        qCDebug(lcAbout) << "picture not found:" << resource;
        return l;
    }
    const qreal ratio = parent->devicePixelRatioF();
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    l->setPixmap(pixmap);
    l->setFixedSize(size, size);
    return l;
}

} // namespace

frmInfo::frmInfo(QWidget* parent) : QDialog(parent) {
    initAboutResources();
    setObjectName(QStringLiteral("frmInfo"));
    setWindowTitle(tr(info::Caption));
    setMouseTracking(true);

    // The program: its picture, author line, licence note and the two contact links.
    Frame2 = new QGroupBox(tr(info::ProgramFrame), this);
    Frame2->setObjectName(QStringLiteral("Frame2"));
    Frame2->setMouseTracking(true);
    Image1 = picture("Image1", ":/about/quovara.svg", 64, tr("Quovara"), Frame2);
    Label3 = label("Label3", tr(info::AuthorLine), Frame2);
    Label4 = label("Label4", tr(info::FreeNote), Frame2);
    Label5 = label("Label5", tr(info::WebSiteLabel), Frame2);
    Label6 = label("Label6", tr(info::EmailLabel), Frame2);

    // The engine: its picture and notes.
    Frame1 = new QGroupBox(tr(info::EngineFrame), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    Picture1 = picture("Picture1", ":/about/engine.svg", 48, tr("UHARC engine"), Frame1);
    Label2 = label("Label2", tr(info::EngineNote), Frame1);
    Label1 = label("Label1", tr(info::EngineNotice), Frame1);
    Label1->setWordWrap(true);

    const char* captions[3] = {info::HomePage, info::Contact, info::EnginePage};
    // %1 is the link's caption.
    const QString roles[3] = {tr("Web site %1"), tr("E-mail %1"), tr("Engine page %1")};
    QWidget* owners[3] = {Frame2, Frame2, this};
    for (int i = 0; i < 3; ++i) {
        auto* link = new LinkLabel(QString::fromLatin1(captions[i]), owners[i]);
        link->setObjectName(QStringLiteral("Contattare(%1)").arg(i));
        link->setMouseTracking(true);
        SetHandCursor(link, true);
        link->setFocusPolicy(Qt::StrongFocus);
        link->setAutoFillBackground(false);
        link->setAccessibleName(roles[i].arg(link->text()));
        link->installEventFilter(this);
        links_[i] = link;
        setHot(i, false);
    }
    links_[0]->setAccessibleDescription(tr("Opens the web site in the browser"));
    links_[1]->setAccessibleDescription(tr("Writes an e-mail in the mail program"));
    links_[2]->setAccessibleDescription(tr("Opens the web page in the browser"));

    Label7 = label("Label7", tr(info::Motto), this);
    QFont bold = Label7->font();
    bold.setBold(true);
    Label7->setFont(bold);
    Label8 = label("Label8", tr(info::Dedication), this);

    Command1 = new QPushButton(tr("OK"), this);
    Command1->setObjectName(QStringLiteral("Command1"));
    Command1->setDefault(true);

    auto* programText = new QGridLayout;
    programText->addWidget(Label3, 0, 0, 1, 2);
    programText->addWidget(Label4, 1, 0, 1, 2);
    programText->addWidget(Label5, 2, 0);
    programText->addWidget(links_[0], 2, 1);
    programText->addWidget(Label6, 3, 0);
    programText->addWidget(links_[1], 3, 1);
    programText->setColumnStretch(1, 1);
    programText->setVerticalSpacing(4);
    auto* frame2Layout = new QHBoxLayout(Frame2);
    frame2Layout->addWidget(Image1, 0, Qt::AlignTop);
    frame2Layout->addSpacing(10);
    frame2Layout->addLayout(programText, 1);

    auto* engineText = new QVBoxLayout;
    engineText->addWidget(Label2);
    engineText->addWidget(Label1);
    auto* frame1Layout = new QHBoxLayout(Frame1);
    frame1Layout->addWidget(Picture1, 0, Qt::AlignTop);
    frame1Layout->addSpacing(10);
    frame1Layout->addLayout(engineText, 1);

    auto* below = new QGridLayout;
    below->addWidget(links_[2], 0, 0, Qt::AlignLeft);
    below->addWidget(Label7, 1, 0);
    below->addWidget(Label8, 2, 0);
    below->addWidget(Command1, 2, 1, Qt::AlignRight | Qt::AlignBottom);
    below->setColumnStretch(0, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addWidget(Frame2);
    layout->addWidget(Frame1);
    layout->addLayout(below);

    setTabOrder(links_[0], links_[1]);
    setTabOrder(links_[1], links_[2]);
    setTabOrder(links_[2], Command1);

    Frame2->installEventFilter(this);
    installEventFilter(this);
    connect(Command1, &QPushButton::clicked, this, &frmInfo::Command1_Click);
    setFixedSize(sizeHint().expandedTo(QSize(480, 0)));
    Command1->setFocus();
}

frmInfo::~frmInfo() = default;

QString frmInfo::linkTarget(int index) const {
    const QString scheme = index == 1 ? QStringLiteral("mailto:") : QStringLiteral("http://");
    return scheme + links_[index]->text();
}

void frmInfo::setHot(int index, bool hot) {
    QLabel* link = links_[index];
    QPalette palette = link->palette();
    palette.setColor(QPalette::WindowText, hot ? HotLinkColour : LinkColour);
    link->setPalette(palette);
    QFont font = link->font();
    font.setUnderline(hot);
    link->setFont(font);
}

void frmInfo::Contattare_MouseMove(int index) {
    setHot(index, true);
}

void frmInfo::Contattare_Click(int index) {
    ShellOpen(linkTarget(index));
}

// The program's frame restores the two links that lie in it.
void frmInfo::Frame2_MouseMove() {
    setHot(0, false);
    setHot(1, false);
}

// The window's free area restores the link that lies in it.
void frmInfo::Form_MouseMove() {
    setHot(2, false);
}

void frmInfo::Command1_Click() {
    accept();
}

int frmInfo::linkIndex(QObject* watched) const {
    for (int i = 0; i < 3; ++i)
        if (watched == links_[i])
            return i;
    return -1;
}

// Pointer moves reach only the links, the program's frame and the window itself (the other
// controls do not follow the pointer), so each area restores only its own links.
bool frmInfo::eventFilter(QObject* watched, QEvent* event) {
    const int link = linkIndex(watched);
    switch (event->type()) {
    case QEvent::MouseMove:
        if (link >= 0)
            Contattare_MouseMove(link);
        else if (watched == Frame2)
            Frame2_MouseMove();
        else if (watched == this)
            Form_MouseMove();
        else
            break;
        return true;
    case QEvent::MouseButtonRelease:
        if (link >= 0) {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() == Qt::LeftButton &&
                links_[link]->rect().contains(mouse->position().toPoint()))
                Contattare_Click(link);
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (link >= 0) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
                Contattare_Click(link);
                return true;
            }
        }
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quovara
