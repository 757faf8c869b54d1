// Helpers shared by the core tests: temporary places and small executable scripts.
#pragma once

#include "core/launcherserver.h"

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <ostream>

// Readable QString values in test failure messages.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QStringList& l, std::ostream* os) {
    *os << '{';
    for (const QString& s : l)
        *os << '"' << s.toStdString() << "\", ";
    *os << '}';
}

namespace quovara::testing {

// A listing log in the engine's layout: nine header lines, an entry line and a detail line per
// stored name, the separator and the two totals lines.
inline QByteArray ListingLogOf(const QList<QByteArray>& storedNames) {
    QByteArray log = "\r\n=== UHARC 0.6 LOG ===\r\n\r\n\r\n\r\n\r\n\r\nheader\r\n" +
                     QByteArray(79, '-') + "\r\n";
    for (const QByteArray& name : storedNames)
        log += name + "\r\n                                       0  22-Nov-2026  14:28:18  ---A  "
                      "00000000\r\n";
    log += QByteArray(79, '-') + "\r\n" + QByteArray::number(storedNames.size()) +
           " files                                0\r\n                                       "
           "0 packed (ALZ:2-mode), ratio: 0.0%\r\n" +
           QByteArray(79, '=') + "\r\n";
    return log;
}

// File names in several scripts, with a blank and an apostrophe: Polish, Cyrillic, Greek,
// Japanese, an emoji.
inline QStringList MixedScriptNames() {
    return {QString::fromUtf8("Łódź.txt"),  QString::fromUtf8("Привет.txt"),
            QString::fromUtf8("Αθήνα.txt"), QString::fromUtf8("日本語.txt"),
            QString::fromUtf8("📦.txt"),     QStringLiteral("a b.txt"),
            QStringLiteral("it's.txt")};
}

// Writes an executable file.
inline void writeExecutable(const QString& path, const QByteArray& content) {
    QFile f(path);
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    f.write(content);
    f.close();
    f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// Makes `archive` of everything in `folder` (with its sub-folders) with the stand-in `engine`
// and `switches`; empty when the engine failed.
inline QString makeArchiveOf(const QString& engine, const QString& folder, const QString& archive,
                             const QStringList& switches = {}) {
    QProcess p;
    p.setWorkingDirectory(folder);
    p.start(engine, QStringList{"a"} + switches + QStringList{"-r+", "-y+", archive, "*"});
    if (!p.waitForFinished(30000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return QString();
    return archive;
}

// What `folder` holds directly (hidden entries too), by name.
inline QStringList folderEntries(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

// Every file and folder below `root`, relative, "/" between parts, sorted.
inline QStringList entriesBelow(const QString& root) {
    QStringList all;
    QDirIterator it(root, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        all << QDir(root).relativeFilePath(path) + (it.fileInfo().isDir() ? "/" : "");
    }
    all.sort();
    return all;
}

inline QByteArray readAll(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

// Writes `content` to `path`, making the folders it needs.
inline void writeFile(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    f.write(content);
}

// Sets an environment variable for one scope (a null value unsets it) and puts the previous
// value back afterwards.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const QByteArray& value) : name_(name), old_(qgetenv(name)) {
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value);
    }
    ~ScopedEnv() {
        if (old_.isNull())
            qunsetenv(name_);
        else
            qputenv(name_, old_);
    }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
    const char* name_;
    QByteArray old_;
};

// Points TMPDIR, QUOVARA_PROGRAM_DIR and the engine's wine prefix (QUOVARA_WINEPREFIX) at
// fresh temporary folders for one test, and puts the previous values back afterwards. The
// prefix counts as made already (it holds its system registry), as after a first use.
class ScopedPlaces {
public:
    ScopedPlaces()
        : oldTmp_(qgetenv("TMPDIR")), oldProgram_(qgetenv("QUOVARA_PROGRAM_DIR")),
          oldPrefix_(qgetenv("QUOVARA_WINEPREFIX")) {
        QDir(temp_.path()).mkdir("tmp");
        QDir(temp_.path()).mkdir("program");
        QDir(temp_.path()).mkdir("wineprefix");
        QFile reg(winePrefix() + "/system.reg");
        reg.open(QIODevice::WriteOnly);
        qputenv("TMPDIR", tempRoot().toLocal8Bit());
        qputenv("QUOVARA_PROGRAM_DIR", programFolder().toLocal8Bit());
        qputenv("QUOVARA_WINEPREFIX", winePrefix().toLocal8Bit());
    }
    ~ScopedPlaces() {
        // A launcher server started for this test's prefix ends with it, with every process of
        // that prefix.
        LauncherServer::Shutdown();
        restore("TMPDIR", oldTmp_);
        restore("QUOVARA_PROGRAM_DIR", oldProgram_);
        restore("QUOVARA_WINEPREFIX", oldPrefix_);
    }
    QString tempRoot() const { return temp_.path() + "/tmp"; }
    QString programFolder() const { return temp_.path() + "/program"; }
    QString winePrefix() const { return temp_.path() + "/wineprefix"; }
    QString path() const { return temp_.path(); }

private:
    static void restore(const char* name, const QByteArray& value) {
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value);
    }
    QTemporaryDir temp_;
    QByteArray oldTmp_;
    QByteArray oldProgram_;
    QByteArray oldPrefix_;
};

} // namespace quovara::testing
