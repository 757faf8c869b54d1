// Fuzz target for the console-output reader: any bytes, read whole and in appended pieces,
// with the add and with the extract rules. Nothing may crash or hang, and the piecewise reader
// must end every round in the state that a whole re-read gives. No file is touched.
#include "engine/consolereader.h"
#include "engine/progress.h"

#include <QByteArray>
#include <QDateTime>
#include <QLoggingCategory>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void check(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace

// The readers log what they go past; millions of inputs would only flood the output.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    QLoggingCategory::setFilterRules(QStringLiteral("quovara.*.debug=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    // The first byte chooses how the rest is cut into appended pieces.
    const unsigned cutSeed = data[0];
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1));

    for (quovara::ConsoleJob job : {quovara::ConsoleJob::Add, quovara::ConsoleJob::Extract}) {
        quovara::ConsoleReader reader(job);
        quovara::ConsoleState reference;
        qsizetype written = 0;
        unsigned x = cutSeed * 2654435761u + 1u;
        for (int round = 0; round < 12 && written < bytes.size(); ++round) {
            x = x * 1103515245u + 12345u;
            const qsizetype piece = round == 11
                                        ? bytes.size() - written
                                        : qMin<qsizetype>(bytes.size() - written, (x >> 16) % 97);
            reader.feed(bytes.mid(written, piece));
            written += piece;
            quovara::ReadConsoleOutput(bytes.left(written), job, reference);
            check(reader.state() == reference);
        }

        // The values derived from the parsed state.
        quovara::ProgressState& p = reader.progress();
        p.startTime = QDateTime::fromSecsSinceEpoch(1000000);
        const qint64 elapsed = qint64(cutSeed) * 37;
        if (auto text = quovara::EstimateTime(p, p.startTime.addSecs(elapsed))) {
            check(!text->isEmpty());
            check(p.remainingSeconds == p.totalSeconds - p.elapsedSeconds);
        }
        (void)quovara::TrayTipText(p.percent, p.remainingSeconds);
        (void)quovara::SizesText(p);
    }

    // Every line through the error scan on its own.
    for (const QString& line : quovara::SplitConsoleLines(bytes)) {
        const quovara::EngineErrorScan scan = quovara::ScanEngineError(line);
        if (scan.isError())
            check(line.startsWith(QLatin1String("ERROR:")));
        if (scan.closeFile)
            check(quovara::IsVersionRequestMessage(scan.message));
    }

    // Durations from the input's first bytes, negative ones included.
    if (bytes.size() >= 8) {
        qint64 v = 0;
        memcpy(&v, bytes.constData(), sizeof v);
        const quovara::Duration d = quovara::FormatDuration(v);
        check(d.seconds >= 0 && d.seconds < 60 && d.minutes >= 0 && d.minutes < 60);
        (void)quovara::DurationText(v % (qint64(1) << 40));
    }
    return 0;
}
