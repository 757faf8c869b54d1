// TaskPaneBar: structure and programming interface.
#include "controls/taskpanebar.h"

#include "controls/accessiblefactory.h"
#include "controls/controlslog.h"
#include "controls/desktoptheme.h"
#include "controls/messagehook.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

namespace quovara {

namespace {
const QString kSpecialKey = QStringLiteral("Special Group");
const QString kDetailsKey = QStringLiteral("Details Group");

bool isText(const QVariant& v) {
    const int id = v.metaType().id();
    return id == QMetaType::QString || id == QMetaType::QByteArray || id == QMetaType::QChar ||
           id == QMetaType::Char;
}
} // namespace

TaskPaneBar::TaskPaneBar(QWidget* parent) : QWidget(parent) {
    InstallControlsAccessibleFactory();
    QFont f(QStringLiteral("Tahoma"));
    f.setPointSizeF(8.25);
    setFont(f);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_groups.append(Group{}); // index 0 is never used

    m_special.key = kSpecialKey;
    m_special.visible = false;
    m_details.key = kDetailsKey;
    m_details.visible = false;

    m_ScrollBar = new QScrollBar(Qt::Vertical, this);
    m_ScrollBar->setObjectName(QStringLiteral("m_ScrollBar"));
    m_ScrollBar->setSingleStep(16);
    m_ScrollBar->hide();
    connect(m_ScrollBar, &QScrollBar::valueChanged, this, [this] {
        if (!m_inLayout)
            repaintPane();
    });
    m_tempImg = new QWidget(this);
    m_tempImg->setObjectName(QStringLiteral("m_tempImg"));
    m_tempImg->hide();

    m_timUpdate = new QTimer(this);
    m_timUpdate->setObjectName(QStringLiteral("timUpdate"));
    m_timUpdate->setInterval(10);
    connect(m_timUpdate, &QTimer::timeout, this, &TaskPaneBar::pollCursor);

    // A change of the desktop's style: let pending events run, then repaint (which detects
    // the new style).
    connect(DesktopTheme::instance(), &DesktopTheme::ThemeChanged, this,
            [this] { QTimer::singleShot(0, this, &TaskPaneBar::repaintPane); });
    detectTheme();
}

TaskPaneBar::~TaskPaneBar() {
    m_timUpdate->stop();
    ReleaseAccessibleInterface(this);
}

TaskPaneBar::Group* TaskPaneBar::group(int index) {
    if (index == SpecialGroupIndex)
        return &m_special;
    if (index == DetailsGroupIndex)
        return &m_details;
    if (index >= 1 && index < m_groups.size())
        return &m_groups[index];
    return nullptr;
}

const TaskPaneBar::Group* TaskPaneBar::group(int index) const {
    return const_cast<TaskPaneBar*>(this)->group(index);
}

int TaskPaneBar::ResolveGroup(const QVariant& Group) const {
    if (!isText(Group))
        return Group.toInt();
    const QString key = Group.toString();
    for (int i = 1; i < m_groups.size(); ++i)
        if (m_groups.at(i).key == key)
            return i;
    if (key == kSpecialKey)
        return SpecialGroupIndex;
    if (key == QLatin1String("Details"))
        return DetailsGroupIndex;
    return UnknownGroupIndex;
}

QString TaskPaneBar::groupText(const QVariant& Group) const {
    return Group.toString();
}

void TaskPaneBar::repaintPane() {
    if (!m_updatesEnabled)
        return;
    relayout();
    update();
}

void TaskPaneBar::AddGroup(const QString& sKey, const QString& sCaption) {
    Group g;
    g.key = sKey;
    g.caption = sCaption;
    m_groups.append(g);
    repaintPane();
}

void TaskPaneBar::AddItem(const QVariant& Group, const QString& sKey, const QString& sCaption,
                          int iIcon) {
    const int index = ResolveGroup(Group);
    if (index == 0 || index > GroupCount()) {
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("The group '") + groupText(Group) + QStringLiteral("' desn't exist");
        return;
    }
    if (index != SpecialGroupIndex && index < 1) {
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("Can't assign items to te Especified group");
        return;
    }
    auto* g = group(index);
    Item it;
    it.groupKey = g->key;
    it.key = sKey;
    it.index = int(g->items.size()) + 1;
    it.caption = sCaption;
    it.icon = iIcon;
    g->items.append(it);
    repaintPane();
}

void TaskPaneBar::SetImageList(const QList<QIcon>& ImageListObj) {
    m_images = ImageListObj;
    m_reportedIcons.clear();
    repaintPane();
}

void TaskPaneBar::AddSpecialGroup(const QString& sCaption, const QPixmap& imgIcon,
                                  const QPixmap& imgBackground) {
    m_special.caption = sCaption;
    m_special.icon = imgIcon;
    m_special.background = imgBackground;
    m_special.visible = true;
    m_special.expanded = true;
    repaintPane();
}

void TaskPaneBar::HideSpecialGroup() {
    m_special.visible = false;
    repaintPane();
}

void TaskPaneBar::AddDetailsGroup(const QString& Caption, const QString& sTittle,
                                  const QString& sDetails) {
    m_details.caption = Caption;
    m_details.title = sTittle;
    m_details.text = sDetails;
    m_details.visible = true;
    m_details.expanded = true;
    repaintPane();
}

void TaskPaneBar::SetDetailsText(const QString& sDetails) {
    m_details.text = sDetails;
    repaintPane();
}

void TaskPaneBar::HideDetailsGroup() {
    m_details.visible = false;
    repaintPane();
}

bool TaskPaneBar::OpenLink(const QString& sLink) {
    const QUrl url = QUrl::fromUserInput(sLink, QString(), QUrl::AssumeLocalFile);
    const bool ok = url.isValid() && QDesktopServices::openUrl(url);
    if (!ok)
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("Couldn't open '") + sLink + QStringLiteral("'");
    return ok;
}

void TaskPaneBar::About() {
    ShowControlMessage(this, ControlMessageIcon::Information, tr("TaskPaneBar"),
                       tr("TaskPaneBar Control.\n"
                          "A pane of collapsible task groups with links, details "
                          "and hosted controls, drawn in the desktop's colours."));
}

void TaskPaneBar::ClearStructure() {
    m_special.visible = false;
    m_details.visible = false;
    m_special.items.clear();
    for (int i = 1; i < m_groups.size(); ++i) {
        Group& g = m_groups[i];
        if (g.child) {
            g.child->hide();
            g.child->setParent(g.childFormerParent.data());
        }
        if (g.container)
            g.container->deleteLater();
        g.container = nullptr;
    }
    m_groups.resize(1);
    m_hotHeader = m_hotItemGroup = m_hotItem = 0;
    m_updatesEnabled = true;
    repaintPane();
}

void TaskPaneBar::ClearGroup(const QVariant& Group) {
    const int index = ResolveGroup(Group);
    if (index != SpecialGroupIndex && (index < 1 || index > GroupCount())) {
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("The group '") + groupText(Group) + QStringLiteral("' desn't exist");
        return;
    }
    group(index)->items.clear();
    if (m_hotItemGroup == index)
        m_hotItemGroup = m_hotItem = 0;
    repaintPane();
}

void TaskPaneBar::SetGroupChild(const QVariant& Group, QWidget* pChild) {
    const int index = ResolveGroup(Group);
    if (index < 1 || index > GroupCount() || !pChild) {
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("The group '") + groupText(Group) + QStringLiteral("' desn't exist");
        return;
    }
    auto& g = m_groups[index];
    if (g.child && g.child != pChild) {
        g.child->hide();
        g.child->setParent(g.childFormerParent.data());
    }
    if (!g.container) {
        g.container = new QWidget(this);
        g.container->setAutoFillBackground(true);
        detectTheme();
        applyContainerColours(g.container);
    }
    g.container->setObjectName(pChild->objectName() + QStringLiteral("_Container"));
    g.container->setProperty("Tag", pChild->objectName());
    if (g.child != pChild)
        g.childFormerParent = pChild->parentWidget();
    g.child = pChild;
    pChild->setParent(g.container);
    pChild->move(0, 0);
    pChild->show();
    g.container->show();
    repaintPane();
}

void TaskPaneBar::ExpandGroup(const QVariant& Group, std::optional<bool> bExpand) {
    const int index = ResolveGroup(Group);
    auto* g = group(index);
    if (!g) {
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("The group '") + groupText(Group) + QStringLiteral("' desn't exist");
        return;
    }
    g->expanded = bExpand.has_value() ? *bExpand : !g->expanded;
    repaintPane();
    if (QAccessible::isActive()) {
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent ev(this, changed);
        QAccessible::updateAccessibility(&ev);
    }
}

int TaskPaneBar::findItem(const Group& g, const QVariant& item) const {
    if (isText(item)) {
        const QString key = item.toString();
        for (int i = 0; i < g.items.size(); ++i)
            if (g.items.at(i).key == key)
                return i + 1;
        return 0;
    }
    const int index = item.toInt();
    return (index >= 1 && index <= g.items.size()) ? index : -1;
}

void TaskPaneBar::itemNotFound() {
    ShowControlMessage(this, ControlMessageIcon::Critical, tr("glakre"),
                       tr("An Error has ocurred!\n"
                          "Item Key Especified doesn't match with the existing Items"));
}

TaskPaneBar::Item* TaskPaneBar::itemToChange(const QVariant& Group, const QVariant& item,
                                             const char* what) {
    auto* g = group(ResolveGroup(Group));
    if (!g) {
        qCDebug(lcTaskPane).noquote()
            << QStringLiteral("The group '") + groupText(Group) + QStringLiteral("' desn't exist");
        return nullptr;
    }
    const int at = findItem(*g, item);
    if (at == 0) {
        itemNotFound();
        return nullptr;
    }
    if (at < 0) {
        qCDebug(lcTaskPane) << what << ": no item" << item.toInt() << "in group" << g->key;
        return nullptr;
    }
    return &g->items[at - 1];
}

void TaskPaneBar::SetItemIcon(const QVariant& Group, const QVariant& item, int iNewIcon) {
    if (Item* it = itemToChange(Group, item, "SetItemIcon")) {
        it->icon = iNewIcon;
        repaintPane();
    }
}

void TaskPaneBar::SetItemText(const QVariant& Group, const QVariant& item,
                              const QString& sNewCaption) {
    if (Item* it = itemToChange(Group, item, "SetItemText")) {
        it->caption = sNewCaption;
        repaintPane();
    }
}

void TaskPaneBar::DisableUpdates(bool bDisable) {
    m_updatesEnabled = !bDisable;
    repaintPane();
}

void TaskPaneBar::SetDetailsImage(const QPixmap& detailsImage) {
    m_details.image = detailsImage;
    repaintPane();
}

QString TaskPaneBar::GetControlVersion() const {
    return QStringLiteral("1.70");
}

QString TaskPaneBar::GroupKey(int Index) const {
    const auto* g = group(Index);
    return g ? g->key : QString();
}

QString TaskPaneBar::GroupCaption(int Index) const {
    const auto* g = group(Index);
    return g ? g->caption : QString();
}

bool TaskPaneBar::GroupExpanded(const QVariant& Group) const {
    const auto* g = group(ResolveGroup(Group));
    return g && g->expanded;
}

bool TaskPaneBar::GroupVisible(int Index) const {
    const auto* g = group(Index);
    return g && g->visible;
}

int TaskPaneBar::GroupHeaderState(const QVariant& Group) const {
    const auto* g = group(ResolveGroup(Group));
    return g ? g->headerState : 0;
}

QRect TaskPaneBar::GroupHeaderRect(const QVariant& Group) const {
    const auto* g = group(ResolveGroup(Group));
    return g ? g->headerRect : QRect();
}

int TaskPaneBar::ItemCount(const QVariant& Group) const {
    const auto* g = group(ResolveGroup(Group));
    return g ? int(g->items.size()) : 0;
}

QString TaskPaneBar::ItemKey(const QVariant& Group, int Index) const {
    const auto* g = group(ResolveGroup(Group));
    return (g && Index >= 1 && Index <= g->items.size()) ? g->items.at(Index - 1).key : QString();
}

QString TaskPaneBar::ItemCaption(const QVariant& Group, int Index) const {
    const auto* g = group(ResolveGroup(Group));
    return (g && Index >= 1 && Index <= g->items.size()) ? g->items.at(Index - 1).caption
                                                         : QString();
}

int TaskPaneBar::ItemIcon(const QVariant& Group, int Index) const {
    const auto* g = group(ResolveGroup(Group));
    return (g && Index >= 1 && Index <= g->items.size()) ? g->items.at(Index - 1).icon : 0;
}

QRect TaskPaneBar::ItemRect(const QVariant& Group, int Index) const {
    const auto* g = group(ResolveGroup(Group));
    return (g && Index >= 1 && Index <= g->items.size()) ? g->items.at(Index - 1).rect : QRect();
}

QString TaskPaneBar::DetailsTitle() const {
    return m_details.title;
}
QString TaskPaneBar::DetailsText() const {
    return m_details.text;
}

QWidget* TaskPaneBar::GroupChildContainer(const QVariant& Group) const {
    const int index = ResolveGroup(Group);
    return (index >= 1 && index <= GroupCount()) ? m_groups.at(index).container : nullptr;
}

QList<TaskPaneBar::Element> TaskPaneBar::Elements() const {
    QList<Element> out;
    auto addGroup = [&](int index) {
        const Group* g = group(index);
        out.append({Element::Header, index, 0});
        if (!g->expanded)
            return;
        for (int i = 1; i <= g->items.size(); ++i)
            out.append({Element::Item, index, i});
        if (index == DetailsGroupIndex)
            out.append({Element::DetailsText, index, 0});
    };
    if (m_special.visible)
        addGroup(SpecialGroupIndex);
    for (int i = 1; i < m_groups.size(); ++i)
        addGroup(i);
    if (m_details.visible)
        addGroup(DetailsGroupIndex);
    return out;
}

QRect TaskPaneBar::ElementRect(const Element& e) const {
    const Group* g = group(e.group);
    if (!g)
        return QRect();
    switch (e.kind) {
    case Element::Header:
        return g->headerRect;
    case Element::Item:
        return (e.item >= 1 && e.item <= g->items.size()) ? g->items.at(e.item - 1).rect : QRect();
    case Element::DetailsText:
        return g->detailsTextRect;
    }
    return QRect();
}

QString TaskPaneBar::ElementText(const Element& e) const {
    const Group* g = group(e.group);
    if (!g)
        return QString();
    switch (e.kind) {
    case Element::Header:
        return g->caption;
    case Element::Item:
        return (e.item >= 1 && e.item <= g->items.size()) ? g->items.at(e.item - 1).caption
                                                          : QString();
    case Element::DetailsText:
        return g->title;
    }
    return QString();
}

} // namespace quovara
