// Building an SFX from a big archive, against `cat` joining the same files in the same run.
//
//   QUOVARA_BENCH_SFX_MB=1024 bench_sfx     (archive size in MiB; 1024 when not set)
//
// Prints both throughputs, their ratio, and the growth of the process's peak memory while the
// SFX is built. The files live in a temporary folder under /tmp and are removed at the end.
#include "engine/sfx.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace quovara;

namespace {

constexpr qint64 MiB = 1048576;

struct Files {
    QTemporaryDir dir{QStringLiteral("/tmp/quovara-bench-sfx-XXXXXX")};
    QString program, archive, markers[3], info;
    qint64 totalBytes = 0;
};

Files* files = nullptr;
double sfxSeconds = 1e300, catSeconds = 1e300;
long long memoryGrowthKb = -1;

class Silent : public SfxFeedback {
public:
    void setState(const QString&) override {}
    void setHint(const QString&) override {}
    void repaint() override {}
    void information(const QString&) override {}
    void critical(const QString& t) override { std::fprintf(stderr, "%s\n", qPrintable(t)); }
};

void writeNoise(const QString& path, qint64 size, quint32 seed) {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        std::abort();
    std::unique_ptr<quint32[]> buf(new quint32[MiB / 4]);
    quint32 x = seed | 1;
    for (qint64 left = size; left > 0;) {
        for (qint64 i = 0; i < MiB / 4; ++i) {
            x ^= x << 13;
            x ^= x >> 17;
            x ^= x << 5;
            buf[i] = x;
        }
        const qint64 n = qMin(left, MiB);
        f.write(reinterpret_cast<const char*>(buf.get()), n);
        left -= n;
    }
}

long long statusKb(const char* key) {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (line.startsWith(key))
            return line.mid(qstrlen(key)).trimmed().split(' ').first().toLongLong();
    return -1;
}

void resetPeak() {
    QFile f(QStringLiteral("/proc/self/clear_refs"));
    if (f.open(QIODevice::WriteOnly))
        f.write("5");
}

void BM_BuildSfx(benchmark::State& state) {
    const QString out = files->dir.filePath("out-sfx.exe");
    Silent feedback;
    SfxSettings settings;
    settings.extractPath = "Programs";
    for (auto _ : state) {
        QFile::remove(out);
        resetPeak();
        const long long before = statusKb("VmRSS:");
        QElapsedTimer t;
        t.start();
        if (!BuildSfx(out, files->archive, files->program, settings, feedback))
            state.SkipWithError("SFX not built");
        const double s = t.nsecsElapsed() / 1e9;
        state.SetIterationTime(s);
        sfxSeconds = qMin(sfxSeconds, s);
        memoryGrowthKb = qMax(memoryGrowthKb, statusKb("VmHWM:") - before);
    }
    state.SetBytesProcessed(state.iterations() * files->totalBytes);
    QFile::remove(out);
}

void BM_Cat(benchmark::State& state) {
    const QString out = files->dir.filePath("out-cat.exe");
    const QStringList args = {
        files->program + "/SFX.exe",   files->markers[0], files->archive, files->markers[1],
        files->program + "/uharc.exe", files->markers[2], files->info};
    for (auto _ : state) {
        QFile::remove(out);
        QProcess cat;
        cat.setStandardOutputFile(out);
        QElapsedTimer t;
        t.start();
        cat.start(QStringLiteral("cat"), args);
        if (!cat.waitForFinished(-1) || cat.exitCode() != 0)
            state.SkipWithError("cat failed");
        const double s = t.nsecsElapsed() / 1e9;
        state.SetIterationTime(s);
        catSeconds = qMin(catSeconds, s);
    }
    state.SetBytesProcessed(state.iterations() * files->totalBytes);
    QFile::remove(out);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const qint64 archiveMb = qEnvironmentVariableIsSet("QUOVARA_BENCH_SFX_MB")
                                 ? qEnvironmentVariableIntValue("QUOVARA_BENCH_SFX_MB")
                                 : 1024;
    Files f;
    files = &f;
    f.program = f.dir.filePath("program");
    QDir().mkpath(f.program);
    std::printf("generating a %lld MiB archive in %s ...\n", archiveMb, qPrintable(f.dir.path()));
    writeNoise(f.program + "/SFX.exe", 150 * 1024, 1);
    writeNoise(f.program + "/uharc.exe", 2 * MiB, 2);
    f.archive = f.dir.filePath("big.uha");
    writeNoise(f.archive, archiveMb * MiB, 3);
    const char* markers[3] = {SfxArchiveMarker, SfxEngineMarker, SfxInfoMarker};
    for (int i = 0; i < 3; ++i) {
        f.markers[i] = f.dir.filePath(QStringLiteral("marker%1").arg(i));
        QFile m(f.markers[i]);
        m.open(QIODevice::WriteOnly);
        m.write(markers[i]);
    }
    SfxSettings settings;
    settings.extractPath = "Programs";
    f.info = f.dir.filePath("info");
    {
        QFile m(f.info);
        m.open(QIODevice::WriteOnly);
        m.write(SfxInfoText(settings));
    }
    f.totalBytes = 150 * 1024 + 2 * MiB + archiveMb * MiB + 28 + SfxInfoText(settings).size();

    // Alternating runs, so that neither side gets a warmer page cache.
    benchmark::RegisterBenchmark("cat", BM_Cat)
        ->Iterations(1)
        ->Repetitions(3)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BuildSfx", BM_BuildSfx)
        ->Iterations(1)
        ->Repetitions(3)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    const double mb = double(f.totalBytes) / MiB;
    std::printf("\nSFX of a %lld MiB archive (%.0f MiB written), best of the runs:\n", archiveMb,
                mb);
    std::printf("  cat       %8.3f s  %8.1f MiB/s\n", catSeconds, mb / catSeconds);
    std::printf("  BuildSfx  %8.3f s  %8.1f MiB/s\n", sfxSeconds, mb / sfxSeconds);
    std::printf("  throughput BuildSfx / cat: %.2f (target at least 0.8)\n",
                catSeconds / sfxSeconds);
    std::printf("  peak memory growth while building: %lld KiB (target under 64 MiB)\n",
                memoryGrowthKb);
    files = nullptr;
    return 0;
}
