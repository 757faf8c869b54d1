// Entries whose stored names would climb out of the destination are never handed to the
// engine: every extraction of the window excludes them by name, an unsafe entry asked for by
// itself is refused, an extraction with nothing safe left runs nothing, and the end of a job
// says what was left out.
#include "frmapri.h"

#include "core/logging.h"
#include "engine/namecheck.h"
#include "engine/unsafenames.h"
#include "ui/jobs/frmaggiungi_shared.h"

namespace quovara {

ArchiveNames frmApri::namesForExtraction(const QString& archive, const QString& password) {
    // The archive shown: its listing knows the names. Any other (a ".uha" file selected in
    // the browser, a request on the command line) is listed first, without a tree.
    const ArchiveListing& l = lister_.listing();
    if (archiveLayout() && !l.archivePath.isEmpty() && SamePath(archive, l.archivePath))
        return lister_.shownNames();
    return ReadArchiveNames(archive, password, switch_);
}

bool frmApri::leaveOutUnsafe(ExtractOptions& options, const ArchiveNames& names) {
    options.leftOut = names.unsafe;
    leftOutReport_.clear();
    if (names.unsafe.isEmpty())
        return true;
    if (const QString problem = UnsafeExtractionProblem(names); !problem.isEmpty()) {
        prompter_->exclamation(problem);
        return false;
    }
    const QStringList patterns =
        options.choice == FileChoice::FileTypes ? SplitPatterns(options.fileTypes) : QStringList();
    leftOutReport_ = UnsafeNamesTaken(names.unsafe, patterns);
    qCDebug(lcFiles) << "extraction leaves out" << names.unsafe.size() << "unsafe entries";
    return true;
}

void frmApri::reportLeftOut() {
    if (!leftOutReport_.isEmpty())
        prompter_->information(LeftOutMessage(leftOutReport_));
    leftOutReport_.clear();
}

bool frmApri::refuseUnsafeItem(const QString& stored) {
    if (!IsUnsafeEntryName(stored))
        return false;
    prompter_->exclamation(UnsafeItemMessage(stored));
    return true;
}

} // namespace quovara
