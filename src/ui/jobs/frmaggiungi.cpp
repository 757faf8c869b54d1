#include "frmaggiungi.h"

#include "core/places.h"
#include "core/prompter.h"
#include "engine/unsafenames.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

Q_LOGGING_CATEGORY(lcAddDialog, "quovara.dialog.add", QtInfoMsg)

namespace quovara {

QStringList QtNameFilters(const QString& windowsFilter) {
    const QStringList parts = windowsFilter.split(QLatin1Char('|'));
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString& description = parts[i];
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        if (description.contains(QLatin1Char('(')))
            filters << description;
        else
            filters << description + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return filters;
}

QString AskSaveFileName(QWidget* parent, const QString& title, const QString& windowsFilter,
                        const QString& proposed) {
    QFileDialog dialog(parent, title);
    dialog.setObjectName(QStringLiteral("CommonDialog"));
    // The same dialog on every desktop; it asks before replacing a file (Qt's default), has no
    // read-only tick box and leaves the process's current folder alone.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(QtNameFilters(windowsFilter));
    dialog.setDefaultSuffix(QStringLiteral("uha"));
    if (!proposed.isEmpty()) {
        const QFileInfo info(proposed);
        if (info.absoluteDir().exists())
            dialog.setDirectory(info.absolutePath());
        dialog.selectFile(info.fileName());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    const QString chosen = dialog.selectedFiles().constFirst();
    // The folder must exist: a name in a missing folder is no choice.
    if (!QFileInfo(chosen).absoluteDir().exists())
        return QString();
    return QDir::toNativeSeparators(chosen);
}

QString ProposedArchiveName(const QString& sourcePath, bool sourceIsFolder) {
    const QString whole = sourcePath + QStringLiteral(".uha");
    if (sourceIsFolder)
        return whole;
    // The last "." of the whole path, not only of the file name.
    const QString cut =
        sourcePath.left(sourcePath.lastIndexOf(QLatin1Char('.')) + 1) + QStringLiteral("uha");
    return cut == QStringLiteral("uha") ? whole : cut;
}

frmAggiungi::frmAggiungi(std::function<QString()> selection, Prompter& prompter,
                         JobHandOver handOver, QWidget* parent)
    : QDialog(parent), selection_(std::move(selection)), prompter_(prompter),
      handOver_(std::move(handOver)), saveFile_(&AskSaveFileName) {
    setObjectName(QStringLiteral("frmAggiungi"));
    setWindowTitle(tr(aggiungi::DesignCaption));
    buildControls();
    Form_Load();
}

frmAggiungi::~frmAggiungi() = default;

void frmAggiungi::buildControls() {
    Label1 = named(new QLabel(tr(aggiungi::SaveTo), this), "Label1");
    Text1 = named(new QLineEdit(this), "Text1");
    Text1->setAccessibleName(tr("Archive name"));
    Text1->setMinimumWidth(360);
    Label1->setBuddy(Text1);
    Command1 = named(new QPushButton(tr(aggiungi::Browse), this), "Command1");
    Command1->setAutoDefault(false);

    Frame1 = named(new QGroupBox(tr(aggiungi::Options), this), "Frame1");
    Check1 = named(new QCheckBox(tr(aggiungi::IncludeSubdirectories)), "Check1");
    Check1->setChecked(true);
    Check4 = named(new QCheckBox(DialogText(dialogtext::Password)), "Check4");
    Text2 = named(new QLineEdit(), "Text2");
    Text2->setAccessibleName(DialogText(dialogtext::Password));
    Text2->setEchoMode(QLineEdit::Password);
    Text2->setStyleSheet(QStringLiteral("QLineEdit { lineedit-password-character: 42; }"));
    Text2->setEnabled(false);
    auto* options = new QGridLayout(Frame1);
    options->setColumnMinimumWidth(0, 18);
    options->addWidget(Check1, 0, 0, 1, 2);
    options->addWidget(Check4, 1, 0, 1, 2);
    options->addWidget(Text2, 2, 1);
    options->setColumnStretch(1, 1);
    options->setRowStretch(3, 1);

    Frame2 = named(new QGroupBox(tr(aggiungi::Compression), this), "Frame2");
    Combo1 = named(new QComboBox(), "Combo1");
    Combo1->setAccessibleName(tr("Method"));
    Check2 = named(new QCheckBox(tr(aggiungi::Multimedia)), "Check2");
    Check2->setChecked(true);
    Check3 = named(new QCheckBox(tr(aggiungi::Dictionary)), "Check3");
    Check3->setChecked(true);
    Combo2 = named(new QComboBox(), "Combo2");
    Combo2->setAccessibleName(tr("Dictionary size"));
    auto* compression = new QGridLayout(Frame2);
    compression->addWidget(Combo1, 0, 0, 1, 2);
    compression->addWidget(Check2, 1, 0, 1, 2);
    compression->addWidget(Check3, 2, 0);
    compression->addWidget(Combo2, 2, 1);
    compression->setColumnStretch(1, 1);
    compression->setRowStretch(3, 1);

    files_ = BuildFileChoiceFrame("Frame3", tr(aggiungi::FileTypes), this);

    // "Create and Add File" and "Create and Move File": a group of their own.
    auto* mode = new QWidget(this);
    mode->setObjectName(QStringLiteral("AddMode"));
    Option1 = named(new QRadioButton(tr(aggiungi::CreateAndAdd), mode), "Option1");
    Option2 = named(new QRadioButton(tr(aggiungi::CreateAndMove), mode), "Option2");
    auto* modeGroup = new QButtonGroup(mode);
    modeGroup->addButton(Option1);
    modeGroup->addButton(Option2);
    Option1->setChecked(true);
    auto* modeRow = new QHBoxLayout(mode);
    modeRow->setContentsMargins(0, 0, 0, 0);
    modeRow->addWidget(Option1);
    modeRow->addSpacing(16);
    modeRow->addWidget(Option2);
    modeRow->addStretch(1);

    Command2 = named(new QPushButton(tr(aggiungi::Default), this), "Command2");
    Command2->setAutoDefault(false);
    Command3 = named(new QPushButton(tr(aggiungi::Ok), this), "Command3");
    Command3->setDefault(true);
    Command4 = named(new QPushButton(tr(aggiungi::Cancel), this), "Command4");
    Command4->setAutoDefault(false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    auto* nameRow = new QHBoxLayout();
    nameRow->addWidget(Text1, 1);
    nameRow->addWidget(Command1);
    layout->addLayout(nameRow);
    auto* frames = new QHBoxLayout();
    frames->addWidget(Frame1, 1);
    frames->addWidget(Frame2, 1);
    layout->addLayout(frames);
    layout->addWidget(files_.Frame);
    layout->addWidget(mode);
    auto* buttons = new QHBoxLayout();
    buttons->addWidget(Command2);
    buttons->addStretch(1);
    buttons->addWidget(Command3);
    buttons->addWidget(Command4);
    layout->addSpacing(4);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);

    QList<QWidget*> order{Text1, Command1, Check1, Check4, Text2, Combo1, Check2, Check3, Combo2};
    order += files_.tabOrder();
    order += QList<QWidget*>{Option1, Option2, Command2, Command3, Command4};
    ChainTabOrder(order);

    connect(Check4, &QCheckBox::clicked, this, &frmAggiungi::Check4_Click);
    connect(Command1, &QPushButton::clicked, this, &frmAggiungi::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &frmAggiungi::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &frmAggiungi::Command3_Click);
    connect(Command4, &QPushButton::clicked, this, &frmAggiungi::Command4_Click);
}

void frmAggiungi::Form_Load() {
    SourcePath = selection_ ? selection_() : QString();
    setWindowTitle(tr(aggiungi::Caption).arg(SourcePath));
    const bool folder = QFileInfo(SourcePath).isDir();
    Text1->setText(ProposedArchiveName(SourcePath, folder));
    if (!folder) {
        Check1->setEnabled(false);
        Check1->setChecked(false);
    }
    Combo1->clear();
    Combo1->addItems(MethodItems());
    Combo2->clear();
    Combo2->addItems(DictionaryItems());
    Text2->setEnabled(false);
    Combo1->setCurrentIndex(DefaultMethodPosition);
    Combo2->setCurrentIndex(DefaultDictionaryPosition);
}

void frmAggiungi::Check4_Click() {
    Text2->setEnabled(Check4->isChecked());
}

void frmAggiungi::Command1_Click() {
    const QString chosen = saveFile_ ? saveFile_(this, tr(aggiungi::SaveTitle),
                                                 tr(aggiungi::SaveFilter), Text1->text())
                                     : QString();
    if (chosen.isEmpty()) {
        qCDebug(lcAddDialog) << "save dialog cancelled; the archive name stays" << Text1->text();
        return;
    }
    // The user has agreed to replace the chosen file: it goes at once, whatever happens to
    // the dialog afterwards.
    const QFileInfo existing(chosen);
    if (existing.exists() || existing.isSymLink()) {
        if (!QFile::remove(chosen))
            qCDebug(lcAddDialog) << "could not delete the chosen archive" << chosen;
    }
    Text1->setText(chosen);
}

void frmAggiungi::Command2_Click() {
    Option1->setChecked(true);
    Check1->setChecked(true);
    Check2->setChecked(true);
    Check3->setChecked(true);
    Combo1->setCurrentIndex(DefaultMethodPosition);
    Combo2->setCurrentIndex(DefaultDictionaryPosition);
}

AddOptions frmAggiungi::options() const {
    AddOptions o;
    o.move = Option2->isChecked();
    o.recurse = Check1->isChecked();
    o.methodPosition = Combo1->currentIndex();
    o.dictionary = Combo2->currentText();
    o.passwordTicked = Check4->isChecked();
    o.password = Password;
    o.archive = ArchivePath;
    o.sourceIsFolder = QFileInfo(SourcePath).isDir();
    o.source = SourcePath;
    o.choice = files_.choice();
    o.fileTypes = files_.TxtFileType->text();
    o.listFile = files_.TxtFileList->text();
    o.excludeTicked = files_.ChkExclude->isChecked();
    o.exclude = files_.TxtExclude->text();
    return o;
}

void frmAggiungi::Command3_Click() {
    ArchivePath = Text1->text();
    Password = Text2->text();
    SourcePath = selection_ ? selection_() : QString();
    if (ArchivePath.isEmpty()) {
        prompter_.information(tr(aggiungi::NoArchiveName));
        return;
    }
    // A name holding "\\" or ":" would be stored as another path.
    if (const QString problem =
            AddSourceProblem(SourcePath, Check1->isChecked(), ActiveEngineCodecs());
        !problem.isEmpty()) {
        prompter_.critical(problem);
        return;
    }
    const QString script = WorkFile(names::AddScript);
    QString refused;
    if (!WriteAddJobScript(script, options(), methods_, ProgramFolder(), TempRoot(),
                           PathStyle::host(), &refused)) {
        // Handing over a script that is not there would leave the job waiting for output
        // that never comes.
        qCDebug(lcAddDialog) << "add script not written:" << script;
        prompter_.critical(refused);
        return;
    }
    hide();
    if (handOver_)
        handOver_(ArchivePath);
    accept();
}

void frmAggiungi::Command4_Click() {
    reject();
}

} // namespace quovara
