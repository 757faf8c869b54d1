#include "frmapri.h"

#include "filebrowser.h"
#include "fileicons.h"
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

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>
#include <optional>

namespace quovara {

namespace {

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

QPushButton* linkButton(const QString& caption, const char* name, QWidget* parent) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(QLatin1String(name));
    b->setFlat(true);
    SetHandCursor(b, true);
    b->setStyleSheet(QStringLiteral("QPushButton { text-align: left; color: #1c3f94; border: none;"
                                    " padding: 2px; }"
                                    "QPushButton:hover, QPushButton:focus { color: #3d6ee0;"
                                    " text-decoration: underline; }"));
    return b;
}

QLabel* label(const QString& caption, const char* name, QWidget* parent) {
    auto* l = new QLabel(caption, parent);
    l->setObjectName(QLatin1String(name));
    return l;
}

} // namespace

frmApri::frmApri(QWidget* parent)
    : QMainWindow(parent), messagePrompter_(this), prompter_(&messagePrompter_),
      lister_(messagePrompter_, switch_) {
    setObjectName(QStringLiteral("frmApri"));
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
    ucToolbar1->setAccessibleName(QStringLiteral("Commands"));
    outer->addWidget(ucToolbar1);

    auto* body = new QHBoxLayout();
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(0);
    outer->addLayout(body, 1);

    Barra = new TaskPaneBar(central);
    Barra->setObjectName(QStringLiteral("Barra"));
    Barra->setAccessibleName(QStringLiteral("Archive tasks"));
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
    ShComboBox1->setAccessibleName(QStringLiteral("Folder"));
    ShComboBox1->lineEdit()->setAccessibleName(QStringLiteral("Folder"));
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
    Trovati->setAccessibleName(QStringLiteral("Search results"));
    Trovati->hide();
    right->addWidget(Trovati, 1);
    setCentralWidget(central);

    // Details: the ratio bar and the totals.
    // The panels belong to the window until the task pane hosts them (Form_Load).
    pDettagli = new QWidget(this);
    pDettagli->hide();
    pDettagli->setObjectName(QStringLiteral("pDettagli"));
    auto* details = new QGridLayout(pDettagli);
    details->setContentsMargins(8, 6, 8, 8);
    details->setVerticalSpacing(3);
    NomeAr = label(QStringLiteral("Files Number:"), "NomeAr", pDettagli);
    GranNorm = label(QStringLiteral("Grandezza normale:"), "GranNorm", pDettagli);
    GranComp = label(QStringLiteral("Grandezza compresso:"), "GranComp", pDettagli);
    MetodoC = label(QStringLiteral("Metodo:"), "MetodoC", pDettagli);
    RatioP = label(QStringLiteral("Ratio:"), "RatioP", pDettagli);
    RatioBar = new XP_ProgressBar(pDettagli);
    RatioBar->setObjectName(QStringLiteral("RatioBar"));
    RatioBar->setAccessibleName(QStringLiteral("Ratio"));
    RatioBar->setMinimumHeight(18);
    details->addWidget(NomeAr, 0, 0, 1, 2);
    details->addWidget(GranNorm, 1, 0, 1, 2);
    details->addWidget(GranComp, 2, 0, 1, 2);
    details->addWidget(MetodoC, 3, 0, 1, 2);
    details->addWidget(RatioP, 4, 0);
    details->addWidget(RatioBar, 4, 1);
    details->setColumnStretch(1, 1);

    // Operations: search and the single-item commands.
    pOperazioni = new QWidget(this);
    pOperazioni->hide();
    pOperazioni->setObjectName(QStringLiteral("pOperazioni"));
    auto* ops = new QGridLayout(pOperazioni);
    ops->setContentsMargins(8, 6, 8, 8);
    ops->setVerticalSpacing(4);
    LBCerca = label(QStringLiteral("Search file in archive"), "LBCerca", pOperazioni);
    TxtCerca = new QLineEdit(pOperazioni);
    TxtCerca->setObjectName(QStringLiteral("TxtCerca"));
    TxtCerca->setAccessibleName(QStringLiteral("Search file in archive"));
    TxtCerca->setToolTip(QStringLiteral("Search file in archive (Ctrl+F)"));
    LBCerca->setBuddy(TxtCerca);
    ImgCerca = new QToolButton(pOperazioni);
    ImgCerca->setObjectName(QStringLiteral("ImgCerca"));
    ImgCerca->setIcon(QIcon(QStringLiteral(":/icons/search.svg")));
    ImgCerca->setIconSize(QSize(20, 20));
    ImgCerca->setAutoRaise(true);
    SetHandCursor(ImgCerca, true);
    ImgCerca->setAccessibleName(QStringLiteral("Search"));
    ImgCerca->setToolTip(QStringLiteral("Search (Ctrl+F)"));
    EstFile = linkButton(QStringLiteral("Extract selected item"), "EstFile", pOperazioni);
    EseFile = linkButton(QStringLiteral("Run selected file"), "EseFile", pOperazioni);
    ops->addWidget(LBCerca, 0, 0, 1, 2);
    ops->addWidget(TxtCerca, 1, 0);
    ops->addWidget(ImgCerca, 1, 1);
    ops->addWidget(EstFile, 2, 0, 1, 2);
    ops->addWidget(EseFile, 3, 0, 1, 2);
    ops->setColumnStretch(0, 1);

    // State: what the program is doing.
    pStato = new QWidget(this);
    pStato->hide();
    pStato->setObjectName(QStringLiteral("pStato"));
    auto* state = new QVBoxLayout(pStato);
    state->setContentsMargins(8, 6, 8, 8);
    Stato = label(QString::fromLatin1(apri::Ready), "Stato", pStato);
    QFont bold = Stato->font();
    bold.setBold(true);
    Stato->setFont(bold);
    Consiglio = label(QString::fromLatin1(apri::SelectAction), "Consiglio", pStato);
    // The state texts wrap rather than being cut ("Quovara is reading the archive: N entries"
    // is wider than the pane); the room they may need is kept below them.
    Stato->setWordWrap(true);
    Consiglio->setWordWrap(true);
    state->addWidget(Stato);
    state->addWidget(Consiglio);
    state->addStretch(1);

    PopView = new QMenu(this);
    PopView->setObjectName(QStringLiteral("PopView"));
    const char* modes[] = {"Large Icon", "Report", "Small Icon", "List"};
    for (int i = 0; i < 4; ++i) {
        QAction* a = PopView->addAction(QString::fromLatin1(modes[i]));
        a->setCheckable(true);
        connect(a, &QAction::triggered, this, [this, i] { PopViewChoose(i); });
    }
    PopView->actions()[3]->setChecked(true);

    connect(FileView1, &FileBrowser::folderChanged, this, &frmApri::onFolderChanged);
    connect(FileView1, &FileBrowser::selectionChanged, this, &frmApri::onSelectionChanged);
    connect(FileView1, &FileBrowser::executeRequested, this, &frmApri::onExecute);
    FileView1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(FileView1, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& p) { PopView->popup(FileView1->mapToGlobal(p)); });
    connect(ShComboBox1, &QComboBox::activated, this, [this](int index) {
        const QString folder = ShComboBox1->itemData(index).toString();
        if (!folder.isEmpty())
            FileView1->setFolder(folder);
    });
    connect(ShComboBox1->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        const QString typed = ShComboBox1->currentText();
        if (QFileInfo(typed).isDir())
            FileView1->setFolder(typed);
    });
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

bool frmApri::Form_Load(const QString& commandLine) {
    if (AnotherInstanceRunning(lockPath_)) {
        prompter_->exclamation(QString::fromLatin1(apri::AlreadyRunning));
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
    // The engine check and the start-up switch to engine 0.6.
    if (!PrepareEngine(*prompter_))
        return false;
    const QString engine = ResolveEngineFile(ProgramFolder(), QStringLiteral("uharc.exe"));
    demonstrationEngine_ = !IsWindowsExecutable(engine);
    baseTitle_ = demonstrationEngine_
                     ? ApplicationTitle() + QStringLiteral(" \u2014 demonstration engine")
                     : ApplicationTitle();
    setWindowTitle(baseTitle_);
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
            prompter_->information(QString::fromLatin1(apri::SfxProtected));
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

void frmApri::buildToolbar() {
    // Flat, list style (caption beside the image), divider.
    ucToolbar1->Initialize(32, true, true, true);
    const char* icons[] = {"101-back",   "102-add",  "103-extract", "104-sfx",
                           "105-verify", "106-view", "107-update",  "108-about"};
    for (const char* icon : icons)
        ucToolbar1->AddIcon(
            QIcon(QStringLiteral(":/icons/toolbar/%1.svg").arg(QLatin1String(icon))));
    ucToolbar1->AddButton(QStringLiteral("Back"), 0, QStringLiteral("Back (Backspace, Alt+Left)"));
    ucToolbar1->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    ucToolbar1->AddButton(QStringLiteral("Add"), 1, QStringLiteral("Add files to an archive"));
    ucToolbar1->AddButton(QStringLiteral("Extract"), 2, QStringLiteral("Extract an archive"));
    ucToolbar1->AddButton(QStringLiteral("SFX"), 3,
                          QStringLiteral("Make a self-extracting program of the archive"));
    ucToolbar1->AddButton(QStringLiteral("Verify"), 4, QStringLiteral("Test an archive"));
    ucToolbar1->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    ucToolbar1->AddButton(QStringLiteral("View"), 5, QStringLiteral("Change the view"),
                          ucToolbar::tbrDropDown);
    ucToolbar1->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    ucToolbar1->AddButton(QStringLiteral("Update"), 6, QStringLiteral("Look for a newer version"));
    // The keys that have no button of their own are named in the last button's tip.
    ucToolbar1->AddButton(
        QStringLiteral("About"), 7,
        QStringLiteral(
            "About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit"));
    ucToolbar1->SetButtonEnabled(IdSfx, false);
    ucToolbar1->setFixedHeight(ucToolbar1->ToolbarHeight() + 4);
    connect(ucToolbar1, &ucToolbar::ButtonClick, this, &frmApri::ButtonClick);
    connect(ucToolbar1, &ucToolbar::ButtonDropDown, this,
            [this](int, int x, int y) { PopView->popup(mapToGlobal(QPoint(x, y))); });
}

void frmApri::buildShortcuts() {
    // Everything can be reached without the mouse. A line edit keeps Backspace for itself.
    auto add = [this](const QKeySequence& keys, const char* name, auto slot) {
        auto* s = new QShortcut(keys, this);
        s->setObjectName(QLatin1String(name));
        connect(s, &QShortcut::activated, this, slot);
    };
    add(QKeySequence(Qt::Key_Backspace), "BackKey", [this] { ButtonClick(IdBack); });
    add(QKeySequence(Qt::ALT | Qt::Key_Left), "BackAltLeft", [this] { ButtonClick(IdBack); });
    add(QKeySequence(Qt::CTRL | Qt::Key_F), "FindKey", [this] {
        if (!Barra->isHidden()) {
            TxtCerca->setFocus(Qt::ShortcutFocusReason);
            TxtCerca->selectAll();
        }
    });
    add(QKeySequence(Qt::Key_F5), "RelistKey", [this] { relistArchive(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_O), "OpenKey", [this] { openArchiveWithDialog(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Q), "QuitKey", [this] { close(); });
}

void frmApri::openArchiveWithDialog() {
    const QString path = askArchiveToOpen();
    if (!path.isEmpty()) {
        pointBrowserAt(path);
        OpenItem(path);
    }
}

QString frmApri::askArchiveToOpen() {
    return QFileDialog::getOpenFileName(this, QStringLiteral("Open an archive"),
                                        FileView1->folder(),
                                        QStringLiteral("UHARC archives (*.uha)"));
}

void frmApri::buildTaskPane() {
    Barra->DisableUpdates(true);
    Barra->AddGroup(QStringLiteral("Dettagli"), QStringLiteral("Details"));
    Barra->AddGroup(QStringLiteral("Operazioni"), QStringLiteral("File and Folder Operations"));
    Barra->AddGroup(QStringLiteral("Stato"), QStringLiteral("State"));
    // Each group's content takes the height it needs; its width follows the pane (narrower
    // when the pane shows its scroll bar), so nothing in it is cut.
    for (QWidget* w : {pDettagli, pOperazioni, pStato}) {
        w->resize(Barra->width() - 30, w->sizeHint().height());
        w->setFixedHeight(w->sizeHint().height());
    }
    // The state group is as tall as its longest texts need at its narrowest (beside the
    // pane's scroll bar): the count of a big archive being read, and the hint below it.
    const QMargins m = pStato->layout()->contentsMargins();
    const int narrowest = Barra->width() - 30 - style()->pixelMetric(QStyle::PM_ScrollBarExtent) -
                          m.left() - m.right();
    auto wrapped = [narrowest](const QLabel* l, const QString& text) {
        return l->fontMetrics()
            .boundingRect(QRect(0, 0, narrowest, 10000), Qt::TextWordWrap, text)
            .height();
    };
    pStato->setFixedHeight(
        m.top() +
        wrapped(Stato, QString::fromLatin1(apri::ReadingCount).arg(apri::EntriesText(9999999))) +
        pStato->layout()->spacing() +
        std::max(wrapped(Consiglio, QString::fromLatin1(apri::SelectAction)),
                 wrapped(Consiglio, QString::fromLatin1(apri::EscapeStops))) +
        m.bottom());
    Barra->SetGroupChild(QStringLiteral("Dettagli"), pDettagli);
    Barra->SetGroupChild(QStringLiteral("Operazioni"), pOperazioni);
    Barra->SetGroupChild(QStringLiteral("Stato"), pStato);
    Barra->DisableUpdates(false);
}

void frmApri::pointBrowserAt(const QString& path) {
    FileView1->setFolder(FolderOf(path));
    FileView1->selectFile(QFileInfo(path).fileName());
}

void frmApri::OpenSelectedItem() {
    OpenItem(FileView1->selectedPath());
}

void frmApri::OpenItem(const QString& path) {
    if (path.isEmpty())
        return;
    // While the archive is read the window says so, and Escape or closing it stops the reading.
    const QString title = windowTitle();
    const bool archiveName = IsArchiveName(path);
    std::optional<ReadingInputGuard> guard;
    if (archiveName) {
        guard.emplace(this);
        listingNow_ = true;
        stopReading_->setEnabled(true);
        setWindowTitle(
            titleWith(QString::fromUtf8(apri::ReadingTitle).arg(QFileInfo(path).fileName())));
        setStatus(apri::Reading, apri::EscapeStops);
    }
    // The count of entries made so far, while the folder view is built: in the state group,
    // and in the title, which shows also while the task pane is hidden.
    QTimer count;
    count.setInterval(200);
    connect(&count, &QTimer::timeout, this, [this, path] {
        if (const qint64 n = lister_.entriesPlaced(); n > 0) {
            Stato->setText(QString::fromLatin1(apri::ReadingCount).arg(apri::EntriesText(n)));
            setWindowTitle(titleWith(QString::fromUtf8(apri::ReadingTitleCount)
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
        setWindowTitle(title);
        setStatus(apri::Ready, apri::SelectAction);
    }
    if (listed && lister_.cancelled())
        return;
    if (!listed) {
        // Not an archive: the desktop's own action for the item.
        ShellOpen(path);
        return;
    }
    if (!lister_.startError().isEmpty()) {
        prompter_->critical(QStringLiteral("The engine could not be started.\n\n") +
                            lister_.startError());
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
    }
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
    PopView->actions()[1]->setEnabled(false);
}

QString frmApri::titleWith(const QString& head) const {
    return head + QStringLiteral(" \u2014 ") + baseTitle_;
}

void frmApri::NoUha() {
    setWindowTitle(baseTitle_);
    ucToolbar1->SetButtonEnabled(IdSfx, false);
    Barra->hide();
    FileView1->setShowHidden(false);
    PopView->actions()[1]->setEnabled(true);
}

bool frmApri::insideScratchFolder(const QString& folder) const {
    const QString scratch = QDir::cleanPath(ScratchFolder());
    const QString f = QDir::cleanPath(folder);
    return f == scratch || f.startsWith(scratch + QLatin1Char('/'));
}

void frmApri::onFolderChanged(const QString& folder) {
    // The drop-down lists the folder and the folders above it.
    ShComboBox1->blockSignals(true);
    ShComboBox1->clear();
    QStringList chain;
    QDir dir(folder);
    do {
        chain.prepend(QDir::toNativeSeparators(dir.absolutePath()));
    } while (dir.cdUp());
    for (int i = 0; i < chain.size(); ++i) {
        const QString name = i == 0 ? chain[i] : QFileInfo(chain[i]).fileName();
        ShComboBox1->addItem(SharedFileIconProvider()->icon(QFileInfo(chain[i])),
                             QString(i * 2, QLatin1Char(' ')) + name, chain[i]);
    }
    ShComboBox1->setCurrentIndex(ShComboBox1->count() - 1);
    ShComboBox1->setEditText(QDir::toNativeSeparators(folder));
    ShComboBox1->blockSignals(false);

    // Nothing is dragged out of the mirror tree: its files are empty placeholders.
    FileView1->setDragOut(!insideScratchFolder(folder));

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
    const QString sep(PathStyle::host().sep);
    const int prefix = LongPath(TempRoot()).size() +
                       (sep + names::WorkFolderName + sep + names::ScratchFolderName + sep).size();
    QString item = path.mid(prefix);
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
    if (!path.isEmpty())
        selectedItem_ = archiveItemOf(path);
}

void frmApri::onExecute(const QString& path) {
    if (Barra->isHidden()) {
        OpenItem(path);
        return;
    }
    selectedItem_ = archiveItemOf(path);
    ExtractAndRun();
}

QString frmApri::selectedStoredName() const {
    return selectedItem_.startsWith(QLatin1Char('\\')) ? selectedItem_.mid(1) : selectedItem_;
}

void frmApri::MsgNessuno() {
    prompter_->exclamation(QString::fromLatin1(apri::NoItemSelected));
}

void frmApri::setStatus(const char* stato, const char* consiglio) {
    Stato->setText(QString::fromLatin1(stato));
    Consiglio->setText(QString::fromLatin1(consiglio));
}

void frmApri::ExtractAndRun() {
    const QString script = WorkFile(names::SingleScript);
    const ArchiveListing& l = lister_.listing();
    QString refused;
    if (!WriteJobScript(script, Preamble::Job,
                        SingleItemCommandPieces(ProgramFolder(), TempRoot(), l.password,
                                                l.archivePath, selectedStoredName(),
                                                PathStyle::host()),
                        LastLine::NoLineEnd, &refused)) {
        prompter_->critical(refused);
        return;
    }
    setStatus(apri::Skipping, apri::PleaseWait);
    QString error;
    if (!RunAndWait(script, 0, WorkFolder(), {}, &error))
        qCDebug(lcRunner) << "single-item job not started:" << error;
    ShellOpenReport(*prompter_,
                    PathStyle::host().join(WorkFolder(), sGiveFile(selectedStoredName())),
                    QString(), QString(), 0);
    setStatus(apri::Ready, apri::SelectAction);
}

void frmApri::StartSearch() {
    FileView1->hide();
    ShComboBox1->hide();
    Trovati->show();
    results_->clear();
    // Each column takes half of the list's width.
    Trovati->setColumnWidth(0, Trovati->viewport()->width() / 2);
    Trovati->setColumnWidth(1, Trovati->viewport()->width() / 2);
    Stato->setText(QStringLiteral("Quovara is searching"));
    Consiglio->setText(QStringLiteral("Back stops the search"));
    search_.start(CompleteSearchPattern(TxtCerca->text()), ScratchFolder());
}

void frmApri::stopSearch() {
    search_.stop();
}

bool frmApri::writeTestScript() {
    QString archive;
    if (!Barra->isHidden()) {
        archive = lister_.listing().archivePath;
    } else {
        archive = FileView1->selectedPath();
        if (!Like(archive, QStringLiteral("*.uha"))) {
            prompter_->exclamation(QString::fromLatin1(apri::NoArchiveSelected));
            return false;
        }
    }
    const QString script = WorkFile(names::TestScript);
    QString refused;
    if (!WriteJobScript(script, Preamble::Job,
                        TestCommandPieces(ProgramFolder(), TempRoot(), archive, PathStyle::host()),
                        LastLine::LineEnd, &refused)) {
        prompter_->critical(refused);
        return false;
    }
    return true;
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
            prompter_->exclamation(QString::fromLatin1(apri::NoArchiveSelected));
        } else {
            showExtractDialog(false);
        }
        break;
    case IdSfx:
        if (!lister_.listing().password.isEmpty())
            prompter_->information(QString::fromLatin1(apri::SfxProtected));
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
    prompter_->information(what + QStringLiteral(" is not available in this version yet."));
}

bool frmApri::archiveLayout() const {
    return !Barra->isHidden();
}

void frmApri::relistArchive() {
    const QString archive = lister_.listing().archivePath;
    if (archiveLayout() && !archive.isEmpty())
        OpenItem(archive);
}

void frmApri::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedPath(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmApri::dropEvent(QDropEvent* event) {
    const QString path = droppedPath(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // Handled once the drop has finished, so the source of the drag is not kept waiting.
    QTimer::singleShot(0, this, [this, path] { openDropped(path); });
}

QString frmApri::droppedPath(const QMimeData* data) {
    if (!data || !data->hasUrls())
        return QString();
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile() && QFileInfo::exists(url.toLocalFile()))
            return QDir::cleanPath(url.toLocalFile());
    }
    return QString();
}

void frmApri::openDropped(const QString& path) {
    const QFileInfo info(path);
    pointBrowserAt(path);
    if (info.isFile() && IsArchiveName(path)) {
        // A dropped archive is opened as if it were double-clicked.
        OpenItem(path);
        return;
    }
    // Anything else is a source for the Add dialog, as if it were selected in the browser.
    droppedSource_ = path;
    showAddDialog();
    droppedSource_.clear();
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
