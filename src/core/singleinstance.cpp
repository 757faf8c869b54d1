#include "singleinstance.h"

#include "logging.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <map>
#include <memory>

namespace quovara {

namespace {

// Locks taken by this process stay held until it ends or gives them up.
std::map<QString, std::unique_ptr<QLockFile>>& heldLocks() {
    static std::map<QString, std::unique_ptr<QLockFile>> held;
    return held;
}

} // namespace

bool AnotherInstanceRunning(const QString& lockPath) {
    QString path = lockPath;
    if (path.isEmpty()) {
        QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        if (folder.isEmpty())
            folder = QDir::tempPath();
        path = folder + QStringLiteral("/quovara.lock");
    }
    auto& held = heldLocks();
    if (held.count(path))
        return false;
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        qCDebug(lcRunner) << "another copy holds" << path;
        return true;
    }
    held.emplace(path, std::move(lock));
    return false;
}

void ReleaseInstanceLocks() {
    heldLocks().clear();
}

} // namespace quovara
