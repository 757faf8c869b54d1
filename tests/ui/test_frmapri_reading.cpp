// The main window while an archive is read: the window stays live and counts entries, takes
// no input but what stops the reading, and Escape, closing or a signal end the engine.
#include "mainwindow_fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

#include <csignal>

using namespace quovara;
using namespace quovara::testing;

namespace {

// An engine that never ends while it lists, for the jobs started while this lives.
class HangingEngine : public ScopedEnv {
public:
    HangingEngine() : ScopedEnv("QUOVARA_STANDIN_FAULT", "hang") {}
};

// The pid of the running stand-in list job of this test's program folder, or 0.
qint64 runningListJob(const QString& programFolder) {
    const QDir proc("/proc");
    for (const QString& pid : proc.entryList(QDir::Dirs)) {
        bool number = false;
        const qint64 id = pid.toLongLong(&number);
        if (!number)
            continue;
        QFile cmdline("/proc/" + pid + "/cmdline");
        if (cmdline.open(QIODevice::ReadOnly) &&
            cmdline.readAll().startsWith((programFolder + "/uharc.exe").toLocal8Bit()))
            return id;
    }
    return 0;
}

// Calls `act` with the pid of the stand-in list job once it runs. It looks from a repeating
// timer, never from a wait of its own, so that whatever event loop the window is in when the
// timer fires can end and let the listing go on.
void whenListJobRuns(const QString& programFolder, std::function<void(qint64)> act) {
    auto* poll = new QTimer;
    poll->setInterval(20);
    QObject::connect(poll, &QTimer::timeout, [poll, programFolder, act] {
        if (const qint64 engine = runningListJob(programFolder)) {
            poll->stop();
            poll->deleteLater();
            act(engine);
        }
    });
    poll->start();
}

} // namespace

TEST_F(MainWindow, AnArchiveFromTheCommandLineIsReadWithTheWindowShownAndEscapeStopsIt) {
    const QString archive = makeArchive(kSix, "endless.uha");
    HangingEngine hang;
    QString titleWhileReading, stateWhileReading;
    bool visibleWhileReading = false;
    qint64 engine = 0;
    whenListJobRuns(places_.programFolder(), [&](qint64 running) {
        engine = running;
        titleWhileReading = window_.windowTitle();
        stateWhileReading = text("Stato") + "|" + text("Consiglio");
        visibleWhileReading = window_.isVisible();
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_))
            ADD_FAILURE() << "the window never became active";
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window_,
                        Qt::Key_Escape);
    });
    QElapsedTimer t;
    t.start();
    EXPECT_TRUE(window_.Form_Load(archive));
    EXPECT_LT(t.elapsed(), 10000);
    EXPECT_TRUE(visibleWhileReading);
    EXPECT_EQ(titleWhileReading,
              QString::fromUtf8("Reading endless.uha … — Quovara — demonstration engine"));
    EXPECT_EQ(stateWhileReading, "Quovara is reading the archive|Press Escape to stop");
    ASSERT_GT(engine, 0);
    EXPECT_TRUE(waitFor([&] { return ::kill(pid_t(engine), 0) != 0; }));
    // Stopped by the user: no message, no archive layout, the title as before.
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_FALSE(archiveLayout());
    EXPECT_EQ(window_.windowTitle(), QString::fromUtf8("Quovara — demonstration engine"));
}

TEST_F(MainWindow, WhileAnArchiveIsReadTheWindowTakesNoInputButWhatStopsTheReading) {
    const QString endless = makeArchive(kSix, "endless.uha");
    const QString second = makeArchive(kSix, "second.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    window_.fileView()->setFolder(places_.path());
    QAbstractItemView* list = window_.fileView()->currentView();
    ASSERT_TRUE(waitFor([&] { return list->model()->rowCount(list->rootIndex()) >= 2; }));
    list->setFocus();
    auto hang = std::make_unique<HangingEngine>();
    QWidget* focusBefore = nullptr;
    QWidget* focusAfter = nullptr;
    QString selectedWhileReading = "not looked at";
    whenListJobRuns(places_.programFolder(), [&](qint64) {
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_))
            ADD_FAILURE() << "the window never became active";
        focusBefore = QApplication::focusWidget();
        // A double-click on another archive, the toolbar's Add, Back, Tab: none of them acts.
        clickItem(second, true);
        clickToolbar(3);
        QTest::keyClick(list, Qt::Key_Backspace);
        QTest::keyClick(list, Qt::Key_Tab);
        focusAfter = QApplication::focusWidget();
        selectedWhileReading = window_.fileView()->selectedPath();
        // Escape still stops the reading.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    window_.OpenItem(endless);
    EXPECT_TRUE(selectedWhileReading.isEmpty()) << selectedWhileReading.toStdString();
    EXPECT_EQ(focusAfter, focusBefore);
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_EQ(window_.lister().listing().archivePath, endless);
    EXPECT_EQ(QDir(window_.fileView()->folder()), QDir(places_.path()));
    EXPECT_FALSE(archiveLayout());
    // Once the reading has stopped, the window takes input again.
    hang.reset();
    clickItem(second, true);
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(window_.lister().listing().archivePath, second);
}

TEST_F(MainWindow, ClosingTheWindowWhileAnArchiveIsReadEndsTheEngineAndTheProgram) {
    const QString archive = makeArchive(kSix, "endless.uha");
    HangingEngine hang;
    qint64 engine = 0;
    whenListJobRuns(places_.programFolder(), [&](qint64 running) {
        engine = running;
        window_.close();
    });
    EXPECT_FALSE(window_.Form_Load(archive));
    ASSERT_GT(engine, 0);
    EXPECT_TRUE(waitFor([&] { return ::kill(pid_t(engine), 0) != 0; }));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(MainWindow, EndingTheProgramWithASignalEndsTheEngineItWasWaitingFor) {
    const QString archive = makeArchive(kSix, "endless.uha");
    for (const int signal : {SIGTERM, SIGINT}) {
        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QUOVARA_STANDIN_FAULT", "hang");
        env.insert("QT_QPA_PLATFORM", "offscreen");
        // A runtime folder of its own: its single-copy lock is nobody else's.
        const QString runtime = places_.path() + "/run";
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        env.insert("XDG_RUNTIME_DIR", runtime);
        program.setProcessEnvironment(env);
        program.start(QUOVARA_PROGRAM, {archive});
        ASSERT_TRUE(program.waitForStarted());
        qint64 engine = 0;
        ASSERT_TRUE(
            waitFor([&] { return (engine = runningListJob(places_.programFolder())) != 0; }));
        ::kill(pid_t(program.processId()), signal);
        EXPECT_TRUE(program.waitForFinished(10000));
        EXPECT_EQ(program.exitCode(), 128 + signal);
        EXPECT_TRUE(waitFor([&] { return ::kill(pid_t(engine), 0) != 0; })) << signal;
    }
}

TEST_F(MainWindow, TheWindowStaysLiveAndCountsEntriesWhileABigArchiveIsRead) {
    // An engine that answers with the listing of 40,000 entries in 40 folders.
    const int count = 40000;
    QList<QByteArray> names;
    for (int i = 0; i < count; ++i)
        names << "d" + QByteArray::number(i % 40) + "\\f" + QByteArray::number(i) + ".txt";
    const QByteArray log = ListingLogOf(names);
    const QString logFile = places_.path() + "/big.log";
    writeFile(logFile, log);
    const QString archive = places_.path() + "/big.uha";
    writeFile(archive, "UHA");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    // In place of the engine once the start-up has put its engine in place.
    const QString engine = places_.programFolder() + "/uharc.exe";
    QFile::remove(engine);
    writeExecutable(engine, "#!/bin/sh\nfor a in \"$@\"; do case \"$a\" in -lg*) cat '" +
                                logFile.toUtf8() + "' >> \"${a#-lg}\";; esac; done\n");
    QStringList states, titles;
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer probe;
    probe.setInterval(10);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        longestGap = std::max(longestGap, sinceTick.restart());
        const QString s = text("Stato");
        if (states.isEmpty() || states.last() != s)
            states << s;
        if (titles.isEmpty() || titles.last() != window_.windowTitle())
            titles << window_.windowTitle();
    });
    sinceTick.start();
    probe.start();
    window_.OpenItem(archive);
    probe.stop();
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(text("NomeAr"), "Files: 40000");
    // The window's own loop ran while the tree was made, and it showed the count.
    EXPECT_TRUE(states.filter(QRegularExpression("^Quovara is reading the archive: \\d+ entries$"))
                    .size() >= 1)
        << states.join('|').toStdString();
    // The task pane was hidden (the archive was opened from a folder): the title counts too.
    EXPECT_TRUE(titles
                    .filter(QRegularExpression(QString::fromUtf8(
                        "^Reading big\\.uha … \\d+ entries — Quovara — demonstration engine$")))
                    .size() >= 1)
        << titles.join('|').toStdString();
    EXPECT_EQ(window_.windowTitle(), QString::fromUtf8("big.uha — Quovara — demonstration engine"));
    std::printf("longest gap between two runs of the event loop while listing: %lld ms\n",
                static_cast<long long>(longestGap));
}
