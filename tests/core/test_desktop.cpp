// The desktop hand-off: which application opens a kind of file, read from the desktop's
// association files, the default opener's answer for a file that no application opens, and
// its message when the desktop's opener command (xdg-open) is not installed.
#include "core/desktop.h"
#include "core/mimeapps.h"
#include "recording_prompter.h"
#include "test_support.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

// Desktop folders of one test: a configuration home, a data home and one system data folder.
class DesktopFolders : public ::testing::Test {
protected:
    QString config() const { return dir_.path() + "/config"; }
    QString dataHome() const { return dir_.path() + "/home-data"; }
    QString system() const { return dir_.path() + "/system"; }

    void desktopFile(const QString& dataDir, const QString& id, const QByteArray& extra = {}) {
        writeFile(dataDir + "/applications/" + id,
                  "[Desktop Entry]\nType=Application\nName=Viewer\nExec=viewer %f\n" + extra);
    }

    QTemporaryDir dir_;
    ScopedEnv configHome_{"XDG_CONFIG_HOME", config().toLocal8Bit()};
    ScopedEnv configDirs_{"XDG_CONFIG_DIRS", (dir_.path() + "/etc").toLocal8Bit()};
    ScopedEnv dataHome_{"XDG_DATA_HOME", dataHome().toLocal8Bit()};
    ScopedEnv dataDirs_{"XDG_DATA_DIRS", system().toLocal8Bit()};
    ScopedEnv desktop_{"XDG_CURRENT_DESKTOP", "Test"};
};

// The folder of the machine's MIME database (the one with the shared database's cache, not a
// user's own additions), found before any test points XDG_DATA_DIRS elsewhere.
const QString kMimeDatabase = QFileInfo(QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                               QStringLiteral("mime/mime.cache")))
                                  .path();

// The default opener as the program has it (the desktop's association files, the opener
// command found on the PATH), with a PATH of one folder that the test fills. The test's system
// data folder holds the machine's MIME database, so that a file's type is known.
class DesktopCommand : public DesktopFolders {
protected:
    void SetUp() override {
        SetDesktopOpener({});
        SetAssociationLookup({});
        SetDesktopLauncher({});
        ASSERT_TRUE(QDir().mkpath(bin()));
        ASSERT_NE(kMimeDatabase, ".") << "no MIME database (package shared-mime-info)";
        ASSERT_TRUE(QDir().mkpath(system()));
        ASSERT_TRUE(QFile::link(kMimeDatabase, system() + "/mime"));
    }
    QString bin() const { return dir_.path() + "/bin"; }
    // An xdg-open that writes what it was given to a file.
    void installXdgOpen() {
        writeExecutable(bin() + "/xdg-open",
                        "#!/bin/sh\nprintf '%s' \"$1\" > '" + record().toLocal8Bit() + "'\n");
    }
    QString record() const { return dir_.path() + "/xdg-open-was-given"; }
    QString textFile() {
        const QString file = dir_.path() + "/notes.txt";
        writeFile(file, "text");
        return file;
    }

    ScopedEnv path_{"PATH", bin().toLocal8Bit()};
};

// The default opener with its look-up and its launcher replaced by records.
class DefaultOpener : public ::testing::Test {
protected:
    void SetUp() override {
        SetDesktopOpener({});
        SetAssociationLookup([this](const QStringList& types) {
            asked << types;
            return application;
        });
        SetDesktopLauncher([this](const QString& target) {
            launched << target;
            return launches;
        });
    }
    void TearDown() override {
        SetAssociationLookup({});
        SetDesktopLauncher({});
    }

    QTemporaryDir dir;
    QString application;
    bool launches = true;
    QList<QStringList> asked;
    QStringList launched;
};

} // namespace

TEST_F(DesktopFolders, TheCacheOfAnApplicationsFolderNamesTheApplication) {
    desktopFile(system(), "viewer.desktop");
    writeFile(system() + "/applications/mimeinfo.cache",
              "[MIME Cache]\ntext/plain=viewer.desktop;\n");
    EXPECT_EQ(AssociatedApplication({"text/plain"}), "viewer.desktop");
    EXPECT_EQ(AssociatedApplication({"image/png"}), "");
    // The first type that has an application answers.
    EXPECT_EQ(AssociatedApplication({"text/x-csrc", "text/plain"}), "viewer.desktop");
}

TEST_F(DesktopFolders, AnApplicationWhoseDesktopFileIsMissingOrHiddenDoesNotCount) {
    writeFile(system() + "/applications/mimeinfo.cache",
              "[MIME Cache]\ntext/plain=gone.desktop;hidden.desktop;\n");
    desktopFile(system(), "hidden.desktop");
    // The user's own copy hides the system's.
    desktopFile(dataHome(), "hidden.desktop", "Hidden=true\n");
    EXPECT_EQ(AssociatedApplication({"text/plain"}), "");
}

TEST_F(DesktopFolders, ADefaultOrAddedAssociationComesFirstAndARemovedOneCountsNoMore) {
    desktopFile(system(), "viewer.desktop");
    desktopFile(system(), "editor.desktop");
    writeFile(system() + "/applications/mimeinfo.cache",
              "[MIME Cache]\ntext/plain=viewer.desktop;\nimage/png=viewer.desktop;\n");
    writeFile(config() + "/mimeapps.list", "[Default Applications]\ntext/plain=editor.desktop\n"
                                           "[Removed Associations]\nimage/png=viewer.desktop;\n");
    EXPECT_EQ(AssociatedApplication({"text/plain"}), "editor.desktop");
    EXPECT_EQ(AssociatedApplication({"image/png"}), "");
    // The list of this desktop comes before the common one.
    writeFile(config() + "/test-mimeapps.list",
              "[Added Associations]\nimage/png=editor.desktop;\n");
    EXPECT_EQ(AssociatedApplication({"image/png"}), "editor.desktop");
}

TEST_F(DesktopFolders, WithoutACacheTheDesktopFilesSayWhatTheyOpen) {
    desktopFile(system(), "kde/viewer.desktop", "MimeType=image/png;image/gif;\n");
    EXPECT_EQ(AssociatedApplication({"image/gif"}), "kde-viewer.desktop");
    EXPECT_EQ(AssociatedApplication({"text/plain"}), "");
}

TEST_F(DefaultOpener, AFileThatNoApplicationOpensGivesThirtyOneAndIsNotHandedOver) {
    const QString file = dir.filePath("notes.c");
    writeFile(file, "int main(void) { return 0; }\n");
    EXPECT_EQ(DesktopOpen(file), 31);
    EXPECT_TRUE(launched.isEmpty());
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].value(0), "text/x-csrc");
    EXPECT_TRUE(asked[0].contains("text/plain"));
}

TEST_F(DefaultOpener, AFileThatAnApplicationOpensIsHandedOver) {
    const QString file = dir.filePath("notes.txt");
    writeFile(file, "text");
    application = "viewer.desktop";
    EXPECT_EQ(DesktopOpen(file), 42);
    EXPECT_EQ(launched, QStringList({file}));
    // A hand-over that cannot start is reported like a missing association.
    launches = false;
    EXPECT_EQ(DesktopOpen(file), 31);
}

TEST_F(DefaultOpener, AnAddressIsHandedOverWithoutALookUp) {
    EXPECT_EQ(DesktopOpen("http://quovara.example.org/version.php"), 42);
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(launched, QStringList({"http://quovara.example.org/version.php"}));
}

TEST_F(DefaultOpener, ReportingAFileThatNoApplicationOpensShowsTheAssociationText) {
    const QString file = dir.filePath("data.xyz-unknown");
    writeFile(file, QByteArray("\x01\x02\x03", 3));
    RecordingPrompter prompter;
    EXPECT_EQ(ShellOpenReport(prompter, file, "", "", 0), 31);
    EXPECT_EQ(prompter.shown,
              QStringList({"critical: Il sistema in uso non presenta alcuna associazione per "
                           "questo tipo di file\r\r"}));
    EXPECT_TRUE(launched.isEmpty());
}

TEST_F(DesktopCommand, WithoutXdgOpenTheMessageNamesTheMissingProgramAndItsPackage) {
    // An application opens the file's type: only the opener command is missing.
    desktopFile(system(), "viewer.desktop");
    writeFile(system() + "/applications/mimeinfo.cache",
              "[MIME Cache]\ntext/plain=viewer.desktop;\n");
    const QString file = textFile();
    RecordingPrompter prompter;
    EXPECT_EQ(ShellOpenReport(prompter, file, "", "", 0), OpenerMissingCode);
    EXPECT_EQ(prompter.shown,
              QStringList({"critical: notes.txt cannot be opened: the program that opens files, "
                           "xdg-open, is not installed.\n\nIt comes with the package xdg-utils; "
                           "install it (for example with \"sudo apt install xdg-utils\") and "
                           "try again."}));
    // An address cannot be handed over either; the quiet opener only logs it.
    EXPECT_EQ(DesktopOpen("http://quovara.example.org/"), OpenerMissingCode);
    ShellOpen("http://quovara.example.org/");
    // The table of the platform's values has no text for it.
    EXPECT_EQ(ShellOpenFailureText(OpenerMissingCode, ""), "");
}

TEST_F(DesktopCommand, WithXdgOpenAFileThatNoApplicationOpensKeepsTheAssociationText) {
    installXdgOpen();
    const QString file = textFile();
    ASSERT_EQ(MimeTypesOfFile(file).value(0), "text/plain");
    RecordingPrompter prompter;
    EXPECT_EQ(ShellOpenReport(prompter, file, "", "", 0), 31);
    EXPECT_EQ(prompter.shown,
              QStringList({"critical: Il sistema in uso non presenta alcuna associazione per "
                           "questo tipo di file\r\r"}));
    QTest::qWait(200);
    EXPECT_FALSE(QFileInfo::exists(record())) << "the file was handed over for nothing";

    // Once an application opens the type, the same file goes to xdg-open.
    desktopFile(system(), "viewer.desktop", "MimeType=text/plain;\n");
    prompter.shown.clear();
    EXPECT_EQ(ShellOpenReport(prompter, file, "", "", 0), 42);
    EXPECT_TRUE(prompter.shown.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(record()).size() > 0; }, 5000));
    EXPECT_EQ(readAll(record()), file.toLocal8Bit());
}
