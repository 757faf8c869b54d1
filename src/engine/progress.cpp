#include "progress.h"

#include "core/vbtext.h"

#include <algorithm>
#include <cmath>
#include <limits>

Q_LOGGING_CATEGORY(lcProgress, "quovara.progress")

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

// Code page 437, upper half. The lower half is ASCII (control characters stay as they are).
constexpr char16_t Cp437High[128] = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF,
    0x00EE, 0x00EC, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9,
    0x00FF, 0x00D6, 0x00DC, 0x00A2, 0x00A3, 0x00A5, 0x20A7, 0x0192, 0x00E1, 0x00ED, 0x00F3, 0x00FA,
    0x00F1, 0x00D1, 0x00AA, 0x00BA, 0x00BF, 0x2310, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB,
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x2561, 0x2562, 0x2556, 0x2555, 0x2563, 0x2551, 0x2557,
    0x255D, 0x255C, 0x255B, 0x2510, 0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x255E, 0x255F,
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x2567, 0x2568, 0x2564, 0x2565, 0x2559,
    0x2558, 0x2552, 0x2553, 0x256B, 0x256A, 0x2518, 0x250C, 0x2588, 0x2584, 0x258C, 0x2590, 0x2580,
    0x03B1, 0x00DF, 0x0393, 0x03C0, 0x03A3, 0x03C3, 0x00B5, 0x03C4, 0x03A6, 0x0398, 0x03A9, 0x03B4,
    0x221E, 0x03C6, 0x03B5, 0x2229, 0x2261, 0x00B1, 0x2265, 0x2264, 0x2320, 0x2321, 0x00F7, 0x2248,
    0x00B0, 0x2219, 0x00B7, 0x221A, 0x207F, 0x00B2, 0x25A0, 0x00A0,
};

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
    state.packedMB = megabytes(Val(columns(line, 61, 72).trimmed()));
    state.ratioText = columns(line, 73, 79).trimmed();
    return SizesText(state);
}

void ParseExtractProgress(const QString& line, ProgressState& state) {
    state.jobText = columns(line, 1, 69).trimmed();
    state.percent = Val(columns(line, 76, 79));
}

QString SizesText(const ProgressState& s) {
    return QStringLiteral("Progress: ") + NumberText(s.doneMB) + QStringLiteral(" MB (Packed  ") +
           NumberText(s.packedMB) + QStringLiteral(" MB) of ") + NumberText(s.totalMB) +
           QStringLiteral(" MB Ratio: ") + s.ratioText;
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
    return QStringLiteral("Total: ") + DurationText(totalSeconds) +
           QStringLiteral("       Remaining: ") + DurationText(remainingSeconds) +
           QStringLiteral("       Elapsed: ") + DurationText(elapsedSeconds);
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
    return QStringLiteral("Completed: ") + NumberText(percent) + QStringLiteral(" % Remaining: ") +
           DurationText(remainingSeconds);
}

QString DecodeConsoleLine(const char* data, qsizetype size) {
    QString out(size, Qt::Uninitialized);
    QChar* dst = out.data();
    for (qsizetype i = 0; i < size; ++i) {
        const unsigned char b = static_cast<unsigned char>(data[i]);
        dst[i] = QChar(b < 0x80 ? char16_t(b) : Cp437High[b - 0x80]);
    }
    return out;
}

QStringList SplitConsoleLines(const QByteArray& bytes) {
    QStringList lines;
    QByteArray current;
    const qsizetype n = bytes.size();
    for (qsizetype i = 0; i < n; ++i) {
        const char c = bytes[i];
        if (c == '\r') {
            lines << DecodeConsoleLine(current);
            current.clear();
            if (i + 1 < n && bytes[i + 1] == '\n')
                ++i;
        } else {
            current += c;
        }
    }
    if (!current.isEmpty())
        lines << DecodeConsoleLine(current);
    return lines;
}

} // namespace quovara
