#include "convertjob.h"

#include "archiveprompter.h"
#include "convertwindow.h"
#include "extractherejob.h"
#include "frmprogress.h"

#include "core/enginelocale.h"
#include "core/places.h"
#include "core/processcontrol.h"
#include "core/runner.h"
#include "engine/convert.h"
#include "engine/extracthere.h"
#include "engine/grammar.h"
#include "engine/listing.h"
#include "engine/namecheck.h"
#include "ui/browser/frmapri.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

namespace quovara {

Q_LOGGING_CATEGORY(lcConvert, "quovara.convert")

namespace {

// A text of Convert as the user reads it.
QString text(const char* source) {
    return QCoreApplication::translate("Convert", source);
}

// Converts one archive; the new archive's path, or empty when it was not converted (the user
// was told why).
QString ConvertOne(frmApri& main, Prompter& outer, const QString& given, const ConvertRun& run,
                   const QString& knownPassword) {
    const QString path = QFileInfo(given).absoluteFilePath();
    ArchiveNamedPrompter prompter(outer, path);
    if (!QFileInfo(path).isFile()) {
        prompter.critical(QCoreApplication::translate("ExtractHere", extract_here::NotFound));
        return QString();
    }
    if (QFileInfo(path).suffix().compare(QLatin1String("uha"), Qt::CaseInsensitive) != 0) {
        prompter.critical(QCoreApplication::translate("ExtractHere", extract_here::NotAnArchive));
        return QString();
    }
    const QString destination = run.destinationFolder.isEmpty()
                                    ? QFileInfo(path).absolutePath()
                                    : QFileInfo(run.destinationFolder).absoluteFilePath();
    // The staging folder lies in the destination, so that the new archive is moved into place
    // without a copy; nothing is written unless the destination takes a new folder.
    QString problem;
    const QString staging =
        MakeExtractStaging(QDir(destination).filePath(QFileInfo(path).fileName()), &problem);
    if (staging.isEmpty()) {
        prompter.critical(text(convert_job::CannotWrite).arg(problem));
        return QString();
    }
    // Ended by a signal meanwhile, the program still removes the staging folder.
    struct StagingGuard {
        QString staging;
        int work;
        ~StagingGuard() {
            // Ten thousand extracted files take a while to delete: beside the window's thread,
            // which stays live meanwhile; the program goes on only once they are gone.
            RunBeside([this] { DiscardExtractStaging(staging); });
            RemoveTerminationWork(work);
        }
    } guard{staging, AddTerminationWork([staging] { DiscardExtractStaging(staging); })};

    // A lister of its own reads the names and details only: the main window's tree is left as
    // it is.
    ArchiveLister lister(prompter, main.engineSwitch());
    lister.setNamesOnly(true);
    if (!ListForPassword(lister, prompter, path, text(convert_job::NoPassword), knownPassword))
        return QString();
    const std::vector<ListedFile> files =
        ReadListedFiles(ReadEngineLines(WorkFile(names::ListLog), nullptr, ActiveEngineCodec()));
    // Entries whose names would climb out of the folder are never extracted; without them the
    // conversion would not be whole.
    const QStringList unsafe = lister.lastPass().unsafeNames;
    if (!unsafe.isEmpty()) {
        prompter.critical(text(convert_job::UnsafeNames)
                              .arg(QStringLiteral("  ") + unsafe.mid(0, 10).join(u"\n  ")));
        return QString();
    }
    const QString password = lister.listing().password;
    if (!password.isEmpty())
        prompter.information(text(convert_job::NotProtected));

    ExtractOptions options;
    options.fullPath = true;
    options.destination = QDir::toNativeSeparators(staging);
    options.archive = QDir::toNativeSeparators(path);
    options.password = password;
    options.passwordTicked = !password.isEmpty();
    QString refused;
    if (!WriteExtractJobScript(WorkFile(names::ExtractScript), options, ProgramFolder(), TempRoot(),
                               PathStyle::host(), &refused)) {
        prompter.critical(refused);
        return QString();
    }
    main.setPrompter(&prompter);
    JobWindowRun job{path, {}, EndNotice::FailuresOnly};
    const bool extracted = RunJobWindow(JobKind::Extract, main, job);
    main.setPrompter(&outer);
    if (!extracted)
        return QString(); // the window has said why

    ConvertRequest request;
    request.archivePath = path;
    request.staging = staging;
    request.destinationFolder = destination;
    request.format = run.format;
    request.files = files;
    if (const EngineTextCodecs codecs = ActiveEngineCodecs(); codecs.windows)
        request.names = codecs.text;
    ConvertWindow window(request, main.isVisible() ? &main : nullptr);
    const ConvertOutcome outcome = window.run();
    if (!outcome.ok) {
        if (!outcome.stopped)
            prompter.critical(text(convert_job::NotConverted).arg(outcome.problem));
        return QString();
    }
    qCDebug(lcConvert) << path << "converted to" << outcome.placedPath << outcome.files << "files"
                       << outcome.folders << "folders";
    return outcome.placedPath;
}

} // namespace

int RunConvert(frmApri& main, ConvertRun& run) {
    Prompter& outer = main.prompter();
    QStringList failed;
    for (qsizetype i = 0; i < run.archives.size(); ++i) {
        const QString& archive = run.archives[i];
        const QString made =
            ConvertOne(main, outer, archive, run, i == 0 ? run.knownPassword : QString());
        if (made.isEmpty())
            failed << QDir::toNativeSeparators(QFileInfo(archive).absoluteFilePath());
        else
            run.made << made;
    }
    if (!failed.isEmpty() && run.archives.size() > 1)
        outer.critical(text(convert_job::Summary).arg(failed.join(u'\n')));
    return failed.isEmpty() ? 0 : 1;
}

} // namespace quovara
