// The Convert dialog: the format of the new archive and the folder it goes into, for the
// archive the main window shows.
#pragma once

#include "engine/convertformat.h"

#include <QDialog>
#include <QtGlobal>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quovara {

namespace convert_dialog {
inline constexpr char Caption[] = QT_TRANSLATE_NOOP("quovara::ConvertDialog", "Convert %1");
inline constexpr char FormatLabel[] = QT_TRANSLATE_NOOP("quovara::ConvertDialog", "&Format:");
inline constexpr char FolderLabel[] = QT_TRANSLATE_NOOP("quovara::ConvertDialog", "&Save in:");
inline constexpr char Browse[] = QT_TRANSLATE_NOOP("quovara::ConvertDialog", "&Browse…");
// %1 is the new archive's name.
inline constexpr char NewName[] = QT_TRANSLATE_NOOP("quovara::ConvertDialog", "New archive: %1");
inline constexpr char Checked[] = QT_TRANSLATE_NOOP(
    "quovara::ConvertDialog",
    "Every file is checked against the archive's listing (size and CRC-32) before the new "
    "archive is kept. Hidden and system attributes are not kept.");
inline constexpr char NoFolder[] =
    QT_TRANSLATE_NOOP("quovara::ConvertDialog", "The folder %1 does not exist.");
inline constexpr char NotAbsolute[] =
    QT_TRANSLATE_NOOP("quovara::ConvertDialog", "Type the whole path of a folder, from \"/\".");
} // namespace convert_dialog

class ConvertDialog : public QDialog {
    Q_OBJECT
public:
    ConvertDialog(const QString& archivePath, QWidget* parent);

    ConvertFormat format() const;
    QString folder() const;

    // The name the new archive would take in the chosen folder now.
    QString newName() const;

    void accept() override;

private:
    void updateName();

    QString archivePath_;
    QComboBox* format_ = nullptr;
    QLineEdit* folder_ = nullptr;
    QPushButton* browse_ = nullptr;
    QLabel* name_ = nullptr;
};

} // namespace quovara
