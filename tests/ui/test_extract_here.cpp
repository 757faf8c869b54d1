// `quovara --extract-here`: each archive extracted beside itself through its progress window,
// in the three layouts, never over anything that exists, with its name on every message, and
// told of by a desktop notification when the user is at another program.
#include "mainwindow_fixture.h"

#include "core/notifications.h"
#include "elsewhere.h"
#include "fake_notifications.h"
#include "ui/jobs/extractherejob.h"

#include <QLockFile>
#include <QProcess>
#include <QScreen>
#include <QTimer>
#include <unistd.h>

namespace quovara::testing {
namespace {

class ExtractHere : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        here_ = places_.path() + "/here";
        QDir().mkpath(here_);
    }

    // An archive in `here_` made by the stand-in engine of everything in `folder`.
    QString archiveOf(const QString& folder, const QString& name, QStringList switches = {}) {
        const QString archive = makeArchiveOf(kSix, folder, here_ + "/" + name, switches);
        EXPECT_FALSE(archive.isEmpty()) << name.toStdString();
        return here_ + "/" + name;
    }

    QString oneFolder() {
        const QString from = places_.path() + "/onefolder";
        writeFile(from + "/Holiday/beach.txt", "beach");
        writeFile(from + "/Holiday/2026/sea.txt", "sea");
        return archiveOf(from, "holiday.uha");
    }
    QString oneFile() {
        const QString from = places_.path() + "/onefile";
        writeFile(from + "/report.txt", "the report");
        return archiveOf(from, "report.uha");
    }

    QString named(const QString& archive, const char* text) {
        return QString::fromLatin1(extract_here::AboutArchive)
            .arg(QFileInfo(archive).fileName(), QString::fromLatin1(text));
    }

    QString here_;
};

TEST_F(ExtractHere, AnArchiveOfOneFolderIsExtractedAsItIs) {
    const QString archive = oneFolder();
    EXPECT_EQ(window_.ExtractHere({archive}), 0);
    EXPECT_EQ(folderEntries(here_), QStringList({"Holiday", "holiday.uha"}));
    EXPECT_EQ(readAll(here_ + "/Holiday/2026/sea.txt"), "sea");
    EXPECT_EQ(readAll(here_ + "/Holiday/beach.txt"), "beach");
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    // The main window never showed.
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(ExtractHere, WhileTheUserIsElsewhereEachArchiveIsToldOfWithTheFolderItWentTo) {
    PrivateBus bus;
    if (bus.address().isEmpty())
        GTEST_SKIP() << bus.problem().toStdString();
    FakeNotificationService service(bus.address());
    ASSERT_TRUE(service.registered());
    DesktopNotifications::instance().useBus(bus.address());
    const QString folder = oneFolder();
    const QString file = oneFile();
    // The user goes to another program as soon as each progress window has shown.
    ScopedEnv delay("QUOVARA_STANDIN_DELAY_MS", "300");
    AnotherProgramsWindow elsewhere;
    QTimer watch;
    watch.setInterval(10);
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (QApplication::activeWindow() &&
            QApplication::activeWindow()->objectName() == "frmExtracting")
            elsewhere.requestFocus();
    });
    watch.start();
    EXPECT_EQ(window_.ExtractHere({folder, file}), 0);
    watch.stop();
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    ASSERT_TRUE(waitFor([&] { return service.notices.size() == 2; }));
    // The folder the archive's one folder became, and the folder beside its one file.
    EXPECT_EQ(service.notices[0].summary, "Extraction of holiday.uha finished");
    EXPECT_EQ(service.notices[0].body, "Extracted to " + here_ + "/Holiday");
    EXPECT_EQ(service.notices[0].actions, QStringList({"open-folder", "Open folder"}));
    EXPECT_EQ(service.notices[1].summary, "Extraction of report.uha finished");
    EXPECT_EQ(service.notices[1].body, "Extracted to " + here_);
    opened_.clear();
    service.chooseButton(service.notices[0].id, "open-folder");
    ASSERT_TRUE(waitFor([&] { return !opened_.isEmpty(); }));
    EXPECT_EQ(opened_, QStringList({here_ + "/Holiday"}));
    DesktopNotifications::instance().useBus(QString());
}

TEST_F(ExtractHere, AnArchiveOfOneFileIsExtractedAsItIs) {
    const QString archive = oneFile();
    EXPECT_EQ(window_.ExtractHere({archive}), 0);
    EXPECT_EQ(folderEntries(here_), QStringList({"report.txt", "report.uha"}));
    EXPECT_EQ(readAll(here_ + "/report.txt"), "the report");
}

TEST_F(ExtractHere, AnArchiveOfManyEntriesGetsAFolderNamedAfterIt) {
    const QString archive = archiveOf(src_, "plain.uha");
    EXPECT_EQ(window_.ExtractHere({archive}), 0);
    EXPECT_EQ(folderEntries(here_), QStringList({"plain", "plain.uha"}));
    EXPECT_EQ(folderEntries(here_ + "/plain"), QStringList({"a", "root.txt"}));
    EXPECT_EQ(readAll(here_ + "/plain/a/b/dd.txt"), "dd in a\\b");
}

TEST_F(ExtractHere, TakenNamesAreNeverWrittenIntoButNumbered) {
    const QString many = archiveOf(src_, "plain.uha");
    const QString folder = oneFolder();
    const QString file = oneFile();
    writeFile(here_ + "/plain/mine.txt", "mine");
    writeFile(here_ + "/Holiday/beach.txt", "my own beach");
    writeFile(here_ + "/report.txt", "my report");
    EXPECT_EQ(window_.ExtractHere({many, folder, file}), 0);
    EXPECT_EQ(folderEntries(here_),
              QStringList({"Holiday", "Holiday (2)", "holiday.uha", "plain", "plain (2)",
                           "plain.uha", "report (2).txt", "report.txt", "report.uha"}));
    EXPECT_EQ(folderEntries(here_ + "/plain"), QStringList({"mine.txt"}));
    EXPECT_EQ(readAll(here_ + "/Holiday/beach.txt"), "my own beach");
    EXPECT_EQ(readAll(here_ + "/Holiday (2)/beach.txt"), "beach");
    EXPECT_EQ(readAll(here_ + "/report.txt"), "my report");
    EXPECT_EQ(readAll(here_ + "/report (2).txt"), "the report");
    EXPECT_EQ(readAll(here_ + "/plain (2)/root.txt"), "root file");
}

TEST_F(ExtractHere, NamesInEveryLanguageRoundTrip) {
    const QString from = places_.path() + "/languages";
    writeFile(from + "/Zażółć gęślą jaźń.txt", "pl");
    writeFile(from + "/Привет/мир.txt", "ru");
    writeFile(from + "/日本語/ファイル.txt", "ja");
    const QString archive = archiveOf(from, "Zdjęcia Фото 写真.uha");
    EXPECT_EQ(window_.ExtractHere({archive}), 0);
    const QString out = here_ + "/Zdjęcia Фото 写真";
    EXPECT_EQ(folderEntries(out), QStringList({"Zażółć gęślą jaźń.txt", "Привет", "日本語"}));
    EXPECT_EQ(readAll(out + "/日本語/ファイル.txt"), "ja");
    EXPECT_EQ(readAll(out + "/Привет/мир.txt"), "ru");
}

TEST_F(ExtractHere, AProtectedArchiveAsksForItsPasswordAgainAfterAWrongOne) {
    const QString archive = archiveOf(src_, "protected.uha", {"-pwsecret"});
    prompter_.answers = {"wrong", "secret"};
    EXPECT_EQ(window_.ExtractHere({archive}), 0);
    // The engine refuses a wrong password as it refuses a damaged archive: its message is
    // shown and the password asked for again.
    EXPECT_EQ(prompter_.shown,
              QStringList({"prompt: " + named(archive, "Insert Password"),
                           "critical: " + named(archive, "Can't read from archive file / "
                                                         "Unexpected end of file (maybe corrupt)"),
                           "prompt: " + named(archive, "Insert Password")}));
    EXPECT_EQ(readAll(here_ + "/protected/a/d.txt"), "d in a");
}

TEST_F(ExtractHere, ACancelledPasswordPromptWritesNothing) {
    const QString archive = archiveOf(src_, "protected.uha", {"-pwsecret"});
    prompter_.answers = {QString()};
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(prompter_.shown,
              QStringList({"prompt: " + named(archive, "Insert Password"),
                           "critical: " + named(archive, extract_here::NoPassword)}));
    EXPECT_EQ(folderEntries(here_), QStringList({"protected.uha"}));
}

TEST_F(ExtractHere, AFileThatIsNotAnArchiveIsRefusedByName) {
    writeFile(here_ + "/notes.txt", "just text");
    EXPECT_EQ(window_.ExtractHere({here_ + "/notes.txt"}), 1);
    EXPECT_EQ(prompter_.shown, QStringList({"critical: " + named(here_ + "/notes.txt",
                                                                 extract_here::NotAnArchive)}));
    EXPECT_EQ(folderEntries(here_), QStringList({"notes.txt"}));
}

TEST_F(ExtractHere, ItsPromptsAreCentredOnTheScreenNotOnTheHiddenWindow) {
    // The window is bigger than the screen and in its corner, as a hidden main window may be.
    const QRect area = window_.screen()->availableGeometry();
    window_.setGeometry(QRect(area.topLeft(), area.size() + QSize(300, 200)));
    writeFile(here_ + "/notes.txt", "just text");
    EXPECT_EQ(window_.ExtractHere({here_ + "/notes.txt"}), 1);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_TRUE(area.contains(window_.geometry())) << window_.geometry().width();
    EXPECT_LE((window_.geometry().center() - area.center()).manhattanLength(), 2);
}

TEST_F(ExtractHere, ABrokenArchiveShowsTheEnginesErrorWithItsNameAndLeavesNothing) {
    writeFile(here_ + "/broken.uha", "this is not what the engine wrote");
    EXPECT_EQ(window_.ExtractHere({here_ + "/broken.uha"}), 1);
    ASSERT_FALSE(prompter_.shown.isEmpty());
    EXPECT_TRUE(prompter_.shown.first().startsWith("critical: broken.uha:\n"))
        << prompter_.shown.join('|').toStdString();
    EXPECT_EQ(folderEntries(here_), QStringList({"broken.uha"}));
}

TEST_F(ExtractHere, AFolderThatCannotBeWrittenToIsSaidAndNothingIsWritten) {
    const QString archive = oneFile();
    const QString locked = places_.path() + "/locked";
    QDir().mkpath(locked);
    bool mounted = false;
    if (::geteuid() == 0) {
        // Root writes into any folder: a read-only file system stands in for one it may not.
        QProcess mount;
        mount.start("mount", {"-t", "tmpfs", "-o", "size=1m", "tmpfs", locked});
        if (!mount.waitForFinished(10000) || mount.exitCode() != 0)
            GTEST_SKIP() << "running as root and no file system can be mounted here";
        mounted = true;
        ASSERT_TRUE(QFile::copy(archive, locked + "/report.uha"));
        mount.start("mount", {"-o", "remount,ro", locked});
        ASSERT_TRUE(mount.waitForFinished(10000));
        ASSERT_EQ(mount.exitCode(), 0);
    } else {
        ASSERT_TRUE(QFile::copy(archive, locked + "/report.uha"));
        QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner);
    }
    const int status = window_.ExtractHere({locked + "/report.uha"});
    const QStringList inside = folderEntries(locked);
    if (mounted)
        QProcess::execute("umount", {locked});
    else
        QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(inside, QStringList({"report.uha"}));
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_TRUE(prompter_.shown.first().startsWith(
        "critical: report.uha:\nNothing was extracted: the folder " + locked +
        " cannot be written to ("))
        << prompter_.shown.first().toStdString();
}

TEST_F(ExtractHere, SeveralArchivesRunInTurnAndASummaryNamesThoseThatFailed) {
    const QString folder = oneFolder();
    writeFile(here_ + "/notes.txt", "just text");
    const QString file = oneFile();
    EXPECT_EQ(window_.ExtractHere({folder, here_ + "/notes.txt", file, here_ + "/gone.uha"}), 1);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: " + named(here_ + "/notes.txt", extract_here::NotAnArchive),
                           "critical: " + named(here_ + "/gone.uha", extract_here::NotFound),
                           "critical: These archives were not extracted:\n\n" + here_ +
                               "/notes.txt\n" + here_ + "/gone.uha"}));
    // Those that could be extracted were.
    EXPECT_EQ(readAll(here_ + "/Holiday/beach.txt"), "beach");
    EXPECT_EQ(readAll(here_ + "/report.txt"), "the report");
}

} // namespace
} // namespace quovara::testing

namespace quovara::testing {
namespace {

TEST_F(ExtractHere, WhileAQuovaraWindowIsOpenItSaysSoAndExtractsNothing) {
    const QString archive = oneFile();
    QLockFile other(lockPath_);
    ASSERT_TRUE(other.tryLock(0));
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(prompter_.shown, QStringList({"exclamation: Quovara is already running"}));
    EXPECT_EQ(folderEntries(here_), QStringList({"report.uha"}));
}

} // namespace
} // namespace quovara::testing
