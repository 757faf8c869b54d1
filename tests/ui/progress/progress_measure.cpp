// Measurements and pictures of the progress windows on a live job (not a test):
//   progress_measure cpu [seconds]      processor use of the program while a job runs
//   progress_measure latency [lines]    time from a progress line written to its showing
//   progress_measure shot KIND FILE     a picture of the window of KIND (add, extract, test)
//                                       mid-job, taken from the screen (run under Xvfb)
//   progress_measure tray FILE          the real notification-area icon (run under Xvfb with a
//                                       tray host): minimise, picture, left click, restore
#include "progress_fixture.h"

#include "core/places.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmap>
#include <QProcess>
#include <QProgressBar>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTest>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>

using namespace quovara;
using namespace quovara::testing;

namespace {

double cpuSeconds() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return u.ru_utime.tv_sec + u.ru_utime.tv_usec / 1e6 + u.ru_stime.tv_sec +
           u.ru_stime.tv_usec / 1e6;
}

// An extract job of about `seconds` seconds with the stand-in engine: one file every 200 ms.
int measureCpu(int seconds) {
    JobBench bench;
    const int files = std::max(5, seconds * 5);
    bench.makeSource(files, 4000);
    const QString archive = bench.makeArchive(kSix, "cpu.uha");
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    bench.setDelay(200);
    bench.main->show();

    QElapsedTimer wall;
    wall.start();
    const double cpu0 = cpuSeconds();
    frmProgress* w = bench.open(JobKind::Extract);
    int barChanges = 0;
    QObject::connect(w->findChild<QProgressBar*>("PB"), &QProgressBar::valueChanged,
                     [&](int) { ++barChanges; });
    if (!bench.waitUnloaded(w, (seconds + 60) * 1000)) {
        std::printf("the job did not end\n");
        return 1;
    }
    const double cpu = cpuSeconds() - cpu0;
    const double secs = wall.elapsed() / 1000.0;
    const qsizetype extracted =
        QDir(bench.places.path() + QStringLiteral("/dest")).entryList(QDir::Files).size();
    if (extracted < files) {
        // TerminateProcessByName of another Quovara test run on this machine ends the first
        // "uharc.exe" it finds: the figures of a cut job mean nothing.
        std::printf("the job was cut short after %.1f s (%lld of %d files): run it again on a "
                    "quiet machine\n",
                    secs, static_cast<long long>(extracted), files);
        return 1;
    }
    std::printf("job: extract of %d files, %.1f s, %d bar changes, messages: %s\n", files, secs,
                barChanges, qPrintable(bench.prompter.shown.join(QStringLiteral(" | "))));
    std::printf("program processor time while the job ran: %.3f s of %.1f s = %.2f %% of one "
                "core (limit 5 %%)\n",
                cpu, secs, 100.0 * cpu / secs);
    return 100.0 * cpu / secs < 5.0 ? 0 : 2;
}

// An engine of our own writes twelve header lines, then one progress line every 250 ms that
// carries the time it was written (ms since the epoch); the time it shows is noted.
int measureLatency(int lines) {
    JobBench bench;
    const QString engine = bench.programFile(QStringLiteral("uharc.exe"));
    QFile::remove(engine);
    QByteArray script = "#!/bin/sh\n"
                        "i=0; while [ $i -lt 12 ]; do printf 'header\\r\\n'; i=$((i+1)); done\n"
                        "n=0; while [ $n -lt LINES ]; do\n"
                        "  sleep 0.25\n"
                        "  printf 'Extracting stamp %s%45s 50%%\\r' $(date +%s%3N) ''\n"
                        "  n=$((n+1))\n"
                        "done\n";
    script.replace("LINES", QByteArray::number(lines));
    writeExecutable(engine, script);
    bench.writeExtractScript(bench.places.path() + "/x.uha", bench.places.path() + "/dest");
    frmProgress* w = bench.open(JobKind::Extract);
    QList<qint64> latencies;
    QObject::connect(w->findChild<QLineEdit*>(QStringLiteral("JobTxt")), &QLineEdit::textChanged,
                     [&](const QString& text) {
                         const qint64 now = QDateTime::currentMSecsSinceEpoch();
                         const QString stamp = text.section(QLatin1Char(' '), 2, 2);
                         bool ok = false;
                         const qint64 written = stamp.toLongLong(&ok);
                         if (ok)
                             latencies << now - written;
                     });
    if (!bench.waitUnloaded(w, lines * 1000 + 30000)) {
        std::printf("the job did not end\n");
        return 1;
    }
    if (latencies.isEmpty()) {
        std::printf("no progress line was seen: %s\n",
                    qPrintable(bench.prompter.shown.join(QStringLiteral(" | "))));
        return 1;
    }
    if (latencies.size() < lines / 2) {
        std::printf("the job was cut short (%lld of %d lines shown): run it again on a quiet "
                    "machine\n",
                    static_cast<long long>(latencies.size()), lines);
        return 1;
    }
    std::sort(latencies.begin(), latencies.end());
    qint64 sum = 0;
    for (qint64 l : latencies)
        sum += l;
    std::printf("progress lines shown: %lld of %d\n", static_cast<long long>(latencies.size()),
                lines);
    std::printf("latency from written to shown: min %lld ms, median %lld ms, mean %lld ms, "
                "max %lld ms (limit 200 ms)\n",
                static_cast<long long>(latencies.first()),
                static_cast<long long>(latencies.at(latencies.size() / 2)),
                static_cast<long long>(sum / latencies.size()),
                static_cast<long long>(latencies.last()));
    return latencies.last() < 200 ? 0 : 2;
}

// Starts a job of `kind` with the engine's delay and waits until it is well under way.
frmProgress* startShownJob(JobBench& bench, const QString& kind, int files = 12) {
    bench.makeSource(files, 200000);
    bench.setDelay(400);
    JobKind k = JobKind::Extract;
    if (kind == QLatin1String("add")) {
        k = JobKind::Add;
        QDir().mkpath(bench.places.path() + "/Backups");
        bench.writeAddScript(bench.places.path() + "/Backups/photos.uha");
    } else {
        const QString archive = bench.makeArchive(kSix, QStringLiteral("photos.uha"));
        if (kind == QLatin1String("test")) {
            k = JobKind::Test;
            bench.writeTestScript(archive);
        } else {
            bench.writeExtractScript(archive, bench.places.path() + "/Restored");
        }
    }
    frmProgress* w = bench.open(k);
    w->move(40, 40);
    auto* bar = w->findChild<QProgressBar*>(QStringLiteral("PB"));
    auto* time = w->findChild<QLineEdit*>(QStringLiteral("TimeTxt"));
    const QString initial = time->text();
    WaitFor([&] { return bar->value() >= 40 && time->text() != initial; }, 30000);
    return w;
}

int takeShot(const QString& kind, const QString& file) {
    JobBench bench;
    frmProgress* w = startShownJob(bench, kind);
    QTest::qWait(100);
    // From the screen, so that what is seen is what the display server shows.
    QScreen* screen = w->screen();
    QPixmap shot = screen->grabWindow(0, w->frameGeometry().x(), w->frameGeometry().y(),
                                      w->frameGeometry().width(), w->frameGeometry().height());
    if (shot.isNull() || shot.size().isEmpty())
        shot = w->grab();
    const bool saved = shot.save(file);
    std::printf("%s: %s, %dx%d\n", qPrintable(file), saved ? "saved" : "NOT saved", shot.width(),
                shot.height());
    w->close();
    return saved ? 0 : 1;
}

// The real icon: needs a display with a notification-area host (e.g. trayer under Xvfb).
int checkTray(const QString& file) {
    SetTrayIconFactory({});
    std::printf("notification area available: %s\n",
                QSystemTrayIcon::isSystemTrayAvailable() ? "yes" : "no");
    JobBench bench;
    SetTrayIconFactory({}); // the real icon, not the bench's double
    bench.main->resize(500, 300);
    bench.main->move(300, 200);
    bench.main->show();
    frmProgress* w = startShownJob(bench, QStringLiteral("extract"), 40);
    const qint64 pid = w->jobProcessId();
    // Minimised through the window manager, as the title bar's button does.
    QProcess::execute(QStringLiteral("xdotool"),
                      {QStringLiteral("search"), QStringLiteral("--name"),
                       QStringLiteral("^Extracting \\.\\.\\.$"), QStringLiteral("windowminimize")});
    WaitFor([&] { return !w->isVisible(); }, 5000);
    QTest::qWait(1500); // a tip refresh or two
    std::printf("after minimising: progress window visible %d, main window visible %d, icon "
                "shown %d, trayUsed %d\n",
                w->isVisible(), bench.main->isVisible(), w->trayIcon().isShown(), TrayUsed());
    // The pointer over the icon (QUOVARA_TRAY_CLICK=x,y: where the host shows it) brings the
    // tip up; the picture shows the icon and its tip.
    const QString click = qEnvironmentVariable("QUOVARA_TRAY_CLICK");
    const QStringList xy = click.split(QLatin1Char(','));
    if (!click.isEmpty()) {
        QProcess::execute(QStringLiteral("xdotool"),
                          {QStringLiteral("mousemove"), xy.value(0), xy.value(1)});
        QTest::qWait(2500);
    }
    QScreen* screen = QGuiApplication::primaryScreen();
    const QPixmap shot = screen->grabWindow(0);
    shot.save(file);
    std::printf("%s: the screen with the icon\n", qPrintable(file));
    // A left click on the icon, through the display server.
    if (!click.isEmpty()) {
        QProcess::execute(QStringLiteral("xdotool"),
                          {QStringLiteral("click"), QStringLiteral("1")});
        WaitFor([&] { return w->isVisible() || w->isUnloaded(); }, 5000);
        std::printf("after a left click at %s: progress window visible %d, main window "
                    "visible %d, icon shown %d, same job %d, runs %d\n",
                    qPrintable(click), w->isVisible(), bench.main->isVisible(),
                    w->trayIcon().isShown(), w->jobProcessId() == pid, w->runs());
    }
    std::printf("tip: %s\n",
                qPrintable(TrayTipText(w->timeState().percent, w->timeState().remainingSeconds)));
    w->close();
    std::printf("after closing: icon shown %d\n", w->trayIcon().isShown());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const QString mode = args.value(0);
    if (mode == QLatin1String("cpu"))
        return measureCpu(args.value(1, QStringLiteral("20")).toInt());
    if (mode == QLatin1String("latency"))
        return measureLatency(args.value(1, QStringLiteral("40")).toInt());
    if (mode == QLatin1String("shot") && args.size() == 3)
        return takeShot(args.at(1), args.at(2));
    if (mode == QLatin1String("tray") && args.size() == 2)
        return checkTray(args.at(1));
    std::fprintf(stderr, "usage: progress_measure cpu [seconds] | latency [lines] | "
                         "shot add|extract|test FILE | tray FILE\n");
    return 64;
}
