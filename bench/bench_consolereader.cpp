// Following a growing das.txt: cost of one polling round when the file grows by 1 KB a round,
// at 1 MB and at 20 MB of output, for the incremental reader and for a whole re-read.
//
//   bench_consolereader [--benchmark_filter=...]
//
// The incremental reader's cost per round should not depend on the size already read; the
// whole re-read grows with it. A summary with both side by side is printed at the end.
#include "engine/consolereader.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>
#include <string>

using namespace quovara;

namespace {

constexpr qint64 MB = 1048576;
constexpr qint64 Step = 1024;

// A long add job's console output, in the engine's layout: header, then per file a CR-ended
// progress line and a CR LF-ended final line.
QByteArray makeOutput(qint64 size) {
    QByteArray out = "\r\nUHARC 0.6b  -----   high compression multimedia archiver   -----   BETA "
                     "version\r\n\r\n";
    out += "Adding 150000 files (5242880000 bytes)                  size     packed   ratio\r\n";
    out += QByteArray(79, '-') + "\r\n";
    qint64 done = 0, packed = 0;
    for (int i = 0; out.size() < size; ++i) {
        const QByteArray name =
            "Adding folder\\file" + QByteArray::number(i).rightJustified(6, '0');
        const int percent = int(done * 100 / 5242880000LL);
        out += '\r';
        out += name.leftJustified(39, ' ');
        out += "Total:";
        out += QString::asprintf("%3d%%%11lld%11lld%7.1f%%", percent, done, packed,
                                 done ? 100.0 * packed / done : 0.0)
                   .toLatin1();
        out += '\r';
        out += name.leftJustified(55, ' ');
        out += QString::asprintf("%11d%11d%7.1f%%\r\n", 34952, 17000, 48.6).toLatin1();
        done += 34952;
        packed += 17000;
    }
    out.truncate(size);
    return out;
}

const QByteArray& output() {
    static const QByteArray bytes = makeOutput(21 * MB);
    return bytes;
}

std::map<std::string, double>& perRound() {
    static std::map<std::string, double> m;
    return m;
}

void appendTo(QFile& f, qint64 from) {
    f.write(output().constData() + from, Step);
    f.flush();
}

void BM_Follow_Incremental(benchmark::State& state) {
    const qint64 start = state.range(0) * MB;
    QTemporaryDir dir;
    const QString path = dir.filePath("das.txt");
    QFile writer(path);
    writer.open(QIODevice::WriteOnly);
    writer.write(output().left(start));
    writer.flush();
    ConsoleReader reader(ConsoleJob::Add, path);
    reader.poll(); // catch up with what is there before timing
    qint64 at = start;
    double total = 0;
    for (auto _ : state) {
        state.PauseTiming();
        appendTo(writer, at);
        at += Step;
        state.ResumeTiming();
        const auto t0 = std::chrono::steady_clock::now();
        reader.poll();
        total += std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - t0)
                     .count();
        benchmark::DoNotOptimize(reader.state().progress.percent);
    }
    perRound()["incremental " + std::to_string(state.range(0)) + " MB"] =
        total / double(state.iterations());
    state.counters["lines"] = double(reader.state().lineCount);
}

void BM_Follow_WholeReread(benchmark::State& state) {
    const qint64 start = state.range(0) * MB;
    QTemporaryDir dir;
    const QString path = dir.filePath("das.txt");
    QFile writer(path);
    writer.open(QIODevice::WriteOnly);
    writer.write(output().left(start));
    writer.flush();
    ConsoleState s;
    qint64 at = start;
    double total = 0;
    for (auto _ : state) {
        state.PauseTiming();
        appendTo(writer, at);
        at += Step;
        state.ResumeTiming();
        const auto t0 = std::chrono::steady_clock::now();
        QFile f(path);
        f.open(QIODevice::ReadOnly);
        ReadConsoleOutput(f.readAll(), ConsoleJob::Add, s);
        total += std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - t0)
                     .count();
        benchmark::DoNotOptimize(s.progress.percent);
    }
    perRound()["whole re-read " + std::to_string(state.range(0)) + " MB"] =
        total / double(state.iterations());
    state.counters["lines"] = double(s.lineCount);
}

} // namespace

BENCHMARK(BM_Follow_Incremental)->Arg(1)->Iterations(500)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Follow_Incremental)->Arg(20)->Iterations(500)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Follow_WholeReread)->Arg(1)->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Follow_WholeReread)->Arg(20)->Iterations(15)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    auto& m = perRound();
    auto get = [&](const std::string& k) { return m.count(k) ? m[k] : 0.0; };
    std::printf("\nper round, file growing by 1 KB a round:\n");
    std::printf("  %-8s %18s %18s\n", "size", "incremental (us)", "whole re-read (us)");
    for (int mb : {1, 20})
        std::printf("  %-8s %18.1f %18.1f\n", (std::to_string(mb) + " MB").c_str(),
                    get("incremental " + std::to_string(mb) + " MB"),
                    get("whole re-read " + std::to_string(mb) + " MB"));
    if (get("incremental 1 MB") > 0 && get("whole re-read 1 MB") > 0)
        std::printf("  growth 1 MB -> 20 MB: incremental x%.2f, whole re-read x%.2f\n",
                    get("incremental 20 MB") / get("incremental 1 MB"),
                    get("whole re-read 20 MB") / get("whole re-read 1 MB"));
    return 0;
}
