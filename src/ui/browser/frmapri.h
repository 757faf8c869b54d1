// frmApri: the main window. A folder drop-down and a file browser beside a task pane; an
// opened archive is shown as its mirror tree with its totals in the details group. The
// toolbar and the task pane dispatch every other command.
#pragma once

#include "commandline.h"
#include "findfile.h"
#include "searchresults.h"

#include "engine/grammar.h"
#include "engine/listing.h"
#include "ui/common/messageprompter.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QtGlobal>

class QShortcut;
class QUrl;
class QMimeData;
class QDragEnterEvent;
class QDropEvent;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QToolButton;
class QTreeView;

namespace quovara {

class FileBrowser;
class TaskPaneBar;
class XP_ProgressBar;
class ucToolbar;

// Texts of the window, translated where they are shown (context "quovara::frmApri").
namespace apri {
inline constexpr char AlreadyRunning[] =
    QT_TRANSLATE_NOOP("quovara::frmApri", "Quovara is already running");
inline constexpr char NoItemSelected[] = QT_TRANSLATE_NOOP("quovara::frmApri", "No item selected");
inline constexpr char NoArchiveSelected[] =
    QT_TRANSLATE_NOOP("quovara::frmApri", "No .uha archive selected");
inline constexpr char SfxProtected[] = QT_TRANSLATE_NOOP(
    "quovara::frmApri", "You cannot create a SFX with an archive protected by a password");
inline constexpr char Ready[] = QT_TRANSLATE_NOOP("quovara::frmApri", "Quovara is ready");
inline constexpr char SelectAction[] = QT_TRANSLATE_NOOP("quovara::frmApri", "Select an action");
inline constexpr char Skipping[] = QT_TRANSLATE_NOOP("quovara::frmApri", "Quovara is skipping");
inline constexpr char PleaseWait[] = QT_TRANSLATE_NOOP("quovara::frmApri", "Please wait ...");
// While an archive is listed: the state texts and the window title (%1: the archive's name).
inline constexpr char Reading[] =
    QT_TRANSLATE_NOOP("quovara::frmApri", "Quovara is reading the archive");
inline constexpr char EscapeStops[] = QT_TRANSLATE_NOOP("quovara::frmApri", "Press Escape to stop");
inline constexpr char ReadingCount[] =
    QT_TRANSLATE_NOOP("quovara::frmApri", "Quovara is reading the archive: %1");
inline constexpr char ReadingTitle[] = QT_TRANSLATE_NOOP("quovara::frmApri", "Reading %1 \u2026");
inline constexpr char ReadingTitleCount[] =
    QT_TRANSLATE_NOOP("quovara::frmApri", "Reading %1 \u2026 %2");
// One of the texts above as the user reads it.
inline QString Text(const char* source) {
    return QCoreApplication::translate("quovara::frmApri", source);
}
// "1 entry", "2 entries".
inline QString EntriesText(qint64 n) {
    return n == 1 ? QCoreApplication::translate("quovara::frmApri", "1 entry")
                  : QCoreApplication::translate("quovara::frmApri", "%n entries", nullptr, int(n));
}
// The version page: the product's web server, a fixed path and a fixed query.
inline constexpr char VersionPage[] =
    "http://quovara.example.org/version.php?giorno=1&mese=1&anno=2006";
} // namespace apri

class frmApri : public QMainWindow {
    Q_OBJECT
public:
    explicit frmApri(QWidget* parent = nullptr);
    ~frmApri() override;

    // Start-up in its fixed order. False when the program must end now (another copy runs,
    // no engine, or a command-line request has been served).
    bool Form_Load(const QString& commandLine);
    // Extract Here for the archives given (`quovara --extract-here`): the window stays hidden,
    // each archive shows its progress window. Returns the program's exit status.
    int ExtractHere(const QStringList& archives);
    // Convert for the archives given (`quovara --convert FORMAT`): the same way, each new
    // archive beside its archive.
    int Convert(const QString& format, const QStringList& archives);
    // "Convert…" for the archive the window shows: asks the format and the place, then
    // converts it with its progress windows over this window.
    void showConvertDialog();
    // While set, the window is never shown (a job window's end shows it otherwise).
    void setKeptHidden(bool hidden) { keptHidden_ = hidden; }
    void setVisible(bool visible) override;

    // Opens the browser's selected item: a ".uha" archive is listed, anything else goes to
    // the desktop's open action.
    void OpenSelectedItem();
    void OpenItem(const QString& path);

    // The toolbar's command by button index (separators do nothing).
    void ButtonClick(int index);
    void StartSearch();
    void ExtractAndRun();
    // "No item selected" (exclamation icon): a command that needs a selected item has none.
    void MsgNessuno();
    void PopViewChoose(int index);

    void Uha();
    void NoUha();

    ArchiveLister& lister() { return lister_; }
    const FindFile& findFile() const { return search_; }
    EngineSwitchState& engineSwitch() { return switch_; }
    const QString& selectedItem() const { return selectedItem_; }
    // The selected item as the engine stores it: a search result at the archive's root has a
    // selectedItem that begins with "\", which is not part of its stored name.
    QString selectedStoredName() const;
    // Every selected entry as the engine stores it (the entry menu's "Extract…" takes them all).
    QStringList selectedStoredNames() const;
    // What the Add dialog takes as its source: a dropped file or folder while its dialog is
    // open, else the browser's selection.
    QString addSource() const;
    bool commandLineJob() const { return commandLineJob_; }
    Prompter& prompter() { return *prompter_; }
    // Tests answer message boxes with a recorder.
    void setPrompter(Prompter* prompter) {
        prompter_ = prompter;
        listingPrompter_.setTarget(*prompter);
    }
    // The single-instance lock (empty: the per-user default); tests use their own.
    void setInstanceLockPath(const QString& path) { lockPath_ = path; }
    FileBrowser* fileView() const { return FileView1; }
    // True while an archive is shown (the task pane is visible).
    bool archiveLayout() const;
    // Lists the open archive again (after a job changed it).
    void relistArchive();
    // A plain "not available yet" note for windows that do not exist yet.
    void notAvailable(const QString& what);

protected:
    // The windows that the commands open (one file each: frmapri_<window>.cpp). Tests
    // override them to record what was asked for.
    virtual void showAddDialog();
    virtual void showExtractDialog(bool forSelectedItem);
    virtual void showSfxDialog();
    virtual void showTestingWindow();
    virtual void showAboutWindow();

    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

protected:
    // Asks for an archive to open (Ctrl+O); empty when cancelled. Tests replace it.
    virtual QString askArchiveToOpen();

private:
    // Toolbar button ids, in the order they are added (separators count).
    enum ToolbarId {
        IdBack = 1,
        IdAdd = 3,
        IdExtract = 4,
        IdSfx = 5,
        IdVerify = 6,
        IdView = 8,
        IdUpdate = 10,
        IdAbout = 11,
    };

    // The first existing local file or folder of a drag, or empty.
    static QString droppedPath(const QMimeData* data);
    void openDropped(const QString& path);
    // The source of an Add dialog opened by a drop (empty otherwise).
    QString droppedSource_;

    void buildShortcuts();
    void openArchiveWithDialog();

    // True when `folder` is the ScratchFolder or inside it.
    bool insideScratchFolder(const QString& folder) const;
    // The window's title while no archive is shown.
    QString baseTitle_;
    // `head` followed by the window's own title ("sample.uha — Quovara").
    QString titleWith(const QString& head) const;

    // A listing is under way (Escape or closing the window stops it).
    bool listingNow_ = false;
    // The title and State to go back to when a reading ends (or stops to show a message).
    void endReadingState();
    QString titleBeforeReading_;
    bool readingShown_ = false;
    bool closedWhileListing_ = false;
    ::QShortcut* stopReading_ = nullptr;

    void buildToolbar();
    void buildTaskPane();
    // The task pane's panels (details, operations, state) and the View menu.
    void buildPanels();
    // The menu of the selected entries of an archive ("Open", "Extract…"), at `global`.
    void buildEntryMenu();
    void showEntryMenu(const QPoint& global);
    // "Open" of the entry menu: a folder is shown, a file is extracted and run.
    void openEntry();
    void pointBrowserAt(const QString& path);
    // The address bar (frmapri_address.cpp): what it shows for the browser's folder (inside an
    // archive, the archive's path and the folder inside it), and going to a typed address.
    void connectAddressBar();
    QString shownArchive() const; // the listed archive's clean path, empty when none
    QString addressOf(const QString& folder) const;
    void showAddress(const QString& folder);
    void goToAddress(const QString& typed);
    void showFolderInArchive(const QString& inner);
    void onFolderChanged(const QString& folder);
    void onSelectionChanged();
    void onExecute(const QString& path);
    void showTotals(const ArchiveTotals& totals);
    void setStatus(const char* stato, const char* consiglio);
    void stopSearch();
    bool writeTestScript();
    QString archiveItemOf(const QString& path) const;

    // Unsafe names (frmapri_safenames.cpp): the names of `archive` as an extraction needs them;
    // `options.leftOut` filled, false (the user told) when nothing safe is left; the end of the
    // job's note of what was left out; a refusal of one unsafe entry asked for by name.
    ArchiveNames namesForExtraction(const QString& archive, const QString& password);
    bool leaveOutUnsafe(ExtractOptions& options, const ArchiveNames& names);
    void reportLeftOut();
    bool refuseUnsafeItem(const QString& stored);
    QStringList leftOutReport_;
    // The selected item is a search result at the archive's root (a "\" before its stored name).
    bool rootedSearchItem_ = false;
    // `path` of the mirror tree relative to its root (host separators).
    QString mirrorRelativePath(const QString& path) const;

    // Dragging entries out (frmapri_dragout.cpp): what the drag carries, and the extraction
    // when its target asks for them.
    struct DragRequest {
        QString archive;
        QString password;
        QStringList patterns; // as the engine stores them, a folder as "name\*.*"
        QStringList shown;    // the dragged items relative to the mirror tree's root
        ArchiveNames names;   // the archive's entries (the unsafe ones are left out)
    };
    QMimeData* makeEntryDrag();
    QList<QUrl> extractForDrag(const DragRequest& request,
                               const std::function<void(const QList<QUrl>&)>& deliver);
    // The folder that holds the last drag's extracted entries.
    QString dragStaging_;

    MessagePrompter messagePrompter_;
    Prompter* prompter_;
    // The listing's messages: the window stops saying "Reading …" before it shows one.
    NoticingPrompter listingPrompter_;
    EngineSwitchState switch_;
    ArchiveLister lister_;
    FindFile search_;
    QString selectedItem_;
    bool commandLineJob_ = false;
    bool keptHidden_ = false;
    // The start-up steps every use of the window shares: the single-instance check, the work
    // folder, the engine. False when the program must end.
    bool prepare();
    // prepare() for a job run from the command line with the window kept hidden.
    bool prepareHidden();
    QString lockPath_;
    bool demonstrationEngine_ = false;

    ucToolbar* ucToolbar1 = nullptr;
    QComboBox* ShComboBox1 = nullptr;
    FileBrowser* FileView1 = nullptr;
    QTreeView* Trovati = nullptr;
    SearchResults* results_ = nullptr;
    TaskPaneBar* Barra = nullptr;
    QWidget* pDettagli = nullptr;
    QWidget* pOperazioni = nullptr;
    QWidget* pStato = nullptr;
    XP_ProgressBar* RatioBar = nullptr;
    QLabel* NomeAr = nullptr;
    QLabel* GranNorm = nullptr;
    QLabel* MetodoC = nullptr;
    QLabel* GranComp = nullptr;
    QLabel* RatioP = nullptr;
    QLineEdit* TxtCerca = nullptr;
    QLabel* LBCerca = nullptr;
    QToolButton* ImgCerca = nullptr;
    QPushButton* EstFile = nullptr;
    QPushButton* EseFile = nullptr;
    QLabel* Stato = nullptr;
    QLabel* Consiglio = nullptr;
    QMenu* PopView = nullptr;
    QMenu* entryMenu_ = nullptr;
};

} // namespace quovara
