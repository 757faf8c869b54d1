// Accessibility for the custom-painted controls: one factory, installed once, that gives
// each control its own QAccessibleInterface (buttons, groups and items as children).
#pragma once

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
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

// An accessible part of a custom-painted control that has no widget and no children of its
// own (a toolbar button, a task-pane header or item): the childless answers once, and the
// action interface reached through interface_cast.
class AccessibleLeaf : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }
};

} // namespace quovara
