// frmAggiungi: the Add dialog. It turns the user's choices into the add job script
// (Archivia.bat in the WorkFolder) and hands over to the job that runs it; it never runs the
// engine itself. The source is the item selected in the main window's file browser.
#pragma once

#include "frmaggiungi_shared.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quovara {

class Prompter;

// Texts of the Add dialog.
namespace aggiungi {
inline constexpr char DesignCaption[] = "Add";
inline constexpr char CaptionPrefix[] = "Add ";
inline constexpr char SaveTo[] = "Save Archive To:";
inline constexpr char Browse[] = "Browse";
inline constexpr char Options[] = "Options";
inline constexpr char IncludeSubdirectories[] = "Include Subdirectories ";
inline constexpr char Compression[] = "Compression";
inline constexpr char Multimedia[] = "Multimedia Compression";
inline constexpr char Dictionary[] = "Dictionary";
inline constexpr char FileTypes[] = "Only These Files: (e.g: *.dll,*.exe)";
inline constexpr char CreateAndAdd[] = "Create and Add File";
inline constexpr char CreateAndMove[] = "Create and Move File";
inline constexpr char Default[] = "Default";
inline constexpr char Ok[] = "OK";
inline constexpr char Cancel[] = "Cancel";
inline constexpr char NoArchiveName[] = "You have to specify the name of the archive";
// The save-file dialog of "Browse": its title and its filter in the Windows form
// (description|pattern pairs).
inline constexpr char SaveTitle[] = "Salva il file";
inline constexpr char SaveFilter[] = "Uha File (*.uha)|*.uha";
// What the job's script could not be written says (the job is then not started).
} // namespace aggiungi

// The name filters of a Windows-form filter ("Text (*.a)|*.a|Other|*.b;*.c") as a Qt file
// dialog takes them: one entry per description, the patterns added where the description does
// not already show them ("Text (*.a)", "Other (*.b *.c)").
QStringList QtNameFilters(const QString& windowsFilter);

// The save-file dialog: returns the chosen file name, or an empty string when the user
// cancelled. `proposed` is the name the dialog starts with.
using SaveFileHook = std::function<QString(QWidget* parent, const QString& title,
                                           const QString& windowsFilter, const QString& proposed)>;
// The default: a Qt file dialog in save mode that asks before replacing a file.
QString AskSaveFileName(QWidget* parent, const QString& title, const QString& windowsFilter,
                        const QString& proposed);

// The archive name proposed for a source: a folder gives its path + ".uha"; a file gives its
// path up to and including the last "." of the whole path, then "uha" (so a file without
// extension in a folder whose name holds a dot is cut inside the folder name); with no "." at
// all, the path + ".uha".
QString ProposedArchiveName(const QString& sourcePath, bool sourceIsFolder);

class frmAggiungi : public QDialog {
    Q_OBJECT
public:
    // `selection` gives the item selected in the main window's browser; it is read at load and
    // again at OK. Messages go to `prompter`. After the script has been written the dialog
    // hides itself and calls `handOver` with the archive name.
    frmAggiungi(std::function<QString()> selection, Prompter& prompter, JobHandOver handOver,
                QWidget* parent = nullptr);
    ~frmAggiungi() override;

    void setSaveFileHook(SaveFileHook hook) { saveFile_ = std::move(hook); }

    // The handlers of the controls.
    void Form_Load();
    void Check4_Click();
    void Command1_Click(); // "Browse"
    void Command2_Click(); // "Default"
    void Command3_Click(); // "OK"
    void Command4_Click(); // "Cancel"

    const QString& sourcePath() const { return SourcePath; }
    // The method switch kept across OK presses of this dialog.
    const QString& methodSwitch() const { return methods_.current(); }

private:
    void buildControls();
    AddOptions options() const;

    std::function<QString()> selection_;
    Prompter& prompter_;
    JobHandOver handOver_;
    SaveFileHook saveFile_;

    QString SourcePath;
    QString ArchivePath;
    QString Password;
    MethodMemory methods_;

    QLabel* Label1 = nullptr;
    QLineEdit* Text1 = nullptr;
    QPushButton* Command1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QCheckBox* Check1 = nullptr;
    QCheckBox* Check4 = nullptr;
    QLineEdit* Text2 = nullptr;
    QGroupBox* Frame2 = nullptr;
    QComboBox* Combo1 = nullptr;
    QCheckBox* Check2 = nullptr;
    QCheckBox* Check3 = nullptr;
    QComboBox* Combo2 = nullptr;
    FileChoiceControls files_;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
};

} // namespace quovara
