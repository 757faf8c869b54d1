// Add, extract and test jobs followed to the end against the stand-in engine: the window's
// controls and sizes, the bar, the texts and the time line while the job runs, the clean-up.
#include "progress_fixture.h"

#include "core/places.h"

#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

// What the window showed while its job ran.
struct Seen {
    QStringList jobTexts;
    QStringList sizesTexts;
    QStringList timeTexts;
    QList<int> barValues;

    void follow(frmProgress* w) {
        auto* job = w->findChild<QLineEdit*>("JobTxt");
        QObject::connect(job, &QLineEdit::textChanged, [this](const QString& t) { jobTexts << t; });
        if (auto* sizes = w->findChild<QLineEdit*>("ProgressTxt"))
            QObject::connect(sizes, &QLineEdit::textChanged,
                             [this](const QString& t) { sizesTexts << t; });
        QObject::connect(w->findChild<QLineEdit*>("TimeTxt"), &QLineEdit::textChanged,
                         [this](const QString& t) { timeTexts << t; });
        QObject::connect(w->findChild<QProgressBar*>("PB"), &QProgressBar::valueChanged,
                         [this](int v) { barValues << v; });
    }
};

class ProgressJobs : public ::testing::Test {
protected:
    JobBench bench;
};

} // namespace

TEST_F(ProgressJobs, TheWindowsOfOneKindShareOneIconForTheWholeSession) {
    // Made again for each job, an icon would be drawn and cached again for each window.
    QIcon first;
    {
        frmProgress w(*ProgressKindOf(JobKind::Test), *bench.main, bench.places.path() + "/a.uha");
        first = w.windowIcon();
    }
    ASSERT_FALSE(first.isNull());
    frmProgress again(*ProgressKindOf(JobKind::Test), *bench.main, bench.places.path() + "/a.uha");
    EXPECT_EQ(again.windowIcon().cacheKey(), first.cacheKey());
    frmProgress other(*ProgressKindOf(JobKind::Extract), *bench.main,
                      bench.places.path() + "/a.uha");
    EXPECT_NE(other.windowIcon().cacheKey(), first.cacheKey());
}

TEST_F(ProgressJobs, TheTableGivesEachWindowItsCaptionScriptAndControls) {
    struct Row {
        JobKind kind;
        const char* name;
        const char* caption;
        const char* script;
        bool sizes;
        QSize client;
        int frame2Top;
        int pbTop;
    };
    const Row rows[] = {
        {JobKind::Add, "frmAdding", "Adding ...", "Archivia.bat", true, {337, 145}, 96, 56},
        {JobKind::Extract,
         "frmExtracting",
         "Extracting ...",
         "Estrai.bat",
         false,
         {337, 129},
         80,
         40},
        {JobKind::Test, "frmTesting", "Testing ...", "Testing.bat", false, {335, 127}, 80, 40},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        // No script written: the window is looked at before its job could start.
        frmProgress w(*ProgressKindOf(r.kind), *bench.main, bench.places.path() + "/a.uha");
        EXPECT_EQ(w.objectName(), r.name);
        EXPECT_EQ(w.windowTitle(), r.caption);
        EXPECT_EQ(w.scriptPath(), WorkFolder() + "/" + r.script);
        EXPECT_EQ(w.size(), r.client);
        EXPECT_FALSE(w.windowIcon().isNull());
        auto* frame1 = w.findChild<QGroupBox*>("Frame1");
        auto* frame2 = w.findChild<QGroupBox*>("Frame2");
        ASSERT_TRUE(frame1 && frame2);
        EXPECT_EQ(frame1->title(), "Progress");
        EXPECT_EQ(frame1->geometry().topLeft(), QPoint(8, 8));
        EXPECT_EQ(frame1->width(), 321);
        EXPECT_EQ(frame2->title(), "Time");
        EXPECT_EQ(frame2->geometry(), QRect(8, r.frame2Top, 321, 41));
        auto* job = frame1->findChild<QLineEdit*>("JobTxt");
        auto* bar = frame1->findChild<QProgressBar*>("PB");
        auto* time = frame2->findChild<QLineEdit*>("TimeTxt");
        ASSERT_TRUE(job && bar && time);
        EXPECT_EQ(job->geometry(), QRect(8, 16, 305, 13));
        EXPECT_EQ(bar->geometry(), QRect(8, r.pbTop, 305, 17));
        EXPECT_EQ(time->geometry(), QRect(8, 16, 305, 19));
        EXPECT_TRUE(job->text().isEmpty());
        EXPECT_EQ(bar->value(), 0);
        EXPECT_EQ(time->text(),
                  "Total: 00:00:00       Remaining: 00:00:00       Elapsed: 00:00:00");
        auto* sizes = frame1->findChild<QLineEdit*>("ProgressTxt");
        EXPECT_EQ(sizes != nullptr, r.sizes);
        if (sizes) {
            EXPECT_EQ(sizes->geometry(), QRect(8, 32, 305, 13));
        }
        // The job line reads as a label: the window's own background.
        EXPECT_FALSE(job->hasFrame());
        auto* timer = w.findChild<QTimer*>("Timer1");
        ASSERT_TRUE(timer);
        EXPECT_EQ(timer->interval(), 1000);
        EXPECT_TRUE(timer->isActive());
    }
    EXPECT_EQ(ProgressKindOf(JobKind::List), nullptr);
    EXPECT_EQ(ProgressKindOf(JobKind::SfxBuild), nullptr);
}

TEST_F(ProgressJobs, AnAddJobIsFollowedToTheEnd) {
    bench.makeSource(8, 40000);
    const QString archive = bench.places.path() + "/out/new.uha";
    QDir().mkpath(bench.places.path() + "/out");
    bench.writeAddScript(archive);
    bench.setDelay(300); // over two seconds: a tick sees a second boundary and a per cent
    bench.main->show();
    Seen seen;
    frmProgress* w = bench.open(JobKind::Add);
    seen.follow(w);
    EXPECT_EQ(w->archivePath(), archive);
    EXPECT_EQ(w->workingFolder(), bench.places.path() + "/out");
    // Mid-job: the engine's temporary archive stands beside the target.
    ASSERT_TRUE(WaitFor([&] { return !seen.jobTexts.isEmpty(); }));
    EXPECT_TRUE(w->jobRunning());
    EXPECT_TRUE(QFile::exists(bench.places.path() + "/out/UHA$0000.$$$"));
    ASSERT_TRUE(bench.waitUnloaded(w));

    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    EXPECT_TRUE(QFileInfo(archive).isFile());
    EXPECT_FALSE(QFile::exists(bench.places.path() + "/out/UHA$0000.$$$"));
    EXPECT_FALSE(QFile::exists(WorkFile(names::ConsoleOutput)));
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_EQ(w->runs(), 1);
    // The add job makes its archive the current one.
    EXPECT_EQ(bench.main->lister().listing().archivePath, archive);

    // Every file went by in the job line; the bar and the sizes line moved with it.
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(seen.jobTexts.join('|').contains(QStringLiteral("f0%1.bin").arg(i)))
            << seen.jobTexts.join('|').toStdString();
    EXPECT_TRUE(seen.jobTexts.first().startsWith("Adding "));
    EXPECT_EQ(seen.jobTexts.last().size(), 39);
    ASSERT_FALSE(seen.barValues.isEmpty());
    EXPECT_GT(seen.barValues.last(), 50);
    EXPECT_TRUE(std::is_sorted(seen.barValues.begin(), seen.barValues.end()));
    ASSERT_FALSE(seen.sizesTexts.isEmpty());
    EXPECT_TRUE(seen.sizesTexts.last().startsWith("Progress: "));
    EXPECT_TRUE(seen.sizesTexts.last().contains(" MB (Packed  "));
    EXPECT_TRUE(seen.sizesTexts.last().contains(" MB) of 0.3 MB Ratio: ")); // 320000 bytes
    // The time line changed at a tick once a per cent was known.
    ASSERT_FALSE(seen.timeTexts.isEmpty());
    EXPECT_TRUE(seen.timeTexts.last().startsWith("Total: 00:00:0"));
    EXPECT_TRUE(seen.timeTexts.last().contains("       Remaining: "));
    EXPECT_TRUE(seen.timeTexts.last().contains("       Elapsed: 00:00:0"));
}

TEST_F(ProgressJobs, AnExtractJobIsFollowedToTheEndInTheArchivesFolder) {
    bench.makeSource(6, 30000);
    const QString archive = bench.makeArchive(kSix, "six.uha");
    bench.writeExtractScript(archive, QString()); // "Extract files to current dir"
    bench.setDelay(400);
    bench.main->show();
    Seen seen;
    frmProgress* w = bench.open(JobKind::Extract);
    seen.follow(w);
    EXPECT_EQ(w->archivePath(), archive);
    EXPECT_EQ(w->workingFolder(), bench.places.path());
    ASSERT_TRUE(bench.waitUnloaded(w));

    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    for (int i = 0; i < 6; ++i) {
        const QString name = QStringLiteral("/f0%1.bin").arg(i);
        EXPECT_EQ(readAll(bench.places.path() + name), readAll(bench.src + name)) << i;
    }
    EXPECT_FALSE(QFile::exists(WorkFile(names::ConsoleOutput)));
    EXPECT_TRUE(bench.main->isVisible());
    // The first file's own line is the twelfth header line: its name shows with the line
    // that ends it, together with the next file's line in the same round.
    for (int i = 1; i < 6; ++i)
        EXPECT_TRUE(seen.jobTexts.contains(QStringLiteral("Extracting f0%1.bin").arg(i)))
            << seen.jobTexts.join('|').toStdString();
    // The bar went up with the per cent of the progress lines.
    EXPECT_TRUE(seen.barValues.contains(50)) << seen.barValues.size();
    ASSERT_FALSE(seen.timeTexts.isEmpty());
    EXPECT_TRUE(seen.timeTexts.last().contains("Elapsed: 00:00:0"));
}

TEST_F(ProgressJobs, VerifyInTheMainWindowRunsTheTestWindowToItsEnd) {
    bench.makeSource(5, 20000);
    const QString archive = bench.makeArchive(kSix, "six.uha");
    bench.main->OpenItem(archive);
    ASSERT_TRUE(bench.main->archiveLayout());
    bench.main->show();
    bench.setDelay(150);

    QStringList jobTexts;
    QString caption;
    bool modal = false;
    // The window is modal: what it shows is looked at from a timer while Verify waits.
    QTimer probe;
    probe.setInterval(20);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        auto* w = bench.main->findChild<frmProgress*>("frmTesting");
        if (!w)
            return;
        caption = w->windowTitle();
        modal = w->isModal();
        const QString t = w->findChild<QLineEdit*>("JobTxt")->text();
        if (jobTexts.isEmpty() || jobTexts.last() != t)
            jobTexts << t;
    });
    probe.start();
    bench.main->ButtonClick(6);
    probe.stop();

    EXPECT_EQ(caption, "Testing ...");
    EXPECT_TRUE(modal);
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"information: No errors found during test operation"}));
    EXPECT_TRUE(jobTexts.join('|').contains("Testing f02.bin")) << jobTexts.join('|').toStdString();
    EXPECT_EQ(bench.main->findChild<frmProgress*>(), nullptr); // gone once Verify returns
    EXPECT_FALSE(QFile::exists(WorkFile(names::ConsoleOutput)));
    EXPECT_TRUE(bench.main->isVisible());
}

TEST_F(ProgressJobs, TheTestWindowTakesTheMainWindowsIconAtUnload) {
    bench.makeSource(2, 1000);
    const QString archive = bench.makeArchive(kSix, "six.uha");
    bench.writeTestScript(archive);
    bench.main->setWindowIcon(QIcon(":/icons/quovara.svg"));
    frmProgress* w = bench.open(JobKind::Test);
    const qint64 before = w->windowIcon().cacheKey();
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_NE(w->windowIcon().cacheKey(), before);
    EXPECT_EQ(w->windowIcon().cacheKey(), bench.main->windowIcon().cacheKey());
}

TEST_F(ProgressJobs, RunJobWindowReturnsOnlyWhenTheWindowHasClosed) {
    bench.makeSource(4, 1000);
    const QString archive = bench.makeArchive(kSix, "six.uha");
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    bench.setDelay(100);
    bool sawWindow = false;
    QTimer probe;
    probe.setInterval(10);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        if (bench.main->findChild<frmProgress*>("frmExtracting"))
            sawWindow = true;
    });
    probe.start();
    RunJobWindow(JobKind::Extract, *bench.main);
    EXPECT_TRUE(sawWindow);
    EXPECT_TRUE(QFileInfo(bench.places.path() + "/dest/f03.bin").isFile());
    EXPECT_TRUE(bench.prompter.shown.isEmpty());
}

TEST_F(ProgressJobs, AnExtractOutputOfFewerThanThirteenLinesNeverMovesTheBar) {
    // A stand-in engine of our own: twelve lines, the last one with a per cent in place.
    const QString engine = bench.programFile("uharc.exe");
    QFile::remove(engine);
    QByteArray line = QByteArray("Extracting x") + QByteArray(63, ' ') + " 50%";
    QByteArray out;
    for (int i = 0; i < 11; ++i)
        out += "header\r\n";
    out += line;
    writeFile(bench.places.path() + "/twelve.out", out);
    writeExecutable(engine, "#!/bin/sh\ncat '" +
                                (bench.places.path() + "/twelve.out").toLocal8Bit() +
                                "'\nsleep 0.3\n");
    bench.writeExtractScript(bench.places.path() + "/x.uha", bench.places.path() + "/dest");
    Seen seen;
    frmProgress* w = bench.open(JobKind::Extract);
    seen.follow(w);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_TRUE(seen.barValues.isEmpty());
    EXPECT_TRUE(seen.jobTexts.isEmpty());
    EXPECT_TRUE(bench.prompter.shown.isEmpty());
}

TEST_F(ProgressJobs, TheArchiveOfAJobIsTheOneItsScriptNames) {
    bench.makeSource(2, 1000);
    const QString listed = bench.makeArchive(kSix, "listed.uha");
    QDir().mkpath(bench.places.path() + "/other");
    const QString other = bench.places.path() + "/other/picked.uha";
    QFile::copy(listed, other);
    bench.main->OpenItem(listed);
    ASSERT_EQ(bench.main->lister().listing().archivePath, listed);
    // Verify in the file-system layout tests the browser's selected archive, not the listed one.
    bench.writeTestScript(other);
    frmProgress* w = bench.open(JobKind::Test);
    EXPECT_EQ(w->archivePath(), other);
    EXPECT_EQ(w->workingFolder(), bench.places.path() + "/other");
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"information: No errors found during test operation"}));
    // The caller may name the archive itself.
    frmProgress named(*ProgressKindOf(JobKind::Extract), *bench.main, listed);
    EXPECT_EQ(named.archivePath(), listed);
    // Without a script or a name, the main window's archive.
    QFile::remove(WorkFile(names::ExtractScript));
    frmProgress fallback(*ProgressKindOf(JobKind::Extract), *bench.main, QString());
    EXPECT_EQ(fallback.archivePath(), listed);
}
