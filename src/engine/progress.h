// Reading the engine's console output (das.txt) of add, extract and test jobs: the error-line
// scan, the line parsers, the values derived from them and the texts that show them.
#pragma once

#include "core/codepage.h"

#include <QByteArray>
#include <QDateTime>
#include <QLoggingCategory>
#include <QString>
#include <QStringList>
#include <optional>

Q_DECLARE_LOGGING_CATEGORY(lcProgress)

namespace quovara {

// What one progress window knows about its job.
struct ProgressState {
    QString jobText;
    double percent = 0;
    double doneMB = 0;   // add job: input processed so far
    double packedMB = 0; // add job: output written so far
    double totalMB = 0;  // add job: whole input, from the header line
    QString ratioText;   // add job: ratio column, trimmed
    bool totalSeen = false;
    QDateTime startTime;
    qint64 elapsedSeconds = 0;
    qint64 totalSeconds = 0;
    qint64 remainingSeconds = 0;

    bool operator==(const ProgressState&) const = default;
};

// The result of scanning one line for an engine error.
struct EngineErrorScan {
    // Empty when the line reports no error, else the message to show.
    QString message;
    // The message is the engine's request for another version: the caller closes the output
    // file it reads and stops reading it.
    bool closeFile = false;

    bool isError() const { return !message.isEmpty(); }
};

// "ERROR:" at the very start of the line (upper case) makes it an error; the message is what
// follows, cut before the first "--" when it points at a detail with "-->", whole when it is a
// version request ("--> use UHARC version").
EngineErrorScan ScanEngineError(const QString& line);

// True when an error message asks for another engine version ("*--> use UHARC*version*").
bool IsVersionRequestMessage(const QString& message);

// Add job header ("Adding N files (B bytes) ... size packed ratio"): the first such line of a
// run sets `totalMB` and `totalSeen`. True when the line was taken.
bool ParseAddHeader(const QString& line, ProgressState& state);

// Add job progress line ("Adding ... Total: ..."): sets `jobText`, `percent`, `doneMB`,
// `packedMB`, `ratioText` from their fixed columns and returns the sizes text; nothing for
// any other line.
std::optional<QString> ParseAddProgress(const QString& line, ProgressState& state);

// Extract and test progress line (every line after the twelve header lines): sets `jobText`
// (columns 1-69, trimmed) and `percent` (columns 76-79).
void ParseExtractProgress(const QString& line, ProgressState& state);

// "Progress: " doneMB " MB (Packed  " packedMB " MB) of " totalMB " MB Ratio: " ratioText.
QString SizesText(const ProgressState& state);

// The bar value: `percent` as a 16-bit integer, halves to even. Empty when it does not fit
// (the bar then keeps its value).
std::optional<qint16> BarValue(double percent);

// Hours, minutes and seconds as the counting loops give them: seconds counted down to the next
// lower multiple of 60, then minutes likewise, the rest is hours. -3 gives -1 h 59 min 57 s.
struct Duration {
    qint64 hours = 0;
    qint64 minutes = 0;
    qint64 seconds = 0;

    bool operator==(const Duration&) const = default;
    qint64 totalSeconds() const { return hours * 3600 + minutes * 60 + seconds; }
};
Duration FormatDuration(qint64 seconds);

// The time-of-day text of FormatDuration(seconds): "HH:MM:SS", wrapping before midnight for a
// negative count and with a day part from 24 hours.
QString DurationText(qint64 seconds);

// The time line's text before the first estimate.
inline constexpr char InitialTimeText[] =
    "Total: 00:00:00       Remaining: 00:00:00       Elapsed: 00:00:00";

// "Total: " T " + "       Remaining: " T "       Elapsed: " T.
QString TimeLineText(qint64 totalSeconds, qint64 remainingSeconds, qint64 elapsedSeconds);

// The estimate of one timer tick: with `percent` 0 nothing changes and nothing is returned (the
// time line keeps its text); otherwise sets `elapsedSeconds` (second boundaries from
// `startTime` to `now`), `totalSeconds` and `remainingSeconds`, and returns the time line.
// An estimate that does not fit a 32-bit count is dropped the same way.
std::optional<QString> EstimateTime(ProgressState& state, const QDateTime& now);

// The notification-area tip: "Completed: " percent " % Remaining: " T(remainingSeconds).
QString TrayTipText(double percent, qint64 remainingSeconds);

// The real engine writes its console output in code page 437 (one byte is one character); an
// engine that runs natively here writes UTF-8.
QString DecodeConsoleLine(const char* data, qsizetype size,
                          const EngineCodec& codec = EngineCodec::Cp437());
inline QString DecodeConsoleLine(const QByteArray& bytes,
                                 const EngineCodec& codec = EngineCodec::Cp437()) {
    return DecodeConsoleLine(bytes.constData(), bytes.size(), codec);
}

// Splits console output into lines: a line ends at CR or CR LF, never at a lone LF. The last
// line is included when it is not empty, although nothing ends it yet.
QStringList SplitConsoleLines(const QByteArray& bytes,
                              const EngineCodec& codec = EngineCodec::Cp437());

} // namespace quovara
