#include "extractherejob.h"

#include "archiveprompter.h"
#include "frmprogress.h"
#include "jobnotice.h"

#include "core/places.h"
#include "core/processcontrol.h"
#include "core/prompter.h"
#include "engine/extracthere.h"
#include "engine/grammar.h"
#include "engine/listing.h"
#include "engine/namecheck.h"
#include "engine/unsafenames.h"
#include "ui/browser/frmapri.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

namespace quovara {

Q_LOGGING_CATEGORY(lcExtractHere, "quovara.extracthere")

namespace {

// A text of Extract Here as the user reads it.
QString text(const char* source) {
    return QCoreApplication::translate("ExtractHere", source);
}

enum class Outcome {
    Extracted,
    // Extracted, but entries with unsafe names were left out (the user was told which).
    PartlyExtracted,
    NotExtracted,
};

// Extracts one archive.
Outcome ExtractOne(frmApri& main, Prompter& outer, const QString& given) {
    const QString path = QFileInfo(given).absoluteFilePath();
    ArchiveNamedPrompter prompter(outer, path);
    main.setPrompter(&prompter);
    struct Restore {
        frmApri& main;
        Prompter& outer;
        ~Restore() { main.setPrompter(&outer); }
    } restore{main, outer};

    if (!QFileInfo(path).isFile()) {
        prompter.critical(text(extract_here::NotFound));
        return Outcome::NotExtracted;
    }
    if (QFileInfo(path).suffix().compare(QLatin1String("uha"), Qt::CaseInsensitive) != 0) {
        prompter.critical(text(extract_here::NotAnArchive));
        return Outcome::NotExtracted;
    }
    // Nothing is written unless the archive's folder takes a new folder.
    QString problem;
    const QString staging = MakeExtractStaging(path, &problem);
    if (staging.isEmpty()) {
        prompter.critical(text(extract_here::CannotWrite).arg(problem));
        return Outcome::NotExtracted;
    }
    // Ended by a signal meanwhile, the program still removes the staging folder (after the
    // progress window, whose own work was added later and runs first, has ended the engine).
    struct StagingGuard {
        int work;
        ~StagingGuard() { RemoveTerminationWork(work); }
    } guard{AddTerminationWork([staging] { DiscardExtractStaging(staging); })};
    if (!ListForPassword(main.lister(), prompter, path, text(extract_here::NoPassword))) {
        DiscardExtractStaging(staging);
        return Outcome::NotExtracted;
    }
    // Entries whose names would climb out of the folder are never extracted.
    const ListingPass& pass = main.lister().lastPass();
    const QStringList unsafe = pass.unsafeNames;
    if (const QString problem = UnsafeExtractionProblem({true, pass.entryCount, unsafe});
        !problem.isEmpty()) {
        prompter.critical(problem);
        DiscardExtractStaging(staging);
        return Outcome::NotExtracted;
    }
    ExtractOptions options;
    options.fullPath = true;
    options.destination = QDir::toNativeSeparators(staging);
    options.archive = QDir::toNativeSeparators(path);
    options.password = main.lister().listing().password;
    options.passwordTicked = !options.password.isEmpty();
    options.leftOut = unsafe;
    QString refused;
    if (!WriteExtractJobScript(WorkFile(names::ExtractScript), options, ProgramFolder(), TempRoot(),
                               PathStyle::host(), &refused)) {
        prompter.critical(refused);
        DiscardExtractStaging(staging);
        return Outcome::NotExtracted;
    }
    // The window tells an absent user of a failure or a stop; of a finished extraction this
    // job tells once the files stand where they go.
    JobWindowRun run{path, {}, EndNotice::FailuresOnly};
    if (!RunJobWindow(JobKind::Extract, main, run)) {
        // Failed or stopped: the window has said why; nothing it wrote is kept.
        DiscardExtractStaging(staging);
        return Outcome::NotExtracted;
    }
    const PlacedExtraction placed = PlaceExtraction(staging, path);
    if (!placed.ok) {
        const QString problem = text(extract_here::NotPlaced).arg(placed.problem);
        if (run.awayAtEnd)
            NotifyJobEnd({JobKind::Extract, JobOutcome::Failed, path, problem, QString()});
        prompter.critical(problem);
        return Outcome::NotExtracted;
    }
    qCDebug(lcExtractHere) << path << "extracted to" << placed.placedPath;
    if (run.awayAtEnd) {
        // A single file placed beside the archive is shown in the archive's folder.
        const QFileInfo placedInfo(placed.placedPath);
        NotifyJobEnd(
            {JobKind::Extract, JobOutcome::Finished, path, QString(),
             placedInfo.isDir() ? placedInfo.absoluteFilePath() : placedInfo.absolutePath()});
    }
    if (!unsafe.isEmpty()) {
        prompter.critical(LeftOutMessage(unsafe));
        return Outcome::PartlyExtracted;
    }
    return Outcome::Extracted;
}

} // namespace

int RunExtractHere(frmApri& main, const QStringList& archives) {
    Prompter& outer = main.prompter();
    QStringList failed;
    bool partly = false;
    for (const QString& archive : archives) {
        const Outcome outcome = ExtractOne(main, outer, archive);
        if (outcome == Outcome::NotExtracted)
            failed << QDir::toNativeSeparators(QFileInfo(archive).absoluteFilePath());
        partly = partly || outcome == Outcome::PartlyExtracted;
    }
    if (!failed.isEmpty() && archives.size() > 1)
        outer.critical(text(extract_here::Summary).arg(failed.join(u'\n')));
    return failed.isEmpty() && !partly ? 0 : 1;
}

} // namespace quovara
