// Dragging the selected entries of an archive out of the browser onto a file manager's folder
// or the desktop. The drag offers them as files (see entrydrag.h); when the drop target asks,
// they are extracted with their folders into a new private folder of the work folder, through
// the extract progress window, and the dragged items are handed over from there: a dragged
// folder brings what lies below it, never the folders above. A failed or stopped extraction
// hands over nothing and leaves nothing behind.
#include "entrydrag.h"
#include "filebrowser.h"
#include "frmapri.h"

#include "core/logging.h"
#include "core/places.h"
#include "engine/extracthere.h"
#include "engine/grammar.h"
#include "ui/jobs/frmprogress.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QTemporaryDir>

namespace quovara {

QMimeData* frmApri::makeEntryDrag() {
    QStringList patterns;
    QStringList shown;
    for (const QString& path : FileView1->selectedPaths()) {
        const QString item = archiveItemOf(path);
        if (item.isEmpty())
            continue;
        patterns << item;
        shown << mirrorRelativePath(path);
    }
    if (patterns.isEmpty())
        return nullptr;
    // The archive as it is now: the drop comes later, and the window may have moved on.
    DragRequest request{lister_.listing().archivePath, lister_.listing().password, patterns, shown,
                        lister_.shownNames()};
    QPointer<frmApri> self(this);
    return new EntryDragData([self, request](const EntryDragData::Deliver& deliver) {
        return self ? self->extractForDrag(request, deliver) : QList<QUrl>();
    });
}

QList<QUrl> frmApri::extractForDrag(const DragRequest& request,
                                    const std::function<void(const QList<QUrl>&)>& deliver) {
    // Only the last drag's files are kept (its target may still be copying them).
    if (!dragStaging_.isEmpty())
        DiscardExtractStaging(dragStaging_);
    dragStaging_.clear();
    QTemporaryDir made(PathStyle::host().join(WorkFolder(), QStringLiteral("drag-XXXXXX")));
    if (!made.isValid()) {
        prompter_->critical(WorkFolderMessage(WorkFolder(), made.errorString()));
        return {};
    }
    made.setAutoRemove(false);
    const QString staging = made.path();

    // An unsafe entry is never extracted: dragged by itself it is refused by name.
    QStringList patterns;
    QStringList shown;
    for (qsizetype i = 0; i < request.patterns.size(); ++i) {
        if (refuseUnsafeItem(request.patterns[i]))
            continue;
        patterns << request.patterns[i];
        shown << request.shown[i];
    }
    if (patterns.isEmpty()) {
        DiscardExtractStaging(staging);
        return {};
    }

    ExtractOptions options;
    options.fullPath = true;
    options.destination = QDir::toNativeSeparators(staging);
    options.archive = QDir::toNativeSeparators(request.archive);
    options.password = request.password;
    options.passwordTicked = !request.password.isEmpty();
    options.choice = FileChoice::FileTypes;
    // The patterns are separated by commas: a comma in a name is matched by "?" instead.
    for (QString& pattern : patterns)
        pattern.replace(QLatin1Char(','), QLatin1Char('?'));
    options.fileTypes = patterns.join(QLatin1Char(','));
    if (!leaveOutUnsafe(options, request.names)) {
        DiscardExtractStaging(staging);
        return {};
    }
    QString refused;
    if (!WriteExtractJobScript(WorkFile(names::ExtractScript), options, ProgramFolder(), TempRoot(),
                               PathStyle::host(), &refused)) {
        prompter_->critical(refused);
        DiscardExtractStaging(staging);
        return {};
    }
    // The outcome is worked out as soon as the window unloads: a target that asked again
    // meanwhile waits for it further up the stack. No notification tells of the end: the drop
    // target shows the files.
    QList<QUrl> urls;
    JobWindowRun run{request.archive, {}, EndNotice::None};
    run.onEnd = [&](bool succeeded) {
        if (!succeeded) {
            // Failed or stopped: what the engine wrote goes, and the target is given nothing.
            DiscardExtractStaging(staging);
        } else {
            dragStaging_ = staging;
            for (const QString& relative : shown) {
                const QString extracted = PathStyle::host().join(staging, relative);
                if (QFileInfo::exists(extracted))
                    urls << QUrl::fromLocalFile(extracted);
                else
                    qCDebug(lcFiles) << "a dragged entry was not extracted:" << relative;
            }
        }
        deliver(urls);
    };
    RunJobWindow(JobKind::Extract, *this, run);
    reportLeftOut();
    return urls;
}

QString frmApri::mirrorRelativePath(const QString& path) const {
    const QString sep(PathStyle::host().sep);
    const qsizetype prefix =
        LongPath(TempRoot()).size() +
        (sep + names::WorkFolderName + sep + names::ScratchFolderName + sep).size();
    return path.mid(prefix);
}

} // namespace quovara
