#include "controls/accessiblefactory.h"

#include "controls/taskpanebar.h"
#include "controls/taskpanebar_accessible.h"
#include "controls/uctoolbar.h"
#include "controls/uctoolbar_accessible.h"
#include "controls/xp_progressbar.h"
#include "controls/xp_progressbar_accessible.h"

namespace quovara {

namespace {
QAccessibleInterface* controlsFactory(const QString&, QObject* object) {
    if (auto* toolbar = qobject_cast<ucToolbar*>(object))
        return new ToolbarAccessible(toolbar);
    if (auto* bar = qobject_cast<XP_ProgressBar*>(object))
        return new ProgressBarAccessible(bar);
    if (auto* pane = qobject_cast<TaskPaneBar*>(object))
        return new TaskPaneAccessible(pane);
    return nullptr;
}
} // namespace

void InstallControlsAccessibleFactory() {
    static const bool installed = [] {
        QAccessible::installFactory(controlsFactory);
        return true;
    }();
    Q_UNUSED(installed);
}

void ReleaseAccessibleInterface(QObject* object) {
    if (QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(iface));
}

AccessibleChildCache::~AccessibleChildCache() {
    for (const QAccessible::Id id : std::as_const(m_ids))
        if (QAccessible::accessibleInterface(id))
            QAccessible::deleteAccessibleInterface(id);
}

} // namespace quovara
