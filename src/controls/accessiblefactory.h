// Accessibility for the custom-painted controls: one factory, installed once, that gives
// each control its own QAccessibleInterface (buttons, groups and items as children).
#pragma once

#include <QAccessible>
#include <QHash>
#include <QtGlobal>

namespace quovara {

// Installs the factory (once per process). Every control calls it from its constructor.
void InstallControlsAccessibleFactory();

// Removes a control's interface from the accessibility cache. Each control calls it from its
// destructor, so that no interface outlives its widget (a new widget at the same address
// would otherwise be handed the old interface).
void ReleaseAccessibleInterface(QObject* object);

// Keeps the interfaces of a control's painted parts alive and unique: one registered
// interface per key, created on first use, deleted with the owner.
class AccessibleChildCache {
public:
    AccessibleChildCache() = default;
    AccessibleChildCache(const AccessibleChildCache&) = delete;
    AccessibleChildCache& operator=(const AccessibleChildCache&) = delete;
    ~AccessibleChildCache();

    template <typename Make> QAccessibleInterface* get(quint64 key, Make make) {
        if (auto it = m_ids.constFind(key); it != m_ids.constEnd()) {
            if (auto* iface = QAccessible::accessibleInterface(*it))
                return iface;
        }
        QAccessibleInterface* iface = make();
        m_ids.insert(key, QAccessible::registerAccessibleInterface(iface));
        return iface;
    }

private:
    QHash<quint64, QAccessible::Id> m_ids;
};

} // namespace quovara
