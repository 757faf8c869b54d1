// A long session of the main window with the stand-in engine (offscreen unless QT_QPA_PLATFORM
// names another platform): the same jobs one after another, in turn F5 (the archive read
// again), Verify (the test job in its progress window), Extract all (the Extract dialog's OK,
// then the extract job), a search (typed, Enter, then Back), and leaving the archive (Back) and
// opening it again (a double-click on it). Every 100 jobs it prints the resident memory, the C
// library's heap in use and free, the open files, the threads, the child processes and the
// entries of the work folder; at the end the slope of the resident memory in MiB per 100 jobs
// after the first 100 (least squares), and what the jobs after the first 100 added. The exit
// status is 1 when a job failed or those jobs added more than 2 MiB per 1,000.
// Usage: soak_window [jobs, default 1100] [entries of the archive, default 2000]
// Everything is made in a temporary folder (under $SOAK_DIR when set), removed at the end.
#include "controls/uctoolbar.h"
#include "core/places.h"
#include "core/prompter.h"
#include "ui/browser/filebrowser.h"
#include "ui/browser/findfile.h"
#include "ui/browser/frmapri.h"
#include "ui/common/foldertree.h"
#include "window_bench.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace quovara;
using namespace quovara::bench;

namespace {

// A line of /proc/self/status as a number ("VmRSS" in KiB, "Threads").
long statusValue(const char* key) {
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::string wanted = std::string(key) + ":";
    while (std::getline(status, line)) {
        if (line.rfind(wanted, 0) == 0)
            return std::stol(line.substr(wanted.size()));
    }
    return -1;
}

double residentMiB() {
    return statusValue("VmRSS") / 1024.0;
}

int entriesOf(const QString& folder, bool recursive) {
    int n = 0;
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (it.hasNext()) {
        it.next();
        ++n;
    }
    return n;
}

// The children of every thread of the process (the engines and scripts still running).
int childProcessCount() {
    int n = 0;
    QDirIterator tasks(QStringLiteral("/proc/self/task"), QDir::Dirs | QDir::NoDotAndDotDot);
    while (tasks.hasNext()) {
        QFile children(tasks.next() + QStringLiteral("/children"));
        if (!children.open(QIODevice::ReadOnly))
            continue;
        const QByteArray ids = children.readAll().simplified();
        if (!ids.isEmpty())
            n += int(ids.count(' ')) + 1;
    }
    return n;
}

// The least-squares slope of `ys` over `xs`.
double slope(const std::vector<double>& xs, const std::vector<double>& ys) {
    const double n = double(xs.size());
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    for (size_t i = 0; i < xs.size(); ++i) {
        sx += xs[i];
        sy += ys[i];
        sxx += xs[i] * xs[i];
        sxy += xs[i] * ys[i];
    }
    const double d = n * sxx - sx * sx;
    return d == 0 ? 0 : (n * sxy - sx * sy) / d;
}

class Soak {
public:
    Soak(frmApri& window, BenchPrompter& prompter, const QString& archive, const QString& out)
        : w_(window), prompter_(prompter), archive_(archive), out_(out) {}

    // Runs job number `n` (from 0) of the cycle; false when it did not do what it should.
    bool run(int n) {
        // A job window that closed leaves no window active: the keys go to the main window.
        if (QApplication::activeWindow() != &w_) {
            w_.activateWindow();
            if (!QTest::qWaitForWindowActive(&w_))
                return false;
        }
        switch (n % 5) {
        case 0:
            return relist();
        case 1:
            return verify();
        case 2:
            return extractAll();
        case 3:
            return search();
        default:
            return leaveAndReopen();
        }
    }
    static const char* name(int n) {
        static const char* const names[] = {"F5", "Verify", "Extract all", "search",
                                            "leave and reopen"};
        return names[n % 5];
    }

    bool open() {
        QAbstractItemView* view = w_.fileView()->currentView();
        QModelIndex index;
        if (!WaitFor([&] {
                index = w_.fileView()->indexOf(archive_);
                return index.isValid() && !view->visualRect(index).isEmpty();
            }))
            return false;
        const QPoint at = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
        return WaitFor([&] { return w_.archiveLayout(); });
    }

private:
    // A click on the toolbar's button `id`, as the user makes it.
    void clickToolbar(int id) {
        auto* toolbar = w_.findChild<ucToolbar*>(QStringLiteral("ucToolbar1"));
        QTest::mouseClick(toolbar, Qt::LeftButton, {}, toolbar->ButtonRect(id).center());
    }

    bool relist() {
        // A placeholder removed before the key is back after it: the archive was read again.
        const QString probe = ScratchFolder() + QStringLiteral("/d000/s0/f000000.txt");
        QFile::remove(probe);
        QTest::keyClick(&w_, Qt::Key_F5);
        return QFileInfo(probe).isFile() && w_.archiveLayout();
    }

    bool verify() {
        const int before = prompter_.shown.size();
        clickToolbar(6); // Verify
        return prompter_.shown.size() == before + 1 &&
               prompter_.shown.last() ==
                   QStringLiteral("information: No errors found during test operation");
    }

    bool extractAll() {
        QDir(out_).removeRecursively();
        QDir().mkpath(out_);
        bool driven = false;
        QTimer poll;
        poll.setInterval(10);
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || dialog->objectName() != QLatin1String("frmEstrai") ||
                !dialog->isVisible())
                return;
            poll.stop();
            auto* tree = dialog->findChild<FolderTree*>(QStringLiteral("FolderView1"));
            if (!tree || !tree->selectPath(out_, 2000)) {
                dialog->reject();
                return;
            }
            for (const char* box : {"Check3", "Check1"}) { // full paths, overwrite
                auto* check = dialog->findChild<QCheckBox*>(QLatin1String(box));
                if (check && !check->isChecked())
                    QTest::mouseClick(check, Qt::LeftButton);
            }
            driven = true;
            QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("Command2")),
                              Qt::LeftButton);
        });
        poll.start();
        clickToolbar(4); // Extract
        return driven && QFileInfo(out_ + QStringLiteral("/d000/s0/f000000.txt")).isFile();
    }

    bool search() {
        auto* box = w_.findChild<QLineEdit*>(QStringLiteral("TxtCerca"));
        auto* results = w_.findChild<QTreeView*>(QStringLiteral("Trovati"));
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("f0001"));
        QTest::keyClick(box, Qt::Key_Return);
        if (!WaitFor([&] { return !w_.findFile().isSearching(); }))
            return false;
        const int rows = results->model()->rowCount();
        results->setFocus();
        QTest::keyClick(results, Qt::Key_Backspace);
        if (rows != 100 || !results->isHidden())
            std::fprintf(stderr, "search: %d rows, results %s, active window %s\n", rows,
                         results->isHidden() ? "hidden" : "shown",
                         QApplication::activeWindow()
                             ? qPrintable(QApplication::activeWindow()->objectName())
                             : "none");
        return rows == 100 && results->isHidden();
    }

    bool leaveAndReopen() {
        const QString folder = QFileInfo(archive_).absolutePath();
        clickToolbar(1); // Back
        if (w_.archiveLayout() || QDir(w_.fileView()->folder()) != QDir(folder))
            return false;
        return open();
    }

    frmApri& w_;
    BenchPrompter& prompter_;
    QString archive_;
    QString out_;
};

// The archive's source: `count` small files, 100 to a folder, 10 folders to a folder.
bool makeSource(const QString& root, int count) {
    for (int i = 0; i < count; ++i) {
        const QString folder =
            root +
            QStringLiteral("/d%1/s%2").arg(i / 1000, 3, 10, QLatin1Char('0')).arg((i / 100) % 10);
        if (i % 100 == 0 && !QDir().mkpath(folder))
            return false;
        QFile f(folder + QStringLiteral("/f%1.txt").arg(i, 6, 10, QLatin1Char('0')));
        if (!f.open(QIODevice::WriteOnly) || f.write(QByteArray("entry ") + QByteArray::number(i) +
                                                     QByteArray(i % 200, 'x') + "\n") < 0)
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const int jobs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1100;
    const int count = argc > 2 ? std::max(200, std::atoi(argv[2])) : 2000;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir dir(qEnvironmentVariableIsSet("SOAK_DIR")
                          ? qEnvironmentVariable("SOAK_DIR") + QStringLiteral("/soak-XXXXXX")
                          : QDir::tempPath() + QStringLiteral("/quovara-soak-XXXXXX"));
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 2;
    }
    const QString base = dir.path();
    // The lock is let go when the program ends, after the temporary folder has gone.
    const QString lock =
        QDir::tempPath() +
        QStringLiteral("/quovara-soak-%1.lock").arg(QCoreApplication::applicationPid());
    QDir().mkpath(base + "/tmp");
    QFile::setPermissions(base + "/tmp", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QDir().mkpath(base + "/program");
    QDir().mkpath(base + "/archives");
    qputenv("TMPDIR", QFile::encodeName(base + "/tmp"));
    qputenv("QUOVARA_PROGRAM_DIR", QFile::encodeName(base + "/program"));
    // The offscreen platform's note for every window shown would bury the figures.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        if (!message.contains(QLatin1String("propagateSizeHints")))
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    QApplication app(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);

    const QString engine = QStringLiteral(QUOVARA_STANDIN_06);
    if (!QFile::copy(engine, base + "/program/uharc.exe") ||
        !QFile::copy(QStringLiteral(QUOVARA_STANDIN_04), base + "/program/Uharc0.4.fns")) {
        std::fprintf(stderr, "the stand-in engines are missing: %s\n", qPrintable(engine));
        return 2;
    }
    const QString source = base + "/source";
    const QString archive = base + "/archives/soak.uha";
    if (!makeSource(source, count)) {
        std::fprintf(stderr, "the source files could not be made\n");
        return 2;
    }
    {
        QProcess add;
        add.setWorkingDirectory(source);
        add.setStandardOutputFile(QProcess::nullDevice());
        add.start(engine, {"a", "-r+", "-y+", archive, "*"});
        if (!add.waitForFinished(-1) || add.exitCode() != 0) {
            std::fprintf(stderr, "the stand-in did not make the archive\n");
            return 2;
        }
    }
    QDir(source).removeRecursively();
    std::printf("soak: %d jobs (F5, Verify, Extract all, a search, leave and reopen, in turn) "
                "with an archive of %d entries in %s\n",
                jobs, count, qPrintable(base));

    BenchPrompter prompter(false);
    int failures = 0;
    std::vector<double> xs, ys;
    double at100 = 0;
    {
        frmApri window;
        window.setPrompter(&prompter);
        window.setInstanceLockPath(lock);
        if (!window.Form_Load(QString()))
            return 2;
        window.resize(980, 640);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            return 2;
        window.fileView()->setFolder(base + "/archives");
        Soak soak(window, prompter, archive, base + "/out");
        if (!soak.open()) {
            std::fprintf(stderr, "the archive was not opened\n");
            return 1;
        }
        std::printf("%6s %9s %11s %10s %5s %8s %9s %13s\n", "jobs", "RSS MiB", "heap in use",
                    "heap free", "fds", "threads", "children", "work folder");
        QElapsedTimer clock;
        clock.start();
        for (int n = 0; n < jobs; ++n) {
            prompter.shown.clear();
            if (!soak.run(n)) {
                ++failures;
                std::fprintf(stderr, "job %d (%s) failed; messages: %s\n", n + 1, Soak::name(n),
                             qPrintable(prompter.shown.join(QStringLiteral(" | "))));
                if (!window.archiveLayout() && !soak.open())
                    return 1;
            }
            if ((n + 1) % 100 == 0 || n + 1 == jobs) {
                // What the jobs left to do in the background (deleting old trees) is done.
                WaitForBackgroundDeletes();
                const double rss = residentMiB();
                double inUse = 0, free = 0;
#if defined(__GLIBC__)
                const struct mallinfo2 m = mallinfo2();
                inUse = (m.uordblks + m.hblkhd) / 1048576.0;
                free = m.fordblks / 1048576.0;
#endif
                std::printf("%6d %9.1f %11.1f %10.1f %5d %8ld %9d %13d   (%.0f s)\n", n + 1, rss,
                            inUse, free, entriesOf(QStringLiteral("/proc/self/fd"), false),
                            statusValue("Threads"), childProcessCount(),
                            entriesOf(WorkFolder(), true), clock.elapsed() / 1000.0);
                if (n + 1 >= 100) {
                    xs.push_back(n + 1);
                    ys.push_back(rss);
                }
                if (n + 1 == 100)
                    at100 = rss;
            }
        }
        window.close();
    }
    if (xs.size() < 2) {
        std::printf("too few jobs for a slope after the first 100; failed jobs: %d\n", failures);
        return failures == 0 ? 0 : 1;
    }
    const double per100 = slope(xs, ys) * 100;
    const double added = ys.back() - at100;
    const double allowed = 2.0 * std::max(0, jobs - 100) / 1000.0;
    std::printf("SLOPE after the first 100 jobs: %.3f MiB per 100 jobs; resident %.1f MiB at 100 "
                "jobs, %.1f MiB at %d: %+.1f MiB (target: at most %.1f MiB)\n",
                per100, at100, ys.back(), jobs, added, allowed);
    std::printf("failed jobs: %d\n", failures);
    return failures == 0 && added <= allowed ? 0 : 1;
}
