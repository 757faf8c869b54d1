// Names in every language with a Windows engine: the engine runs through the stand-in launcher,
// which plays wine and hands the stand-in engine the code pages of its locale, so the program
// meets the engine's code pages as it meets them with the real engine.
#include "core/enginelocale.h"
#include "core/launcherprefix.h"
#include "core/launcherserver.h"
#include "mainwindow_fixture.h"
#include "ui/common/preparingnotice.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>

#include <QPushButton>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kWine = QStringLiteral(QUOVARA_WINE_STANDIN);

class EngineLanguages : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        // The engines are "Windows programs" that the stand-in launcher runs.
        emptyProgramFolder();
        writeFile(places_.programFolder() + "/uharc.exe", "MZ\nstandin=" + kFour.toUtf8() + "\n");
        writeFile(places_.programFolder() + "/Uharc0.6.fns", "MZ\nstandin=" + kSix.toUtf8() + "\n");
        QFile::link(kWine, places_.path() + "/wineserver");
        qputenv("QUOVARA_WINESERVER", (places_.path() + "/wineserver").toUtf8());
        SetArchiveLocale(QString());
    }
    void TearDown() override {
        SetArchiveLocale(QString());
        MainWindow::TearDown();
    }

    // Makes an archive of `files` (name → content) with the 0.6 engine under `locale`, through
    // the launcher as the real engine would be run.
    QString archiveUnder(const QString& locale, const QString& name,
                         const QList<QPair<QString, QByteArray>>& files) {
        const QString folder = places_.path() + "/made-" + QString::number(++made_);
        QStringList names;
        for (const auto& [file, content] : files) {
            writeFile(folder + "/" + file, content);
            names << QString(file).replace('/', '\\');
        }
        const QString engine = places_.path() + "/make.exe";
        writeFile(engine, "MZ\nstandin=" + kSix.toUtf8() + "\n");
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("LC_ALL", locale);
        p.setProcessEnvironment(env);
        p.setWorkingDirectory(folder);
        p.start(kWine, QStringList{engine, "a", "-y+", places_.path() + "/" + name} + names);
        EXPECT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
        return places_.path() + "/" + name;
    }

    QStringList mirrored(const QString& sub = QString()) {
        QStringList l =
            QDir(ScratchFolder() + sub).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
        l.sort();
        return l;
    }

    ScopedEnv wine_{"QUOVARA_WINE", kWine.toUtf8()};
    // The stand-in launcher under the name of wine's server (never a real one of this machine).
    ScopedEnv server_{"QUOVARA_WINESERVER", QByteArray()};
    ScopedEnv lang_{"LANG", "en_US.UTF-8"};
    ScopedEnv ctype_{"LC_CTYPE", QByteArray()};
    int made_ = 0;
};

const QString kPrivet = QString::fromUtf8("Привет.txt");
const QString kFolder = QString::fromUtf8("Папка");
const QString kDocument = QString::fromUtf8("Документ.txt");

} // namespace

TEST_F(EngineLanguages, ARussianArchiveOnARussianDesktopShowsSearchesAndExtractsItsNames) {
    ScopedEnv all("LC_ALL", "ru_RU.UTF-8");
    const QString archive = archiveUnder("ru_RU.UTF-8", QString::fromUtf8("Архив.uha"),
                                         {{kPrivet, "privet"}, {kFolder + "/" + kDocument, "doc"}});
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    EXPECT_EQ(prompter_.shown, QStringList());
    EXPECT_EQ(mirrored(), QStringList({kFolder, kPrivet}));
    EXPECT_EQ(mirrored("/" + kFolder), QStringList({kDocument}));

    // Typed letters beyond ASCII arrive as text (an input method's commit).
    child<QLineEdit>("TxtCerca")->setText(QString::fromUtf8("Док"));
    QTest::keyClick(child<QLineEdit>("TxtCerca"), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return text("Stato") == "Quovara is ready"; }));
    auto* found = child<QTreeView>("Trovati");
    ASSERT_EQ(found->model()->rowCount(), 1);
    EXPECT_EQ(cell(found, 0, 0), kDocument);

    // Back from the results; extracted alone, through the engine under the same locale, with
    // its name and bytes.
    clickToolbar(1);
    clickItem(ScratchFolder() + "/" + kPrivet);
    EXPECT_EQ(window_.selectedItem(), kPrivet);
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/" + kPrivet), QByteArray("privet"));
    EXPECT_EQ(opened_.last(), WorkFolder() + "/" + kPrivet);
}

TEST_F(EngineLanguages, ARussianArchiveOnAnEnglishDesktopIsReadUnderTheArchiveLocaleChosen) {
    const QString archive = archiveUnder("ru_RU.UTF-8", "ru.uha", {{kPrivet, "privet"}});
    ScopedEnv all("LC_ALL", "en_US.UTF-8");
    // Read in the user's own code page (437) the names are garbled, as the engine gives them.
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    EXPECT_EQ(mirrored(), QStringList({QString::fromUtf8("Åα¿óÑΓ.txt")}));
    // With the archive's own locale chosen, the engine runs under it and the names are right,
    // also when an item is extracted alone.
    SetArchiveLocale("ru_RU.UTF-8");
    QTest::keyClick(&window_, Qt::Key_F5);
    ASSERT_TRUE(waitFor([&] { return mirrored() == QStringList({kPrivet}); }))
        << mirrored().join('|').toStdString();
    clickItem(ScratchFolder() + "/" + kPrivet);
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/" + kPrivet), QByteArray("privet"));
}

TEST_F(EngineLanguages, APolishArchiveOpensUnderAPolishLocaleAndItsNameIsTakenUnderARussianOne) {
    const QString name = QString::fromUtf8("Łódź.uha");
    const QString archive =
        archiveUnder("pl_PL.UTF-8", name, {{QString::fromUtf8("Żółw/zażółć gęślą jaźń.txt"), "x"}});
    {
        ScopedEnv all("LC_ALL", "pl_PL.UTF-8");
        ASSERT_TRUE(window_.Form_Load(archive));
        show();
        EXPECT_EQ(prompter_.shown, QStringList());
        EXPECT_EQ(mirrored("/" + QString::fromUtf8("Żółw")),
                  QStringList({QString::fromUtf8("zażółć gęślą jaźń.txt")}));
    }
    // Code page 1251 lacks "Ł" and "ź", but the archive's own name never reaches the engine:
    // it is read through a link. Its stored names are read in code page 866, as the engine
    // under this locale reads them (not as Polish: that takes "--archive-locale").
    ScopedEnv all("LC_ALL", "ru_RU.UTF-8");
    prompter_.shown.clear();
    QTest::keyClick(&window_, Qt::Key_F5);
    ASSERT_TRUE(waitFor([&] { return text("Stato") == "Quovara is ready"; }));
    EXPECT_EQ(prompter_.shown, QStringList());
    EXPECT_EQ(mirrored().size(), 1);
    EXPECT_NE(mirrored().value(0), QString::fromUtf8("Żółw"));
}

TEST_F(EngineLanguages, AJapaneseNameWithTheByteOfABackslashIsOneName) {
    ScopedEnv all("LC_ALL", "ja_JP.UTF-8");
    const QString name = QString::fromUtf8("表ソ.txt");
    const QString archive = archiveUnder("ja_JP.UTF-8", "ja.uha",
                                         {{name, "ja"}, {QString::fromUtf8("表/能.txt"), "x"}});
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    EXPECT_EQ(mirrored(), QStringList({QString::fromUtf8("表"), name}));
    EXPECT_EQ(mirrored(QString::fromUtf8("/表")), QStringList({QString::fromUtf8("能.txt")}));
    clickItem(ScratchFolder() + "/" + name);
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/" + name), QByteArray("ja"));
}

TEST_F(EngineLanguages, UnderALocaleThatIsNotInstalledAnArchiveWithLettersBeyondAsciiStillOpens) {
    // Wine garbles every name beyond ASCII under a locale it does not have; the archive is read
    // through a link with a plain name, so only its stored names would meet that.
    const QString archive =
        archiveUnder("en_US.UTF-8", QString::fromUtf8("café.uha"), {{"a.txt", "a"}});
    ScopedEnv all("LC_ALL", "xx_YY.UTF-8");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    EXPECT_EQ(prompter_.shown, QStringList());
    EXPECT_EQ(mirrored(), QStringList({"a.txt"}));
}

TEST_F(EngineLanguages, TheFirstUsePreparesThePrefixWithoutADisplayAndSaysSo) {
    QFile::remove(places_.winePrefix() + "/system.reg");
    QStringList notices;
    SetPrefixPreparingNotice([&](bool on) { notices << (on ? "preparing" : "ready"); });
    ScopedEnv display("DISPLAY", ":99");
    const QString archive = archiveUnder("en_US.UTF-8", "plain.uha", {{"a.txt", "a"}});
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    SetPrefixPreparingNotice({});
    EXPECT_EQ(notices, QStringList({"preparing", "ready"}));
    EXPECT_EQ(mirrored(), QStringList({"a.txt"}));
    // Made once, with no display (so no window of wine's can pop up), 32-bit, without the Mono
    // and Gecko installers and without menu entries.
    EXPECT_EQ(readAll(places_.winePrefix() + "/wineboot.count"), QByteArray("wineboot\n"));
    EXPECT_EQ(readAll(places_.winePrefix() + "/wineboot.env"),
              QByteArray("DISPLAY= WINEARCH=win32 WINEDLLOVERRIDES=mscoree,mshtml=;"
                         "winemenubuilder.exe=d\n"));
    QTest::keyClick(&window_, Qt::Key_F5);
    QTest::qWait(200);
    EXPECT_EQ(readAll(places_.winePrefix() + "/wineboot.count"), QByteArray("wineboot\n"));
}

TEST_F(EngineLanguages, WhileThePrefixIsMadeAWindowSaysSo) {
    QFile::remove(places_.winePrefix() + "/system.reg");
    ScopedEnv slow("QUOVARA_STANDIN_WINEBOOT_MS", "1500");
    InstallPreparingNotice(&window_);
    const QString archive = archiveUnder("en_US.UTF-8", "plain.uha", {{"a.txt", "a"}});
    show();
    QString seen;
    QTimer::singleShot(700, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* d = qobject_cast<QProgressDialog*>(w);
            if (d && d->objectName() == "PreparingEngine" && d->isVisible())
                seen = d->labelText() + " | " + d->accessibleName();
        }
    });
    ASSERT_TRUE(window_.Form_Load(archive));
    SetPrefixPreparingNotice({});
    EXPECT_EQ(seen, QString::fromUtf8("Preparing the engine for its first use… | Preparing the "
                                      "engine for its first use…"));
    QTest::qWait(50);
    for (QWidget* w : QApplication::topLevelWidgets())
        EXPECT_FALSE(w->objectName() == "PreparingEngine" && w->isVisible());
    EXPECT_EQ(mirrored(), QStringList({"a.txt"}));
}

TEST_F(EngineLanguages, NoProcessOfThePrefixOutlivesTheSession) {
    for (const bool deaf : {false, true}) {
        ScopedEnv helpers("QUOVARA_STANDIN_WINE_HELPER_SECONDS", "60");
        // A server that does not answer "-k": what it leaves is ended all the same.
        ScopedEnv notAnswering("QUOVARA_STANDIN_WINESERVER_DEAF", deaf ? "1" : QByteArray());
        const QString archive = archiveUnder("en_US.UTF-8", "plain.uha", {{"a.txt", "a"}});
        ASSERT_TRUE(window_.Form_Load(archive));
        show();
        EXPECT_FALSE(ProcessesOfPrefix(places_.winePrefix()).isEmpty());
        // What the program does when it ends, by closing or by a signal.
        LauncherServer::Shutdown();
        EXPECT_TRUE(
            waitFor([&] { return ProcessesOfPrefix(places_.winePrefix()).isEmpty(); }, 5000))
            << deaf;
    }
}
