#include "convertdialog.h"

#include "engine/convert.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace quovara {

ConvertDialog::ConvertDialog(const QString& archivePath, QWidget* parent)
    : QDialog(parent), archivePath_(archivePath) {
    setObjectName(QStringLiteral("frmConverti"));
    setWindowTitle(tr(convert_dialog::Caption).arg(QFileInfo(archivePath).fileName()));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    format_ = new QComboBox(this);
    format_->setObjectName(QStringLiteral("ConvertFormat"));
    for (const QString& name : ConvertFormatNames())
        format_->addItem(
            QStringLiteral("%1 (.%2)")
                .arg(name == QLatin1String("zip") ? QStringLiteral("ZIP") : name, name),
            name);
    auto* formatLabel = new QLabel(tr(convert_dialog::FormatLabel), this);
    formatLabel->setBuddy(format_);
    form->addRow(formatLabel, format_);

    auto* folderRow = new QHBoxLayout;
    folder_ = new QLineEdit(QDir::toNativeSeparators(QFileInfo(archivePath).absolutePath()), this);
    folder_->setObjectName(QStringLiteral("ConvertFolder"));
    browse_ = new QPushButton(tr(convert_dialog::Browse), this);
    browse_->setObjectName(QStringLiteral("ConvertBrowse"));
    folderRow->addWidget(folder_, 1);
    folderRow->addWidget(browse_);
    auto* folderLabel = new QLabel(tr(convert_dialog::FolderLabel), this);
    folderLabel->setBuddy(folder_);
    form->addRow(folderLabel, folderRow);
    layout->addLayout(form);

    name_ = new QLabel(this);
    name_->setObjectName(QStringLiteral("ConvertName"));
    layout->addWidget(name_);
    auto* note = new QLabel(tr(convert_dialog::Checked), this);
    note->setWordWrap(true);
    layout->addWidget(note);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ConvertDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConvertDialog::reject);
    connect(format_, &QComboBox::currentIndexChanged, this, &ConvertDialog::updateName);
    connect(folder_, &QLineEdit::textChanged, this, &ConvertDialog::updateName);
    connect(browse_, &QPushButton::clicked, this, [this] {
        const QString chosen = QFileDialog::getExistingDirectory(this, tr("Save in"), folder());
        if (!chosen.isEmpty())
            folder_->setText(QDir::toNativeSeparators(chosen));
    });
    updateName();
    setMinimumWidth(420);
}

ConvertFormat ConvertDialog::format() const {
    return ConvertFormatByName(format_->currentData().toString()).value_or(ConvertFormat::Zip);
}

QString ConvertDialog::folder() const {
    QString text = folder_->text().trimmed();
    if (text == QLatin1String("~") || text.startsWith(QLatin1String("~/")))
        text = QDir::homePath() + text.mid(1);
    return QDir::cleanPath(QDir::fromNativeSeparators(text));
}

QString ConvertDialog::newName() const {
    for (int n = 1; n < 10000; ++n) {
        const QString name = ConvertedNameNumbered(archivePath_, format(), n);
        if (!QFileInfo::exists(QDir(folder()).filePath(name)))
            return name;
    }
    return ConvertedNameNumbered(archivePath_, format(), 1);
}

void ConvertDialog::updateName() {
    name_->setText(tr(convert_dialog::NewName).arg(newName()));
}

void ConvertDialog::accept() {
    const QString path = folder();
    if (!QDir::isAbsolutePath(path)) {
        QMessageBox::warning(this, windowTitle(), tr(convert_dialog::NotAbsolute));
        folder_->setFocus();
        return;
    }
    if (!QFileInfo(path).isDir()) {
        QMessageBox::warning(this, windowTitle(),
                             tr(convert_dialog::NoFolder).arg(QDir::toNativeSeparators(path)));
        folder_->setFocus();
        return;
    }
    QDialog::accept();
}

} // namespace quovara
