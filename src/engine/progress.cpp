#include "progress.h"

#include "core/codepage.h"
#include "core/vbtext.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>

Q_LOGGING_CATEGORY(lcProgress, "quovara.progress", QtInfoMsg)

namespace quovara {

namespace {

constexpr double BytesPerMB = 1048576.0;

// Columns a to b of a line, 1-based; shorter or empty where the line is shorter.
QString columns(const QString& line, int first, int last) {
    return line.mid(first - 1, last - first + 1);
}

double megabytes(double bytes) {
    return RoundHalfEven(bytes / BytesPerMB, 1);
}

} // namespace

EngineErrorScan ScanEngineError(const QString& line) {
    EngineErrorScan result;
    if (!line.startsWith(QLatin1String("ERROR:")))
        return result;
    QString m = line.mid(6);
    if (Like(m, QStringLiteral("*--> use UHARC version*"))) {
        result.closeFile = true;
        result.message = m;
        return result;
    }
    if (Like(m, QStringLiteral("*-->*")))
        m.truncate(m.indexOf(QLatin1String("--")));
    result.message = m;
    return result;
}

bool IsVersionRequestMessage(const QString& message) {
    return Like(message, QStringLiteral("*--> use UHARC*version*"));
}

bool ParseAddHeader(const QString& line, ProgressState& state) {
    if (state.totalSeen || !Like(line, QStringLiteral("*Adding*file*size*packed*ratio*")))
        return false;
    // The byte count follows the first "(". A line without one reads as no number.
    const qsizetype open = line.indexOf(QLatin1Char('('));
    const double bytes = open < 0 ? 0.0 : Val(line.mid(open + 1));
    state.totalMB = megabytes(bytes);
    state.totalSeen = true;
    return true;
}

std::optional<QString> ParseAddProgress(const QString& line, ProgressState& state) {
    if (!Like(line, QStringLiteral("*Adding*Total:*")))
        return std::nullopt;
    state.jobText = columns(line, 1, 39);
    state.percent = Val(columns(line, 46, 50));
    // Column 61 belongs to both size fields: the format has them overlap by one column.
    state.doneMB = megabytes(Val(columns(line, 51, 61)));
    state.packedMB = megabytes(Val(TrimBlanks(columns(line, 61, 72))));
    state.ratioText = TrimBlanks(columns(line, 73, 79));
    return SizesText(state);
}

void ParseExtractProgress(const QString& line, ProgressState& state) {
    state.jobText = TrimBlanks(columns(line, 1, 69));
    state.percent = Val(columns(line, 76, 79));
}

QString SizesText(const ProgressState& s) {
    return QCoreApplication::translate("Progress",
                                       "Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4")
        .arg(NumberText(s.doneMB), NumberText(s.packedMB), NumberText(s.totalMB), s.ratioText);
}

std::optional<qint16> BarValue(double percent) {
    const std::optional<qint16> value = ToInt16(percent);
    if (!value)
        qCDebug(lcProgress) << "per cent out of the bar's range, bar unchanged:" << percent;
    return value;
}

Duration FormatDuration(qint64 x) {
    // The counting loops run at most 59 times each; '%' keeps the sign of the dividend, so a
    // negative count runs down to the next lower multiple of 60. Counts are kept far from the
    // ends of the 64-bit range so that counting down cannot overflow.
    constexpr qint64 limit = qint64(1) << 60;
    x = std::clamp(x, -limit, limit);
    Duration d;
    while (x % 60 != 0) {
        --x;
        ++d.seconds;
    }
    qint64 y = x / 60;
    while (y % 60 != 0) {
        --y;
        ++d.minutes;
    }
    d.hours = y / 60;
    return d;
}

QString DurationText(qint64 seconds) {
    return TimeText(FormatDuration(seconds).totalSeconds());
}

QString TimeLineText(qint64 totalSeconds, qint64 remainingSeconds, qint64 elapsedSeconds) {
    return QCoreApplication::translate("Progress",
                                       "Total: %1       Remaining: %2       Elapsed: %3")
        .arg(DurationText(totalSeconds), DurationText(remainingSeconds),
             DurationText(elapsedSeconds));
}

std::optional<QString> EstimateTime(ProgressState& s, const QDateTime& now) {
    if (s.percent == 0)
        return std::nullopt;
    // Second boundaries crossed, not whole seconds elapsed.
    auto secondOf = [](const QDateTime& t) {
        const qint64 ms = t.toMSecsSinceEpoch();
        return ms >= 0 ? ms / 1000 : -((-ms + 999) / 1000);
    };
    const qint64 elapsed = secondOf(now) - secondOf(s.startTime);
    const double total = RoundHalfEven(double(elapsed) * 100.0 / s.percent, 0);
    constexpr double lo = std::numeric_limits<qint32>::min();
    constexpr double hi = std::numeric_limits<qint32>::max();
    if (!std::isfinite(total) || total < lo || total > hi || elapsed < lo || elapsed > hi) {
        qCDebug(lcProgress) << "time estimate out of range, time line unchanged:" << elapsed
                            << s.percent;
        return std::nullopt;
    }
    s.elapsedSeconds = elapsed;
    s.totalSeconds = qint64(total);
    s.remainingSeconds = s.totalSeconds - s.elapsedSeconds;
    return TimeLineText(s.totalSeconds, s.remainingSeconds, s.elapsedSeconds);
}

QString TrayTipText(double percent, qint64 remainingSeconds) {
    return QCoreApplication::translate("Progress", "Completed: %1 % Remaining: %2")
        .arg(NumberText(percent), DurationText(remainingSeconds));
}

QString DecodeConsoleLine(const char* data, qsizetype size, const EngineCodec& codec) {
    return DecodeEngineText(data, size, codec);
}

QStringList SplitConsoleLines(const QByteArray& bytes, const EngineCodec& codec) {
    return SplitEngineLines(DecodeEngineText(bytes, codec));
}

} // namespace quovara
