#include "frmestrai.h"

#include "core/places.h"
#include "core/prompter.h"
#include "ui/common/foldertree.h"
#include "ui/common/foldertreemodel.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcExtractDialog, "quovara.dialog.extract", QtInfoMsg)

namespace quovara {

namespace {
// How long the dialog waits, before it opens, for the folders above the archive's folder to be
// read: long enough for any local disk, short enough for the dialog to open within 0.3 s.
constexpr int SettleMs = 200;
} // namespace

frmEstrai::frmEstrai(const QString& archivePath, Prompter& prompter, JobHandOver handOver,
                     QWidget* parent)
    : QDialog(parent), prompter_(prompter), handOver_(std::move(handOver)),
      ArchivePath(archivePath) {
    setObjectName(QStringLiteral("frmEstrai"));
    setWindowTitle(tr(estrai::DesignCaption));
    buildControls();
    Form_Load();
}

frmEstrai::~frmEstrai() = default;

void frmEstrai::buildControls() {
    Label2 = named(new QLabel(tr(estrai::ExtractTo), this), "Label2");
    TxTDir = named(new QLineEdit(this), "TxTDir");
    TxTDir->setAccessibleName(tr(estrai::ExtractTo));
    Label2->setBuddy(TxTDir);
    connect(TxTDir, &QLineEdit::textEdited, this, [this] { typed_ = true; });

    // The folder tree: every folder of the file system, from the root, folders only. It holds
    // still while folders are read, so a click lands on the folder the user saw there.
    FolderView1 = named(new FolderTree(this), "FolderView1");
    folders_ = FolderView1->folders();
    folders_->setObjectName(QStringLiteral("FolderModel"));
    FolderView1->setAccessibleName(tr("Folders"));
    // Small enough for the dialog to fit a 640x420 screen; it grows with the dialog.
    FolderView1->setMinimumSize(220, 140);
    connect(FolderView1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { FolderView1_FolderClick(current); });
    // A new folder renamed in place: the box follows the selected folder's new name.
    connect(folders_, &FolderTreeModel::folderRenamed, this,
            [this](const QString& path, const QString& oldName, const QString& newName) {
                if (SamePath(QDir(path).filePath(oldName), TxTDir->text()))
                    TxTDir->setText(QDir::toNativeSeparators(QDir(path).filePath(newName)));
            });

    Command1 = named(new QPushButton(tr(estrai::CreateNewFolder), this), "Command1");
    Command1->setAutoDefault(false);

    // "Extract files to current dir" stands alone in its option group: once chosen it cannot
    // be cleared.
    auto* currentDir = new QWidget(this);
    currentDir->setObjectName(QStringLiteral("CurrentDirGroup"));
    Option1 = named(new QRadioButton(tr(estrai::ToCurrentDir), currentDir), "Option1");
    auto* currentDirGroup = new QButtonGroup(currentDir);
    currentDirGroup->setExclusive(true);
    currentDirGroup->addButton(Option1);
    auto* currentDirRow = new QHBoxLayout(currentDir);
    currentDirRow->setContentsMargins(0, 0, 0, 0);
    currentDirRow->addWidget(Option1);

    Frame1 = named(new QGroupBox(tr(estrai::Option), this), "Frame1");
    Check3 = named(new QCheckBox(tr(estrai::FullPath)), "Check3");
    Check2 = named(new QCheckBox(DialogText(dialogtext::Password)), "Check2");
    TxTPwd = named(new QLineEdit(), "TxTPwd");
    TxTPwd->setAccessibleName(DialogText(dialogtext::Password));
    TxTPwd->setEchoMode(QLineEdit::Password);
    TxTPwd->setStyleSheet(QStringLiteral("QLineEdit { lineedit-password-character: 42; }"));
    Check1 = named(new QCheckBox(tr(estrai::Overwrite)), "Check1");
    auto* options = new QGridLayout(Frame1);
    options->setColumnMinimumWidth(0, 18);
    options->addWidget(Check3, 0, 0, 1, 2);
    options->addWidget(Check2, 1, 0, 1, 2);
    options->addWidget(TxTPwd, 2, 1);
    options->addWidget(Check1, 3, 0, 1, 2);
    options->setColumnStretch(1, 1);

    files_ = BuildFileChoiceFrame("Frame2", tr(estrai::FileTypes), this);

    Command2 = named(new QPushButton(tr(estrai::Ok), this), "Command2");
    Command2->setDefault(true);
    Command3 = named(new QPushButton(tr(estrai::Cancel), this), "Command3");
    Command3->setAutoDefault(false);

    auto* left = new QVBoxLayout();
    left->addWidget(Label2);
    left->addWidget(TxTDir);
    left->addWidget(FolderView1, 1);
    auto* folderRow = new QHBoxLayout();
    folderRow->addWidget(Command1);
    folderRow->addStretch(1);
    left->addLayout(folderRow);
    left->addWidget(currentDir);

    auto* right = new QVBoxLayout();
    right->addWidget(Frame1);
    right->addWidget(files_.Frame);
    right->addStretch(1);
    auto* buttons = new QHBoxLayout();
    buttons->addStretch(1);
    buttons->addWidget(Command2);
    buttons->addWidget(Command3);
    right->addLayout(buttons);

    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addSpacing(6);
    layout->addLayout(right, 1);

    QList<QWidget*> order{TxTDir, FolderView1, Command1, Option1, Check3, Check2, TxTPwd, Check1};
    order += files_.tabOrder();
    order += QList<QWidget*>{Command2, Command3};
    ChainTabOrder(order);

    connect(Command1, &QPushButton::clicked, this, &frmEstrai::Command1_Click);
    connect(Check2, &QCheckBox::clicked, this, &frmEstrai::Check2_Click);
    connect(Command2, &QPushButton::clicked, this, &frmEstrai::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &frmEstrai::Command3_Click);
}

void frmEstrai::Form_Load() {
    setWindowTitle(tr(estrai::Caption).arg(ArchivePath));
    TxTPwd->setEnabled(false);
    // The tree starts at the folder that holds the archive (the home folder when that cannot
    // be shown). The dialog opens once the folders above it are read, or after a short
    // wait on a slow disk: then they join the tree without moving the selection.
    const QFileInfo archive(ArchivePath);
    const QString start = ArchivePath.isEmpty() || !archive.absoluteDir().exists()
                              ? QDir::homePath()
                              : archive.absolutePath();
    if (!FolderView1->selectPath(start, SettleMs))
        FolderView1->selectPath(QDir::homePath(), SettleMs);
    TxTDir->setText(selectedFolder());
}

void frmEstrai::presetItem(const QString& item) {
    files_.OpFileType->setChecked(true);
    files_.TxtFileType->setText(item);
}

void frmEstrai::selectFolder(const QString& folder) {
    if (!FolderView1->selectPath(folder))
        qCDebug(lcExtractDialog) << "folder not shown in the tree:" << folder;
}

QString frmEstrai::selectedFolder() const {
    const QString path = FolderView1->currentPath();
    return path.isEmpty() ? QString() : QDir::toNativeSeparators(path);
}

void frmEstrai::FolderView1_FolderClick(const QModelIndex& index) {
    if (!index.isValid())
        return;
    TxTDir->setText(QDir::toNativeSeparators(folders_->filePath(index)));
    typed_ = false;
}

void frmEstrai::Command1_Click() {
    CreateNewFolder(true);
}

void frmEstrai::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // The name editor of the folder tree is a child of the tree's viewport.
    const QWidget* focus = QApplication::focusWidget();
    if (enter && focus && focus->parentWidget() == FolderView1->viewport()) {
        event->accept();
        return;
    }
    // A typed path is first selected (and made, if need be): the user sees the folder chosen
    // before anything is extracted into it.
    if (enter && focus == TxTDir && typed_) {
        event->accept();
        selectTypedFolder();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmEstrai::CreateNewFolder(bool editName) {
    const QModelIndex parent = FolderView1->currentIndex();
    if (!parent.isValid()) {
        qCDebug(lcExtractDialog) << "no folder selected to create a new folder in";
        return;
    }
    const QDir dir(folders_->filePath(parent));
    QString name = tr(estrai::NewFolderName);
    for (int n = 2; dir.exists(name); ++n)
        name = tr(estrai::NewFolderName) + QStringLiteral(" (%1)").arg(n);
    const QModelIndex made = folders_->mkdir(parent, name);
    if (!made.isValid()) {
        qCDebug(lcExtractDialog) << "could not create" << dir.filePath(name);
        prompter_.exclamation(tr("The new folder could not be created in %1")
                                  .arg(QDir::toNativeSeparators(dir.path())));
        return;
    }
    FolderView1->expand(parent);
    FolderView1->setCurrentIndex(made);
    FolderView1->scrollTo(made);
    if (editName) {
        FolderView1->setFocus();
        FolderView1->edit(made);
    }
}

QString frmEstrai::typedPath() {
    const QString typed = TxTDir->text();
    QString path = QDir::fromNativeSeparators(typed);
    if (path == QLatin1String("~"))
        path = QDir::homePath();
    else if (path.startsWith(QLatin1String("~/")))
        path = QDir::homePath() + path.mid(1);
    if (path.isEmpty()) {
        prompter_.exclamation(
            tr("Type the folder to extract into, or choose it in the list of folders."));
        return QString();
    }
    // A relative path would depend on a working folder the user never sees.
    if (QDir::isRelativePath(path)) {
        prompter_.exclamation(tr("\"%1\" is not a full path. Type a path that begins with \"/\", "
                                 "or with \"~/\" for a folder in your home folder.")
                                  .arg(typed));
        return QString();
    }
    return QDir::cleanPath(path);
}

bool frmEstrai::createTypedFolder(const QString& path) {
    const QString shown = QDir::toNativeSeparators(path);
    // The nearest folder above that exists: a file there means no folder can be made.
    QString above = QFileInfo(path).path();
    while (!QFileInfo::exists(above) && QFileInfo(above).path() != above)
        above = QFileInfo(above).path();
    const QString cannot = tr("The folder \"%1\" cannot be created.").arg(shown);
    if (!QFileInfo(above).isDir()) {
        prompter_.critical(
            cannot + QStringLiteral("\n\n") +
            tr("\"%1\" is a file, not a folder.").arg(QDir::toNativeSeparators(above)));
        return false;
    }
    if (!prompter_.question(tr("The folder \"%1\" does not exist. Create it?").arg(shown))) {
        TxTDir->setFocus();
        return false;
    }
    if (!QDir().mkpath(path)) {
        qCDebug(lcExtractDialog) << "could not create" << path;
        const QString why =
            QFileInfo(above).isWritable()
                ? tr("Check the folder's name and that the disk has room.")
                : tr("You may not create folders in \"%1\".").arg(QDir::toNativeSeparators(above));
        prompter_.critical(cannot + QStringLiteral("\n\n") + why);
        return false;
    }
    return true;
}

bool frmEstrai::selectTypedFolder() {
    const QString path = typedPath();
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    if (info.exists() && !info.isDir()) {
        prompter_.exclamation(tr("\"%1\" is a file, not a folder. Type the folder to extract into.")
                                  .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    if (!info.exists() && !createTypedFolder(path))
        return false;
    if (!FolderView1->selectPath(path)) {
        qCDebug(lcExtractDialog) << "typed folder not shown in the tree:" << path;
        prompter_.critical(tr("The folder \"%1\" cannot be shown in the list of folders.")
                               .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    // The box shows the folder as the tree holds it (also when it was current already).
    TxTDir->setText(selectedFolder());
    typed_ = false;
    return true;
}

void frmEstrai::Check2_Click() {
    TxTPwd->setEnabled(Check2->isChecked());
}

ExtractOptions frmEstrai::options() const {
    ExtractOptions o;
    o.toCurrentDir = Option1->isChecked();
    o.fullPath = Check3->isChecked();
    o.destination = Destination;
    o.overwrite = Check1->isChecked();
    o.passwordTicked = Check2->isChecked();
    o.password = Password;
    o.archive = ArchivePath;
    o.choice = files_.choice();
    o.fileTypes = files_.TxtFileType->text();
    o.listFile = files_.TxtFileList->text();
    o.excludeTicked = files_.ChkExclude->isChecked();
    o.exclude = files_.TxtExclude->text();
    return o;
}

void frmEstrai::Command2_Click() {
    // A path typed and not yet selected is selected now; the tree's selection, which TxTDir
    // then shows, is the destination. A root loses its separator (C:\ becomes C:).
    if (typed_ && !selectTypedFolder())
        return;
    Password = TxTPwd->text();
    Destination = selectedFolder();
    if (Destination.endsWith(PathStyle::host().sep))
        Destination.chop(1);
    const QString script = WorkFile(names::ExtractScript);
    ExtractOptions job = options();
    if (guard_ && !guard_(job))
        return;
    QString refused;
    if (!WriteExtractJobScript(script, job, ProgramFolder(), TempRoot(), PathStyle::host(),
                               &refused)) {
        qCDebug(lcExtractDialog) << "extract script not written:" << script;
        prompter_.critical(refused);
        return;
    }
    hide();
    if (handOver_)
        handOver_(ArchivePath);
    accept();
}

void frmEstrai::Command3_Click() {
    reject();
}

} // namespace quovara
