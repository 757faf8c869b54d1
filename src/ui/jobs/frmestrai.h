// frmEstrai: the Extract dialog. It turns the user's choices into the extract job script
// (Estrai.bat in the WorkFolder) and hands over to the job that runs it. The destination is the
// folder selected in the folder tree `FolderView1`, which `TxTDir` shows. A path typed into
// `TxTDir` selects that folder in the tree (Enter, or OK), made first when it does not exist and
// the user agrees; OK extracts into exactly the folder the box then shows.
#pragma once

#include "frmaggiungi_shared.h"

#include <QDialog>
#include <QtGlobal>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QRadioButton;

namespace quovara {

class FolderTree;
class FolderTreeModel;
class Prompter;

// Texts of the Extract dialog; their translation context is the dialog's.
namespace estrai {
inline constexpr char DesignCaption[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "Extract");
// %1 is the path of the archive.
inline constexpr char Caption[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "Extract %1");
inline constexpr char ExtractTo[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "Extract To:");
inline constexpr char CreateNewFolder[] =
    QT_TRANSLATE_NOOP("quovara::frmEstrai", "Create New Folder");
inline constexpr char ToCurrentDir[] =
    QT_TRANSLATE_NOOP("quovara::frmEstrai", "Extract files to current dir");
inline constexpr char Option[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "Option");
inline constexpr char FullPath[] =
    QT_TRANSLATE_NOOP("quovara::frmEstrai", "Extract files with full path");
inline constexpr char Overwrite[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "Overwrite files");
inline constexpr char FileTypes[] =
    QT_TRANSLATE_NOOP("quovara::frmEstrai", "Only These Files:  (e.g: *.dll,*.exe)");
inline constexpr char Ok[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "OK");
inline constexpr char Cancel[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "Cancel");
// The name a new folder gets before the user renames it ("New Folder (2)" and so on when
// taken).
inline constexpr char NewFolderName[] = QT_TRANSLATE_NOOP("quovara::frmEstrai", "New Folder");
} // namespace estrai

class frmEstrai : public QDialog {
    Q_OBJECT
public:
    // `archivePath` is the archive to extract, fixed for the dialog's life. Messages go to
    // `prompter`. After the script has been written the dialog hides itself and calls
    // `handOver` with the archive.
    frmEstrai(const QString& archivePath, Prompter& prompter, JobHandOver handOver,
              QWidget* parent = nullptr);
    ~frmEstrai() override;

protected:
    // The Enter that ends the renaming of a new folder only ends the renaming: it never
    // presses OK. Enter after a path typed into `TxTDir` selects that folder; the next Enter
    // presses OK.
    void keyPressEvent(QKeyEvent* event) override;

public:
    // The pre-set for one item of the archive: "Only These Files" chosen with the item as the
    // pattern.
    // Called at OK with the job's options before its script is written: it adds what must be
    // left out (options.leftOut) and may refuse the job (false: nothing is written, the dialog
    // stays open).
    using NameGuard = std::function<bool(ExtractOptions&)>;
    void setNameGuard(NameGuard guard) { guard_ = std::move(guard); }
    void presetItem(const QString& item);

    // Selects `folder` in the folder tree (as a click on it would).
    void selectFolder(const QString& folder);
    // The path of the folder selected in the tree (native separators), empty when none.
    QString selectedFolder() const;

    // The handlers of the controls.
    void Form_Load();
    void FolderView1_FolderClick(const QModelIndex& index);
    void Command1_Click(); // "Create New Folder"
    void Check2_Click();
    void Command2_Click(); // "OK"
    void Command3_Click(); // "Cancel"

    const QString& archivePath() const { return ArchivePath; }

private:
    void buildControls();
    // Makes a new folder under the selected one and selects it; with `editName` its name is
    // opened for editing in the tree.
    void CreateNewFolder(bool editName);
    ExtractOptions options() const;
    // Selects the folder typed into `TxTDir` in the tree: "~" stands for the home folder, a
    // relative path is refused, a missing folder is made when the user agrees. False (the user
    // told why) when no folder was selected.
    bool selectTypedFolder();
    // The path typed, as a clean absolute path; empty (the user told why) when it is none.
    QString typedPath();
    // Makes the missing folder `path` when the user agrees; false when it was not made.
    bool createTypedFolder(const QString& path);

    Prompter& prompter_;
    JobHandOver handOver_;
    NameGuard guard_;

    QString ArchivePath;
    QString Destination;
    QString Password;
    // `TxTDir` holds what the user typed, not yet selected in the tree.
    bool typed_ = false;

    QLabel* Label2 = nullptr;
    QLineEdit* TxTDir = nullptr;
    FolderTree* FolderView1 = nullptr;
    FolderTreeModel* folders_ = nullptr;
    QPushButton* Command1 = nullptr;
    QRadioButton* Option1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QCheckBox* Check3 = nullptr;
    QCheckBox* Check2 = nullptr;
    QLineEdit* TxTPwd = nullptr;
    QCheckBox* Check1 = nullptr;
    FileChoiceControls files_;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
};

} // namespace quovara
