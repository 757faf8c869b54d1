#include "consolereader.h"

#include <QFile>

namespace quovara {

namespace {

// Groups of fields that one line sets together.
enum Group : unsigned {
    TextGroup = 1,  // jobText, percent
    SizesGroup = 2, // doneMB, packedMB, ratioText, sizesText
    BarGroup = 4,   // barValue
    TotalGroup = 8, // totalMB, totalSeen
};

struct LineResult {
    EngineErrorScan scan;
    unsigned groups = 0;
};

// Applies line number `index` (1-based) of the output to `s` with the rules of `job`.
LineResult applyLine(const QString& line, qint64 index, ConsoleJob job, ConsoleState& s) {
    LineResult r;
    r.scan = ScanEngineError(line);
    if (r.scan.isError())
        return r;
    if (job == ConsoleJob::Add) {
        if (ParseAddHeader(line, s.progress))
            r.groups |= TotalGroup;
        if (std::optional<QString> sizes = ParseAddProgress(line, s.progress)) {
            s.sizesText = *sizes;
            r.groups |= TextGroup | SizesGroup;
            if (std::optional<qint16> bar = BarValue(s.progress.percent)) {
                s.barValue = *bar;
                r.groups |= BarGroup;
            }
        }
    } else if (index > ConsoleHeaderLines) {
        ParseExtractProgress(line, s.progress);
        r.groups |= TextGroup;
        if (std::optional<qint16> bar = BarValue(s.progress.percent)) {
            s.barValue = *bar;
            r.groups |= BarGroup;
        }
    }
    return r;
}

void setError(ConsoleState& s, const EngineErrorScan& scan, qint64 index, ConsoleJob job) {
    s.errorMessage = scan.message;
    s.fileClosed = scan.closeFile;
    s.versionRequest = IsVersionRequestMessage(scan.message);
    s.errorInHeader = job != ConsoleJob::Add && index <= ConsoleHeaderLines;
}

void clearRound(ConsoleState& s) {
    s.lineCount = 0;
    s.errorMessage.clear();
    s.errorInHeader = false;
    s.versionRequest = false;
    s.fileClosed = false;
}

// Takes the groups marked in `mask` from `from` into `to`.
void mergeGroups(ConsoleState& to, const ConsoleState& from, unsigned mask) {
    if (mask & TextGroup) {
        to.progress.jobText = from.progress.jobText;
        to.progress.percent = from.progress.percent;
    }
    if (mask & SizesGroup) {
        to.progress.doneMB = from.progress.doneMB;
        to.progress.packedMB = from.progress.packedMB;
        to.progress.ratioText = from.progress.ratioText;
        to.sizesText = from.sizesText;
    }
    if (mask & BarGroup)
        to.barValue = from.barValue;
    if (mask & TotalGroup) {
        to.progress.totalMB = from.progress.totalMB;
        to.progress.totalSeen = from.progress.totalSeen;
    }
}

} // namespace

void ReadConsoleOutput(const QByteArray& bytes, ConsoleJob job, ConsoleState& state,
                       const EngineCodec& codec) {
    clearRound(state);
    const QStringList lines = SplitConsoleLines(bytes, codec);
    for (const QString& line : lines) {
        ++state.lineCount;
        const LineResult r = applyLine(line, state.lineCount, job, state);
        if (r.scan.isError()) {
            setError(state, r.scan, state.lineCount, job);
            return;
        }
    }
}

ConsoleReader::ConsoleReader(ConsoleJob job, QString path, const EngineCodec& codec)
    : job_(job), path_(std::move(path)), codec_(codec) {}

QString ConsoleReader::unfinishedLine() const {
    return DecodeConsoleLine(partial_, codec_);
}

void ConsoleReader::reset() {
    offset_ = 0;
    partial_.clear();
    pendingCr_ = false;
    completeLines_ = 0;
    finished_ = false;
    committed_ = ConsoleState();
    committedMask_ = 0;
    firstHeaderLine_ = 0;
    firstHeaderMB_ = 0;
    lastProgressLine_ = 0;
}

void ConsoleReader::noteAddLine(const QString& line, qint64 index) {
    if (job_ != ConsoleJob::Add)
        return;
    ProgressState probe;
    if (firstHeaderLine_ == 0 && ParseAddHeader(line, probe)) {
        firstHeaderLine_ = index;
        firstHeaderMB_ = probe.totalMB;
    }
    if (ParseAddProgress(line, probe))
        lastProgressLine_ = index;
}

QString ConsoleReader::roundSizesText(const ConsoleState& next) const {
    // A whole re-read starts from the previous round's state: once a total has been taken, the
    // header is passed over and every progress line is read with that total; before that, the
    // first header line sets it for the progress lines that follow it.
    const bool headerFirst = firstHeaderLine_ > 0 && firstHeaderLine_ <= lastProgressLine_;
    ProgressState at = next.progress;
    at.totalMB =
        state_.progress.totalSeen || !headerFirst ? state_.progress.totalMB : firstHeaderMB_;
    return SizesText(at);
}

bool ConsoleReader::poll() {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(lcProgress) << "console output not readable this round:" << path_
                            << file.errorString();
        if (opened_)
            lost_ = true;
        feed(QByteArray());
        return false;
    }
    if (file.size() < offset_) {
        // The file was replaced by a shorter one: what was read no longer stands.
        qCDebug(lcProgress) << "console output shrank, reading it again from the start";
        lost_ = true;
        reset();
    }
    opened_ = true;
    if (!file.seek(offset_)) {
        qCDebug(lcProgress) << "cannot seek in the console output" << file.errorString();
        feed(QByteArray());
        return false;
    }
    const QByteArray appended = file.readAll();
    file.close();
    feed(appended);
    return true;
}

void ConsoleReader::applyComplete(const QString& line) {
    ++completeLines_;
    // The add header is taken once per run: until a complete line has taken it, the total is
    // whatever the previous round had (an unfinished header line may have given it already),
    // and the sizes text of the progress lines is built with that total.
    if (!(committedMask_ & TotalGroup)) {
        committed_.progress.totalMB = state_.progress.totalMB;
        committed_.progress.totalSeen = state_.progress.totalSeen;
    }
    const LineResult r = applyLine(line, completeLines_, job_, committed_);
    committedMask_ |= r.groups;
    if (!r.scan.isError())
        noteAddLine(line, completeLines_);
    if (r.scan.isError()) {
        finished_ = true;
        setError(committed_, r.scan, completeLines_, job_);
    }
}

void ConsoleReader::feed(const QByteArray& appended) {
    offset_ += appended.size();
    const qsizetype n = appended.size();
    qsizetype i = 0;
    if (finished_)
        i = n;
    if (pendingCr_ && n > 0) {
        if (appended[0] == '\n')
            i = 1;
        pendingCr_ = false;
    }
    while (i < n && !finished_) {
        const qsizetype cr = appended.indexOf('\r', i);
        if (cr < 0) {
            partial_.append(appended.constData() + i, n - i);
            break;
        }
        partial_.append(appended.constData() + i, cr - i);
        applyComplete(DecodeConsoleLine(partial_, codec_));
        partial_.clear();
        if (cr + 1 >= n) {
            pendingCr_ = true;
            i = n;
        } else {
            i = appended[cr + 1] == '\n' ? cr + 2 : cr + 1;
        }
    }

    // The round's state: the previous round's state, with what the complete lines set, then
    // the unfinished line on top (it may still grow, so it is never committed).
    ConsoleState next = state_;
    mergeGroups(next, committed_, committedMask_);
    clearRound(next);
    next.lineCount = completeLines_;
    if (finished_) {
        next.errorMessage = committed_.errorMessage;
        next.errorInHeader = committed_.errorInHeader;
        next.versionRequest = committed_.versionRequest;
        next.fileClosed = committed_.fileClosed;
        partial_.clear();
    }
    const qint64 completeHeader = firstHeaderLine_;
    const double completeHeaderMB = firstHeaderMB_;
    const qint64 completeProgress = lastProgressLine_;
    if (!finished_ && !partial_.isEmpty()) {
        ++next.lineCount;
        const QString line = DecodeConsoleLine(partial_, codec_);
        const LineResult r = applyLine(line, next.lineCount, job_, next);
        if (r.scan.isError())
            setError(next, r.scan, next.lineCount, job_);
        else
            noteAddLine(line, next.lineCount);
    }
    if (job_ == ConsoleJob::Add && lastProgressLine_ > 0)
        next.sizesText = roundSizesText(next);
    // The unfinished line may still grow: what it showed is not kept for the next round.
    firstHeaderLine_ = completeHeader;
    firstHeaderMB_ = completeHeaderMB;
    lastProgressLine_ = completeProgress;
    state_ = next;
}

} // namespace quovara
