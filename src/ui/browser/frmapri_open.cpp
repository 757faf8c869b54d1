// Opening an item of the folder view: an archive is read (the window takes no other input
// meanwhile), a folder is shown, a file of an archive is extracted and run.
#include "frmapri.h"

#include "filebrowser.h"

#include "core/desktop.h"
#include "core/jobscript.h"
#include "core/logging.h"
#include "core/places.h"
#include "core/processcontrol.h"
#include "core/runner.h"
#include "core/vbtext.h"
#include "engine/grammar.h"
#include "engine/namecheck.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QTimer>
#include <optional>

namespace quovara {

namespace {

// While an archive is read, the window takes no input but what stops the reading (Escape,
// Ctrl+Q, closing it): a click or a key that started another listing or a job in the middle of
// this one would have two jobs working on the same files of the work folder. Other windows
// (the password prompt, a message) are not touched, nor are releases, which start nothing
// whose press was not seen.
class ReadingInputGuard : public QObject {
public:
    explicit ReadingInputGuard(QWidget* window) : window_(window) {
        qApp->installEventFilter(this);
    }
    ~ReadingInputGuard() override { qApp->removeEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::ContextMenu:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            break;
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            if (stopsTheReading(static_cast<QKeyEvent*>(event)))
                return false;
            break;
        default:
            return false;
        }
        auto* widget = qobject_cast<QWidget*>(watched);
        if (!widget || widget->window() != window_)
            return false;
        // Claimed by the widget, a key fires none of the window's shortcuts, and the key
        // itself is then dropped here.
        event->accept();
        return true;
    }

private:
    static bool stopsTheReading(const QKeyEvent* key) {
        const QKeyCombination combination = key->keyCombination();
        return combination == QKeyCombination(Qt::Key_Escape) ||
               combination == QKeyCombination(Qt::CTRL | Qt::Key_Q);
    }

    QWidget* window_;
};

} // namespace

void frmApri::endReadingState() {
    if (!readingShown_)
        return;
    readingShown_ = false;
    setWindowTitle(titleBeforeReading_);
    setStatus(apri::Ready, apri::SelectAction);
}

void frmApri::OpenSelectedItem() {
    OpenItem(FileView1->selectedPath());
}

void frmApri::OpenItem(const QString& path) {
    if (path.isEmpty())
        return;
    // While the archive is read the window says so, and Escape or closing it stops the reading.
    const bool archiveName = IsArchiveName(path);
    std::optional<ReadingInputGuard> guard;
    if (archiveName) {
        guard.emplace(this);
        listingNow_ = true;
        stopReading_->setEnabled(true);
        titleBeforeReading_ = windowTitle();
        readingShown_ = true;
        setWindowTitle(titleWith(apri::Text(apri::ReadingTitle).arg(QFileInfo(path).fileName())));
        setStatus(apri::Reading, apri::EscapeStops);
    }
    // The count of entries made so far, while the folder view is built: in the state group,
    // and in the title, which shows also while the task pane is hidden.
    QTimer count;
    count.setInterval(200);
    connect(&count, &QTimer::timeout, this, [this, path] {
        if (!readingShown_)
            return;
        if (const qint64 n = lister_.entriesPlaced(); n > 0) {
            Stato->setText(apri::Text(apri::ReadingCount).arg(apri::EntriesText(n)));
            setWindowTitle(titleWith(apri::Text(apri::ReadingTitleCount)
                                         .arg(QFileInfo(path).fileName(), apri::EntriesText(n))));
        }
    });
    if (archiveName)
        count.start();
    const bool listed = lister_.OpenSelectedArchive(path);
    count.stop();
    if (archiveName) {
        guard.reset();
        listingNow_ = false;
        stopReading_->setEnabled(false);
        endReadingState();
    }
    if (listed && lister_.cancelled())
        return;
    if (!listed) {
        // Not an archive: the desktop's own action for the item.
        ShellOpen(path);
        return;
    }
    if (!lister_.startError().isEmpty()) {
        prompter_->critical(tr("The engine could not be started.\n\n%1").arg(lister_.startError()));
        return;
    }
    if (lister_.listing().status == ListStatus::Opened) {
        // The folder to go back to when the browser climbs out of the mirror tree. An archive
        // listed again from inside its own tree (after a job changed it) still lies where it
        // was: the folder remembered when it was first opened stays.
        ArchiveListing& l = lister_.listing();
        if (!insideScratchFolder(FileView1->folder()))
            l.previousFolder = FileView1->folder();
        else if (l.previousFolder.isEmpty())
            l.previousFolder = FolderOf(l.archivePath);
        FileView1->setFolder(ScratchFolder());
    }
    if (const auto totals = lister_.Info()) {
        Uha();
        showTotals(*totals);
        // The previous listing's details and buffers are gone now: their memory goes back.
        ReturnFreedMemory();
    }
}

void frmApri::ExtractAndRun() {
    const QString script = WorkFile(names::SingleScript);
    const ArchiveListing& l = lister_.listing();
    const QString item = selectedStoredName();
    if (refuseUnsafeItem(item))
        return;
    // A file's name may also be the last part of an unsafe entry, and a folder may hold one:
    // every unsafe entry is excluded by name.
    const ArchiveNames names = lister_.shownNames();
    if (const QString problem = UnsafeExtractionProblem(names); !problem.isEmpty()) {
        prompter_->exclamation(problem);
        return;
    }
    const QStringList& unsafe = names.unsafe;
    leftOutReport_ =
        item.endsWith(QLatin1String("\\*.*")) ? UnsafeNamesTaken(unsafe, {item}) : QStringList();
    QString refused;
    if (!WriteJobScript(script, Preamble::Job,
                        SingleItemCommandPieces(ProgramFolder(), TempRoot(), l.password,
                                                l.archivePath, item, PathStyle::host(), unsafe),
                        LastLine::NoLineEnd, &refused)) {
        prompter_->critical(refused);
        return;
    }
    setStatus(apri::Skipping, apri::PleaseWait);
    QString error;
    if (!RunAndWait(script, 0, WorkFolder(), {}, &error))
        qCDebug(lcRunner) << "single-item job not started:" << error;
    ShellOpenReport(*prompter_, PathStyle::host().join(WorkFolder(), sGiveFile(item)), QString(),
                    QString(), 0);
    setStatus(apri::Ready, apri::SelectAction);
    reportLeftOut();
}

} // namespace quovara
