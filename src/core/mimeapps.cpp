#include "mimeapps.h"

#include "logging.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QTextStream>

namespace quovara {

namespace {

// One file of the desktop's key-file format: section -> key -> the values of a ";" list.
using KeyFile = QHash<QString, QHash<QString, QStringList>>;

KeyFile readKeyFile(const QString& path) {
    KeyFile sections;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        if (file.exists())
            qCDebug(lcDesktop) << "cannot read" << path << file.errorString();
        return sections;
    }
    QTextStream in(&file);
    QString section;
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            section = line.mid(1, line.size() - 2);
            continue;
        }
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        if (eq <= 0 || section.isEmpty())
            continue;
        QStringList values;
        for (const QString& v : line.mid(eq + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts))
            if (const QString t = v.trimmed(); !t.isEmpty())
                values << t;
        sections[section][line.left(eq).trimmed()] = values;
    }
    return sections;
}

QStringList dirsFrom(const char* variable, const QString& fallback) {
    const QString value = qEnvironmentVariable(variable);
    QStringList dirs;
    for (const QString& d : (value.isEmpty() ? fallback : value).split(QLatin1Char(':')))
        if (!d.isEmpty())
            dirs << d;
    return dirs;
}

QString homeDir(const char* variable, const QString& underHome) {
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? QDir::homePath() + QLatin1Char('/') + underHome : value;
}

// The configuration folders and the data folders, the most important first.
QStringList configDirs() {
    return QStringList{homeDir("XDG_CONFIG_HOME", QStringLiteral(".config"))} +
           dirsFrom("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg"));
}

QStringList dataDirs() {
    return QStringList{homeDir("XDG_DATA_HOME", QStringLiteral(".local/share"))} +
           dirsFrom("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share"));
}

// The association lists, the most important first: per desktop ("kde-mimeapps.list") before
// the common one, the configuration folders before the data folders.
QStringList associationLists() {
    QStringList desktops;
    for (const QString& d : qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':')))
        if (!d.isEmpty())
            desktops << d.toLower();
    QStringList lists;
    auto addFrom = [&](const QString& dir) {
        for (const QString& d : desktops)
            lists << dir + QLatin1Char('/') + d + QStringLiteral("-mimeapps.list");
        lists << dir + QStringLiteral("/mimeapps.list");
    };
    for (const QString& dir : configDirs())
        addFrom(dir);
    for (const QString& dir : dataDirs()) {
        addFrom(dir + QStringLiteral("/applications"));
        // The older name of the defaults, still written by some systems.
        lists << dir + QStringLiteral("/applications/defaults.list");
    }
    return lists;
}

class Associations {
public:
    Associations() {
        // The installed desktop files by id: a file in a sub-folder has the folder in its id
        // ("kde/viewer.desktop" is "kde-viewer.desktop"); the first data folder wins.
        for (const QString& dir : dataDirs()) {
            const QString apps = dir + QStringLiteral("/applications");
            QDirIterator it(apps, {QStringLiteral("*.desktop")}, QDir::Files,
                            QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
            while (it.hasNext()) {
                const QString path = it.next();
                QString id = QDir(apps).relativeFilePath(path);
                id.replace(QLatin1Char('/'), QLatin1Char('-'));
                if (!installed_.contains(id))
                    installed_.insert(id, path);
            }
        }
    }

    QString applicationFor(const QString& type) {
        QSet<QString> removed;
        for (const QString& list : associationLists()) {
            const KeyFile file = readKeyFile(list);
            for (const char* section : {"Default Applications", "Added Associations"})
                for (const QString& id : file.value(QLatin1String(section)).value(type))
                    if (!removed.contains(id) && usable(id))
                        return id;
            for (const QString& id : file.value(QStringLiteral("Removed Associations")).value(type))
                removed.insert(id);
        }
        for (const QString& dir : dataDirs()) {
            const QString apps = dir + QStringLiteral("/applications");
            for (const QString& id : declaredBy(apps, type))
                if (!removed.contains(id) && usable(id))
                    return id;
        }
        return QString();
    }

private:
    // A desktop file that is installed and not hidden.
    bool usable(const QString& id) {
        const auto path = installed_.constFind(id);
        if (path == installed_.constEnd())
            return false;
        const QStringList hidden = desktopEntry(*path).value(QStringLiteral("Hidden"));
        return hidden.isEmpty() || hidden.first() != QLatin1String("true");
    }

    QHash<QString, QStringList> desktopEntry(const QString& path) {
        auto entry = entries_.constFind(path);
        if (entry == entries_.constEnd())
            entry = entries_.insert(path, readKeyFile(path).value(QStringLiteral("Desktop Entry")));
        return *entry;
    }

    // The desktop files of one applications folder that say they open `type`.
    QStringList declaredBy(const QString& apps, const QString& type) {
        const QString cache = apps + QStringLiteral("/mimeinfo.cache");
        if (QFileInfo::exists(cache))
            return readKeyFile(cache).value(QStringLiteral("MIME Cache")).value(type);
        QStringList ids;
        for (auto it = installed_.constBegin(); it != installed_.constEnd(); ++it)
            if (it.value().startsWith(apps + QLatin1Char('/')) &&
                desktopEntry(it.value()).value(QStringLiteral("MimeType")).contains(type))
                ids << it.key();
        ids.sort();
        return ids;
    }

    QHash<QString, QString> installed_;
    QHash<QString, QHash<QString, QStringList>> entries_;
};

} // namespace

QString AssociatedApplication(const QStringList& mimeTypes) {
    Associations associations;
    for (const QString& type : mimeTypes)
        if (const QString id = associations.applicationFor(type); !id.isEmpty())
            return id;
    return QString();
}

} // namespace quovara
