// Paths in any language with the engine as a Windows program under the stand-in launcher: an
// archive or a destination anywhere reaches the engine (a link, a drive), only the names inside
// an archive meet its code pages; a Japanese destination whose last letter holds the byte of a
// backslash gets every file; an Add stores names from the chosen item down.
#include "core/jobscript.h"
#include "core/launcherprefix.h"
#include "core/launcherserver.h"
#include "core/runner.h"
#include "engine/grammar.h"
#include "mainwindow_fixture.h"
#include "ui/common/foldertree.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kWine = QStringLiteral(QUOVARA_WINE_STANDIN);

// Records the window's title and State text at the moment each message is shown.
class TitleAtMessage : public RecordingPrompter {
public:
    explicit TitleAtMessage(const QWidget& window) : window_(window) {}
    void critical(const QString& text) override {
        RecordingPrompter::critical(text);
        titles << window_.windowTitle();
        states << window_.findChild<QLabel*>("Stato")->text();
    }
    QStringList titles;
    QStringList states;

private:
    const QWidget& window_;
};

class AnyLanguage : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        emptyProgramFolder();
        writeFile(places_.programFolder() + "/uharc.exe", "MZ\nstandin=" + kSix.toUtf8() + "\n");
        writeFile(places_.programFolder() + "/Uharc0.4.fns",
                  "MZ\nstandin=" + kFour.toUtf8() + "\n");
        QFile::link(kWine, places_.path() + "/wineserver");
        qputenv("QUOVARA_WINESERVER", (places_.path() + "/wineserver").toUtf8());
    }
    void TearDown() override {
        LauncherServer::Shutdown();
        MainWindow::TearDown();
    }
    // An archive of src_ ("root.txt", "a\d.txt", "a\b\c.txt", "a\b\dd.txt") at `path`.
    QString archiveAt(const QString& path) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        return makeArchiveOf(kSix, src_, path);
    }
    ScopedEnv wine_{"QUOVARA_WINE", kWine.toUtf8()};
    ScopedEnv server_{"QUOVARA_WINESERVER", (QDir::tempPath() + "/none").toUtf8()};
};

TEST_F(AnyLanguage, AnArchiveWithCyrillicLettersInItsPathOpensAndExtractsUnderEnglish) {
    ScopedEnv english("LC_ALL", "en_US.UTF-8");
    const QString folder = places_.path() + QString::fromUtf8("/Документы");
    const QString archive = archiveAt(folder + QString::fromUtf8("/Отчёт.uha"));
    ASSERT_FALSE(archive.isEmpty());
    ASSERT_TRUE(window_.Form_Load(archive));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join("|").toStdString();
    EXPECT_EQ(window_.windowTitle().left(10), QString::fromUtf8("Отчёт.uha "));
    EXPECT_EQ(readAll(ScratchFolder() + "/a/b/c.txt").size(), 0) << "a placeholder of the tree";
    EXPECT_TRUE(QFileInfo(ScratchFolder() + "/a/b/dd.txt").exists());
    // The link the engine read the archive through went with the job.
    EXPECT_TRUE(QDir(WorkFolder()).entryList({"Archivio*"}, QDir::System | QDir::Files).isEmpty());
    EXPECT_EQ(window_.ExtractHere({archive}), 0) << prompter_.shown.join("|").toStdString();
    EXPECT_EQ(readAll(folder + QString::fromUtf8("/Отчёт/a/b/c.txt")), "c in a\\b");
}

TEST_F(AnyLanguage, AJapaneseDestinationEndingInALetterWithTheByteOfABackslashGetsEveryFile) {
    // Under code page 932 "表" ends in 0x5C: given "-t…\予定表\展開表" the engine would put the
    // files into "展開表a", "展開表root.txt" beside the destination and make empty "予定" and
    // "展開" folders. The destination reaches it as a drive of its own instead.
    ScopedEnv japanese("LC_ALL", "ja_JP.UTF-8");
    const QString archive = archiveAt(places_.path() + "/in/ja.uha");
    ASSERT_FALSE(archive.isEmpty());
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    const QString parent = places_.path() + QString::fromUtf8("/予定表");
    const QString destination = parent + QString::fromUtf8("/展開表");
    ASSERT_TRUE(QDir().mkpath(destination));
    prompter_.shown.clear();
    extractWithTheWindowInto(destination);
    EXPECT_EQ(entriesBelow(destination),
              QStringList({"a/", "a/b/", "a/b/c.txt", "a/b/dd.txt", "a/d.txt", "root.txt"}))
        << prompter_.shown.join("|").toStdString();
    EXPECT_EQ(folderEntries(parent), QStringList({QString::fromUtf8("展開表")}));
    EXPECT_FALSE(QFileInfo(places_.path() + QString::fromUtf8("/予定")).exists());
}

TEST_F(AnyLanguage, AnAddStoresTheChosenFolderAsTheArchivesTopLevel) {
    ScopedEnv russian("LC_ALL", "ru_RU.UTF-8");
    const QString docs = places_.path() + QString::fromUtf8("/home/анна/Документы");
    writeFile(docs + "/a.txt", "a");
    writeFile(docs + QString::fromUtf8("/папка/б.txt"), "b");
    AddOptions options;
    options.archive = places_.path() + QString::fromUtf8("/Документы.uha");
    options.source = docs;
    MethodMemory methods;
    ASSERT_TRUE(WriteAddJobScript(WorkFile(names::AddScript), options, methods, ProgramFolder(),
                                  TempRoot(), PathStyle::host()));
    QString error;
    ASSERT_TRUE(RunAndWait(WorkFile(names::AddScript), 0, WorkFolder(), {}, &error))
        << error.toStdString();
    ASSERT_TRUE(window_.Form_Load(options.archive));
    // The archive begins with the folder itself, not with the path above it.
    EXPECT_EQ(entriesBelow(ScratchFolder()),
              QStringList({QString::fromUtf8("Документы/"), QString::fromUtf8("Документы/a.txt"),
                           QString::fromUtf8("Документы/папка/"),
                           QString::fromUtf8("Документы/папка/б.txt")}));
}

TEST_F(AnyLanguage, AMessageDuringTheReadingIsShownWithTheWindowNoLongerReading) {
    ScopedEnv english("LC_ALL", "en_US.UTF-8");
    const QString archive = archiveAt(places_.path() + "/p.uha");
    ASSERT_FALSE(archive.isEmpty());
    const QString title = window_.windowTitle();
    TitleAtMessage recorder(window_);
    window_.setPrompter(&recorder);
    // A password the engine cannot take under English is refused while the archive is read.
    recorder.answers << QString::fromUtf8("пароль");
    writeFile(archive, QByteArray());
    const QString locked = places_.path() + "/locked.uha";
    {
        QProcess p;
        p.setWorkingDirectory(src_);
        p.start(kSix, {"a", "-r+", "-y+", "-pwx", locked, "*"});
        ASSERT_TRUE(p.waitForFinished(30000));
    }
    window_.Form_Load(locked);
    ASSERT_FALSE(recorder.titles.isEmpty()) << recorder.shown.join("|").toStdString();
    EXPECT_EQ(recorder.titles.first(), title);
    EXPECT_EQ(recorder.states.first(), "Quovara is ready");
    EXPECT_FALSE(window_.windowTitle().contains("Reading"));
    EXPECT_EQ(text("Stato"), "Quovara is ready");
    window_.setPrompter(&prompter_);
}

} // namespace
