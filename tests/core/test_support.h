// Helpers shared by the core tests: temporary places and small executable scripts.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
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

inline QByteArray readAll(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

inline void writeFile(const QString& path, const QByteArray& content) {
    QFile f(path);
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    f.write(content);
}

// Points TMPDIR and QUOVARA_PROGRAM_DIR at fresh temporary folders for one test, and puts the
// previous values back afterwards.
class ScopedPlaces {
public:
    ScopedPlaces() : oldTmp_(qgetenv("TMPDIR")), oldProgram_(qgetenv("QUOVARA_PROGRAM_DIR")) {
        QDir(temp_.path()).mkdir("tmp");
        QDir(temp_.path()).mkdir("program");
        qputenv("TMPDIR", tempRoot().toLocal8Bit());
        qputenv("QUOVARA_PROGRAM_DIR", programFolder().toLocal8Bit());
    }
    ~ScopedPlaces() {
        restore("TMPDIR", oldTmp_);
        restore("QUOVARA_PROGRAM_DIR", oldProgram_);
    }
    QString tempRoot() const { return temp_.path() + "/tmp"; }
    QString programFolder() const { return temp_.path() + "/program"; }
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
};

} // namespace quovara::testing
