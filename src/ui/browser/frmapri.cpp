#include "frmapri.h"

#include "ui/jobs/convertjob.h"
#include "ui/jobs/extractherejob.h"

#include "detailsmodel.h"
#include "filebrowser.h"
#include "focusframe.h"

#include "controls/taskpanebar.h"
#include "controls/uctoolbar.h"
#include "controls/xp_progressbar.h"
#include "core/desktop.h"
#include "core/enginefiles.h"
#include "core/jobscript.h"
#include "core/logging.h"
#include "core/places.h"
#include "core/processcontrol.h"
#include "core/runner.h"
#include "core/singleinstance.h"
#include "core/vbtext.h"
#include "core/workspace.h"
#include "engine/grammar.h"
#include "ui/common/handcursor.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace quovara {

namespace {} // namespace

frmApri::frmApri(QWidget* parent)
    : QMainWindow(parent), messagePrompter_(this), prompter_(&messagePrompter_),
      listingPrompter_(messagePrompter_, [this] { endReadingState(); }),
      lister_(listingPrompter_, switch_) {
    setObjectName(QStringLiteral("frmApri"));
    // The window lists archives of any size, one after another: their big tables must go back
    // to the system when the next listing replaces them.
    KeepBigBlocksReturnable();
    baseTitle_ = ApplicationTitle();
    setWindowTitle(baseTitle_);
    // Files and folders dropped onto the window are added or opened.
    setAcceptDrops(true);
    resize(900, 620);

    auto* central = new QWidget(this);
    auto* outer = new QVBoxLayout(central);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);

    ucToolbar1 = new ucToolbar(central);
    ucToolbar1->setObjectName(QStringLiteral("ucToolbar1"));
    ucToolbar1->setAccessibleName(tr("Commands"));
    outer->addWidget(ucToolbar1);

    auto* body = new QHBoxLayout();
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    outer->addLayout(body, 1);

    Barra = new TaskPaneBar(central);
    Barra->setObjectName(QStringLiteral("Barra"));
    Barra->setAccessibleName(tr("Archive tasks"));
    Barra->setFixedWidth(250);
    body->addWidget(Barra);

    auto* right = new QVBoxLayout();
    right->setContentsMargins(4, 4, 4, 4);
    right->setSpacing(4);
    body->addLayout(right, 1);

    ShComboBox1 = new QComboBox(central);
    ShComboBox1->setObjectName(QStringLiteral("ShComboBox1"));
    ShComboBox1->setEditable(true);
    ShComboBox1->setInsertPolicy(QComboBox::NoInsert);
    ShComboBox1->setAccessibleName(tr("Folder"));
    ShComboBox1->lineEdit()->setAccessibleName(tr("Folder"));
    right->addWidget(ShComboBox1);

    FileView1 = new FileBrowser(central);
    FileView1->setObjectName(QStringLiteral("FileView1"));
    right->addWidget(FileView1, 1);

    Trovati = new QTreeView(central);
    Trovati->setObjectName(QStringLiteral("Trovati"));
    results_ = new SearchResults(Trovati);
    Trovati->setModel(results_);
    Trovati->setItemDelegate(new FocusFrameDelegate(Trovati));
    Trovati->setRootIsDecorated(false);
    Trovati->setItemsExpandable(false);
    Trovati->setAllColumnsShowFocus(true);
    // Every row is one line: the list need not measure each of thousands of results.
    Trovati->setUniformRowHeights(true);
    Trovati->setAccessibleName(tr("Search results"));
    // Name and folder share what the details leave of the list's width, as in the Report view.
    details_cell::fitColumns(Trovati->header(), 2);
    Trovati->hide();
    right->addWidget(Trovati, 1);
    setCentralWidget(central);

    buildPanels();

    connect(FileView1, &FileBrowser::folderChanged, this, &frmApri::onFolderChanged);
    connect(FileView1, &FileBrowser::selectionChanged, this, &frmApri::onSelectionChanged);
    connect(FileView1, &FileBrowser::executeRequested, this, &frmApri::onExecute);
    // On an entry of an archive: the entry's menu; anywhere else: the View menu.
    connect(FileView1, &FileBrowser::menuRequested, this, [this](const QPoint& at, bool onItem) {
        if (onItem && archiveLayout())
            showEntryMenu(at);
        else
            PopView->popup(at);
    });
    connect(FileView1, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& p) { PopView->popup(FileView1->mapToGlobal(p)); });
    connectAddressBar();
    connect(ImgCerca, &QToolButton::clicked, this, &frmApri::StartSearch);
    connect(TxtCerca, &QLineEdit::returnPressed, this, &frmApri::StartSearch);
    connect(EstFile, &QPushButton::clicked, this, [this] {
        if (selectedItem_.isEmpty())
            MsgNessuno();
        else
            showExtractDialog(true);
    });
    connect(EseFile, &QPushButton::clicked, this, [this] {
        if (selectedItem_.isEmpty())
            MsgNessuno();
        else
            ExtractAndRun();
    });
    connect(Trovati->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (!current.isValid())
                    return;
                const SearchHit& hit = results_->hit(current.row());
                rootedSearchItem_ = hit.archiveFolder.isEmpty();
                selectedItem_ = lister_.shownAliases().storedOf(hit.archiveFolder +
                                                                QLatin1Char('\\') + hit.name);
            });
    connect(&search_, &FindFile::found, results_, &SearchResults::append);
    connect(&search_, &FindFile::finished, this,
            [this] { setStatus(apri::Ready, apri::SelectAction); });
    buildShortcuts();
    // Escape stops the reading of an archive (only while one is read).
    stopReading_ = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    stopReading_->setEnabled(false);
    connect(stopReading_, &QShortcut::activated, this, [this] {
        if (listingNow_)
            lister_.Cancel();
    });
}

frmApri::~frmApri() = default;

bool frmApri::prepare() {
    if (AnotherInstanceRunning(lockPath_)) {
        prompter_->exclamation(apri::Text(apri::AlreadyRunning));
        return false;
    }
    SetIdlePriority();
    // The work folder: the previous run's is deleted and a private one made.
    if (!PrepareWorkFolder(*prompter_))
        return false;
    // The window's furniture.
    Barra->hide();
    RatioBar->SetShowText(true);
    buildToolbar();
    buildTaskPane();
    // A window not yet shown is made wide enough for every toolbar button of the user's
    // language side by side, as far as the screen allows; narrower, the toolbar's arrow
    // offers the rest.
    if (!isVisible()) {
        const int wanted = ucToolbar1->sizeHint().width();
        const int room = screen() ? screen()->availableGeometry().width() : wanted;
        if (wanted > width())
            resize(std::min(wanted, room), height());
    }
    // The engine check and the start-up switch to engine 0.6.
    if (!PrepareEngine(*prompter_))
        return false;
    const QString engine = ResolveEngineFile(ProgramFolder(), QStringLiteral("uharc.exe"));
    demonstrationEngine_ = !IsWindowsExecutable(engine);
    baseTitle_ = demonstrationEngine_ ? tr("%1 \u2014 demonstration engine").arg(ApplicationTitle())
                                      : ApplicationTitle();
    setWindowTitle(baseTitle_);
    return true;
}

int frmApri::ExtractHere(const QStringList& archives) {
    if (!prepareHidden())
        return 1;
    return RunExtractHere(*this, archives);
}

int frmApri::Convert(const QString& format, const QStringList& archives) {
    if (!prepareHidden())
        return 1;
    ConvertRun run;
    run.format = ConvertFormatByName(format).value_or(ConvertFormat::Zip);
    run.archives = archives;
    return RunConvert(*this, run);
}

bool frmApri::prepareHidden() {
    setKeptHidden(true);
    // Hidden, the window still places the run's prompts and messages, which are centred on it:
    // it takes the middle of the screen, no bigger than the screen.
    if (const QScreen* s = screen()) {
        const QRect area = s->availableGeometry();
        setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                        size().boundedTo(area.size()), area));
    }
    if (!prepare())
        return false;
    commandLineJob_ = true;
    return true;
}

void frmApri::setVisible(bool visible) {
    if (visible && keptHidden_)
        return;
    QMainWindow::setVisible(visible);
}

bool frmApri::Form_Load(const QString& commandLine) {
    if (!prepare())
        return false;
    FileView1->setFolder(QDir::homePath());

    CommandRequest request = ClassifyCommandLine(commandLine);
    // A path typed in a shell may be relative to where the program was started; the engine
    // runs elsewhere, so every request names its file by its full path.
    if (request.kind != CommandRequest::None && !request.path.isEmpty() &&
        QFileInfo(request.path).isRelative())
        request.path = QDir::toNativeSeparators(QFileInfo(request.path).absoluteFilePath());
    switch (request.kind) {
    case CommandRequest::Archive:
        pointBrowserAt(request.path);
        // The window is there before the archive is read, so the reading can be seen and
        // stopped.
        show();
        OpenItem(request.path);
        if (closedWhileListing_)
            return false;
        break;
    case CommandRequest::Extract:
        commandLineJob_ = true;
        lister_.listing().archivePath = request.path;
        showExtractDialog(false);
        break;
    case CommandRequest::Add:
        commandLineJob_ = true;
        pointBrowserAt(request.path);
        showAddDialog();
        break;
    case CommandRequest::Sfx:
        commandLineJob_ = true;
        pointBrowserAt(request.path);
        OpenItem(request.path);
        if (!lister_.listing().password.isEmpty())
            prompter_->information(apri::Text(apri::SfxProtected));
        else
            showSfxDialog();
        break;
    case CommandRequest::None:
        break;
    }
    if (commandLineJob_) {
        // A served request ends the program through the window's normal close, which undoes
        // an engine switch made while listing.
        close();
        return false;
    }
    return true;
}

void frmApri::openArchiveWithDialog() {
    const QString path = askArchiveToOpen();
    if (!path.isEmpty()) {
        pointBrowserAt(path);
        OpenItem(path);
    }
}

QString frmApri::askArchiveToOpen() {
    return QFileDialog::getOpenFileName(this, tr("Open an archive"), FileView1->folder(),
                                        tr("UHARC archives (*.uha)"));
}

void frmApri::pointBrowserAt(const QString& path) {
    FileView1->setFolder(FolderOf(path));
    FileView1->selectFile(QFileInfo(path).fileName());
}

void frmApri::showTotals(const ArchiveTotals& t) {
    NomeAr->setText(t.filesLabel());
    GranNorm->setText(t.normalSizeLabel());
    GranComp->setText(t.packedSizeLabel());
    MetodoC->setText(t.modeLabel());
    if (t.ratio)
        RatioBar->SetValue(*t.ratio);
}

void frmApri::Uha() {
    // The window names the archive it shows.
    setWindowTitle(titleWith(QFileInfo(lister_.listing().archivePath).fileName()));
    ucToolbar1->SetButtonEnabled(IdSfx, true);
    Barra->show();
    FileView1->setShowHidden(true);
    FileView1->setMultiSelection(true);
    // The Report view shows the entries' details from the listing.
    FileView1->setArchiveDetails(lister_.shownDetails(), ScratchFolder());
    results_->setDetails(lister_.shownDetails());
    // The address bar names the archive, also when it replaced another in the same folder.
    showAddress(FileView1->folder());
}

QString frmApri::titleWith(const QString& head) const {
    // "archive.uha — Quovara": what the window shows, then the program.
    return tr("%1 \u2014 %2").arg(head, baseTitle_);
}

void frmApri::NoUha() {
    setWindowTitle(baseTitle_);
    ucToolbar1->SetButtonEnabled(IdSfx, false);
    Barra->hide();
    FileView1->setShowHidden(false);
    FileView1->setMultiSelection(false);
    FileView1->setArchiveDetails(nullptr, QString());
    results_->setDetails(nullptr);
}

bool frmApri::insideScratchFolder(const QString& folder) const {
    const QString scratch = QDir::cleanPath(ScratchFolder());
    const QString f = QDir::cleanPath(folder);
    return f == scratch || f.startsWith(scratch + QLatin1Char('/'));
}

void frmApri::onFolderChanged(const QString& folder) {
    showAddress(folder);

    // A drag out of the mirror tree carries the entries, not its empty placeholders.
    if (insideScratchFolder(folder))
        FileView1->setDragContent([this] { return makeEntryDrag(); });
    else
        FileView1->setDragContent({});

    // Climbing out of the mirror tree into the work folder goes back to where the archive was.
    if (!Barra->isHidden()) {
        const QString work =
            TempRoot() + PathStyle::host().sep + QLatin1String(names::WorkFolderName);
        if (LongPath(folder).toUpper() == work.toUpper()) {
            FileView1->setFolder(lister_.listing().previousFolder);
            NoUha();
        } else if (!insideScratchFolder(folder)) {
            // The archive layout exists only while the browser is inside the mirror tree:
            // leaving it by any route (Back, the drop-down, a typed path, a double-click)
            // restores the file-system layout.
            NoUha();
        }
    }
}

QString frmApri::archiveItemOf(const QString& path) const {
    QString item = mirrorRelativePath(path);
    item.replace(PathStyle::host().sep, QLatin1Char('\\'));
    // A name shown otherwise than stored (the file system could not hold it) goes to the
    // engine as stored.
    item = lister_.shownAliases().storedOf(item);
    if (QFileInfo(path).isDir())
        item += QStringLiteral("\\*.*");
    return item;
}

void frmApri::onSelectionChanged() {
    if (Barra->isHidden())
        return;
    const QString path = FileView1->selectedPath();
    if (!path.isEmpty()) {
        rootedSearchItem_ = false;
        selectedItem_ = archiveItemOf(path);
    }
}

void frmApri::onExecute(const QString& path) {
    if (Barra->isHidden()) {
        OpenItem(path);
        return;
    }
    rootedSearchItem_ = false;
    selectedItem_ = archiveItemOf(path);
    ExtractAndRun();
}

QString frmApri::selectedStoredName() const {
    // Only the search's own "\" goes: a stored name that begins with one keeps it (and is
    // unsafe).
    return rootedSearchItem_ && selectedItem_.startsWith(QLatin1Char('\\')) ? selectedItem_.mid(1)
                                                                            : selectedItem_;
}

QStringList frmApri::selectedStoredNames() const {
    // A search result is one entry; in the folder view, every selected entry.
    if (!Trovati->isHidden() || !archiveLayout())
        return selectedItem_.isEmpty() ? QStringList() : QStringList{selectedStoredName()};
    QStringList names;
    for (const QString& path : FileView1->selectedPaths()) {
        const QString item = archiveItemOf(path);
        if (!item.isEmpty())
            names << item;
    }
    return names;
}

void frmApri::MsgNessuno() {
    prompter_->exclamation(apri::Text(apri::NoItemSelected));
}

void frmApri::setStatus(const char* stato, const char* consiglio) {
    Stato->setText(apri::Text(stato));
    Consiglio->setText(apri::Text(consiglio));
}

void frmApri::StartSearch() {
    FileView1->hide();
    ShComboBox1->hide();
    Trovati->show();
    results_->clear();
    Stato->setText(tr("Quovara is searching"));
    Consiglio->setText(tr("Back stops the search"));
    search_.start(CompleteSearchPattern(TxtCerca->text()), ScratchFolder());
}

void frmApri::stopSearch() {
    search_.stop();
}

void frmApri::ButtonClick(int index) {
    switch (index) {
    case IdBack:
        if (!Trovati->isHidden()) {
            stopSearch();
            results_->clear();
            Trovati->hide();
            FileView1->show();
            ShComboBox1->show();
        } else {
            FileView1->back();
        }
        break;
    case IdAdd:
        if (FileView1->hasSelection())
            showAddDialog();
        else
            MsgNessuno();
        break;
    case IdExtract:
        if (!Barra->isHidden()) {
            showExtractDialog(false);
        } else if (!FileView1->hasSelection()) {
            MsgNessuno();
        } else if (!Like(FileView1->selectedPath(), QStringLiteral("*.uha"))) {
            prompter_->exclamation(apri::Text(apri::NoArchiveSelected));
        } else {
            showExtractDialog(false);
        }
        break;
    case IdSfx:
        if (!lister_.listing().password.isEmpty())
            prompter_->information(apri::Text(apri::SfxProtected));
        else
            showSfxDialog();
        break;
    case IdVerify:
        if (writeTestScript())
            showTestingWindow();
        break;
    case IdView:
        PopViewChoose(3);
        break;
    case IdUpdate:
        ShellOpen(QString::fromLatin1(apri::VersionPage));
        break;
    case IdAbout:
        showAboutWindow();
        break;
    default:
        break; // separators
    }
}

void frmApri::PopViewChoose(int index) {
    const QList<QAction*> actions = PopView->actions();
    for (QAction* a : actions)
        a->setChecked(false);
    actions[index]->setChecked(true);
    FileView1->setViewMode(index);
}

void frmApri::notAvailable(const QString& what) {
    prompter_->information(tr("%1 is not available in this version yet.").arg(what));
}

bool frmApri::archiveLayout() const {
    return !Barra->isHidden();
}

void frmApri::relistArchive() {
    const QString archive = lister_.listing().archivePath;
    if (archiveLayout() && !archive.isEmpty())
        OpenItem(archive);
}

void frmApri::closeEvent(QCloseEvent* event) {
    if (listingNow_) {
        closedWhileListing_ = true;
        lister_.Cancel();
    }
    stopSearch();
    UndoEngineSwitch(switch_, ProgramFolder());
    QMainWindow::closeEvent(event);
}

} // namespace quovara
