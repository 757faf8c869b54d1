// The installed desktop entry: a ".uha" file handed to it by a file manager reaches the main
// window as a bare archive path, which is listed.
#include "../../core/test_support.h"

#include "ui/browser/commandline.h"

#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quovara;

namespace {

// Splits an Exec value (already unescaped as a string value) into arguments: double quotes
// group, and inside them a backslash takes the next character literally.
QStringList execArguments(const QString& exec) {
    QStringList args;
    QString current;
    bool quoted = false, any = false;
    for (int i = 0; i < exec.size(); ++i) {
        const QChar c = exec.at(i);
        if (quoted) {
            if (c == '\\' && i + 1 < exec.size())
                current += exec.at(++i);
            else if (c == '"')
                quoted = false;
            else
                current += c;
        } else if (c == '"') {
            quoted = any = true;
        } else if (c == ' ') {
            if (any || !current.isEmpty())
                args << current;
            current.clear();
            any = false;
        } else {
            current += c;
        }
    }
    if (any || !current.isEmpty())
        args << current;
    return args;
}

// The value of one key of the [Desktop Entry] group, string escapes undone.
QString entryValue(const QString& file, const QString& key) {
    const QStringList lines = QString::fromUtf8(quovara::testing::readAll(file)).split('\n');
    for (const QString& line : lines) {
        if (!line.startsWith(key + "="))
            continue;
        QString raw = line.mid(key.size() + 1), value;
        for (int i = 0; i < raw.size(); ++i) {
            if (raw.at(i) == '\\' && i + 1 < raw.size()) {
                const QChar e = raw.at(++i);
                value += e == 's' ? QChar(' ') : e == 'n' ? QChar('\n') : e;
            } else {
                value += raw.at(i);
            }
        }
        return value;
    }
    return QString();
}

// Installs the desktop files under `prefix` and answers the installed entry's path.
QString installDesktopEntry(const QString& prefix) {
    QProcess install;
    install.setProcessChannelMode(QProcess::MergedChannels);
    install.start(QStringLiteral(QUOVARA_CMAKE), {"--install", QStringLiteral(QUOVARA_BUILD_DIR),
                                                  "--component", "desktop", "--prefix", prefix});
    EXPECT_TRUE(install.waitForFinished(60000));
    EXPECT_EQ(install.exitCode(), 0) << install.readAll().toStdString();
    return prefix + "/share/applications/quovara.desktop";
}

} // namespace

TEST(DesktopEntry, AUhaFileOpensAsTheListedArchive) {
    QTemporaryDir dir;
    const QString prefix = dir.path() + "/prefix with blank";
    const QString entry = installDesktopEntry(prefix);
    ASSERT_TRUE(QFile::exists(entry));
    EXPECT_EQ(entryValue(entry, "MimeType"), "application/x-uharc;");
    EXPECT_EQ(entryValue(entry, "Categories"), "Utility;Archiving;Compression;");

    const QStringList exec = execArguments(entryValue(entry, "Exec"));
    ASSERT_EQ(exec.size(), 2);
    EXPECT_EQ(exec[0], prefix + "/bin/quovara");
    EXPECT_EQ(exec[1], "%f");

    // The file manager puts the file's path in place of %f, as one argument.
    const QString archive = "/home/user/My Archives/photos 2006.uha";
    const QStringList arguments{archive};
    const CommandRequest request = ClassifyCommandLine(CommandLineText(arguments));
    EXPECT_EQ(request.kind, CommandRequest::Archive);
    EXPECT_EQ(request.path, archive);

    // Started from the menu, without a file, the window opens normally.
    EXPECT_EQ(ClassifyCommandLine(CommandLineText({})).kind, CommandRequest::None);
}
