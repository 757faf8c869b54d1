// Processor use of the program while RunAndWait waits for a job: a job script whose command
// sleeps for the given seconds is run, and the program's own processor time (user + system) is
// compared with the wall time of the wait. Prints the share of one core.
//   bench_runandwait [seconds]
#include "core/jobscript.h"
#include "core/runner.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

namespace {
double cpuSeconds() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return u.ru_utime.tv_sec + u.ru_utime.tv_usec / 1e6 + u.ru_stime.tv_sec +
           u.ru_stime.tv_usec / 1e6;
}
} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 10;
    QTemporaryDir dir;
    const QString engine = dir.filePath("qvsleeper");
    QFile::copy("/bin/sleep", engine);
    const QString script = dir.filePath("Apri.bat");
    quovara::WriteJobScript(script, quovara::Preamble::List,
                            {"\"" + engine + "\" " + QString::number(seconds)});
    const double cpu0 = cpuSeconds();
    QElapsedTimer wall;
    wall.start();
    if (!quovara::RunAndWait(script, 0)) {
        std::fprintf(stderr, "job did not start\n");
        return 1;
    }
    const double w = wall.nsecsElapsed() / 1e9;
    const double c = cpuSeconds() - cpu0;
    std::printf("job of %d s: waited %.2f s wall, %.3f s processor time\n", seconds, w, c);
    std::printf("processor use while waiting: %.2f %% of one core (target: under 5 %%)\n",
                100.0 * c / w);
    return 0;
}
