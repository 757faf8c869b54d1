// Following das.txt while the engine writes it.
//
// A progress window reads the engine's console output round after round until the engine has
// ended. ReadConsoleOutput is one round done the simple way: every line from the first, applied
// to the window's state. ConsoleReader gives the same state after every round while reading
// only what was appended since the previous round: it keeps the unfinished last line, the
// state after the last complete line and the line count, so a round costs what was appended.
#pragma once

#include "progress.h"

#include <QByteArray>
#include <QString>

namespace quovara {

// Add jobs read every line with the add rules; extract and test jobs read twelve header lines
// (error scan only) and then progress lines.
enum class ConsoleJob { Add, Extract, Test };

inline constexpr int ConsoleHeaderLines = 12;

// The window's view of one job's output after a round.
struct ConsoleState {
    ProgressState progress;
    QString sizesText; // add job: the sizes line after the latest progress line
    qint16 barValue = 0;

    // What the latest round found.
    qint64 lineCount = 0;        // lines read, the unfinished last one included
    QString errorMessage;        // the first engine error, empty when there is none
    bool errorInHeader = false;  // extract and test: the error stands in the header lines
    bool versionRequest = false; // the error asks for another engine version
    bool fileClosed = false;     // the scan asked to close the file: reading stops there

    bool hasError() const { return !errorMessage.isEmpty(); }
    bool operator==(const ConsoleState&) const = default;
};

// One round the simple way: splits `bytes` (the whole file as it is now) into lines and
// applies them in order to `state`, stopping at the first engine error.
void ReadConsoleOutput(const QByteArray& bytes, ConsoleJob job, ConsoleState& state,
                       const EngineCodec& codec = EngineCodec::Cp437());

class ConsoleReader {
public:
    // `codec`: how the engine that writes the output encodes its text.
    explicit ConsoleReader(ConsoleJob job, QString path = QString(),
                           const EngineCodec& codec = EngineCodec::Cp437());

    // One round on the file: opens it for reading without hindering the engine that writes
    // it, reads what was appended since the previous round, closes it. A missing file gives a
    // round with nothing new. False when the file could not be opened.
    bool poll();

    // One round on bytes appended to the output since the previous round.
    void feed(const QByteArray& appended);

    const ConsoleState& state() const { return state_; }
    // The window's time estimate writes the time fields of the progress state.
    ProgressState& progress() { return state_.progress; }

    // A complete error line ended the reading; later rounds change nothing.
    bool finished() const { return finished_; }
    // The output was read once and later could not be opened, or became shorter than what was
    // read: it was removed or cut while the engine wrote it, so its end is unknown.
    bool outputLost() const { return lost_; }
    // The last line as far as it has been written (no line end yet): where the engine's
    // questions stand while it waits for a key.
    QString unfinishedLine() const;
    qint64 bytesRead() const { return offset_; }
    ConsoleJob job() const { return job_; }

private:
    void applyComplete(const QString& line);
    void reset();
    // Notes where the add header and the add progress lines stand (1-based line numbers).
    void noteAddLine(const QString& line, qint64 index);
    // The sizes line as a whole re-read builds it this round (add jobs).
    QString roundSizesText(const ConsoleState& next) const;

    ConsoleJob job_;
    QString path_;
    EngineCodec codec_;
    qint64 offset_ = 0;
    QByteArray partial_;     // the unfinished last line
    bool pendingCr_ = false; // the data so far ends with CR: an LF that follows belongs to it
    qint64 completeLines_ = 0;
    bool finished_ = false;
    bool opened_ = false;
    bool lost_ = false;

    // The state after the complete lines, with a mark per group of fields that a complete line
    // has set. Groups no complete line has set come from the previous round's state.
    ConsoleState committed_;
    unsigned committedMask_ = 0;
    // Add jobs: the first header line among the complete lines and the total it gives, and the
    // last progress line (complete or, for the round, the unfinished one).
    qint64 firstHeaderLine_ = 0;
    double firstHeaderMB_ = 0;
    qint64 lastProgressLine_ = 0;

    ConsoleState state_;
};

} // namespace quovara
