// frmAggiungi: the Add dialog. It turns the user's choices into the add job script
// (Archivia.bat in the WorkFolder) and hands over to the job that runs it; it never runs the
// engine itself. The source is the item selected in the main window's file browser.
#pragma once

#include "frmaggiungi_shared.h"

#include <QDialog>
#include <QtGlobal>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quovara {

class Prompter;

// Texts of the Add dialog; their translation context is the dialog's.
namespace aggiungi {
inline constexpr char DesignCaption[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Add");
// %1 is the path of the source.
inline constexpr char Caption[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Add %1");
inline constexpr char SaveTo[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Save Archive To:");
inline constexpr char Browse[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Browse");
inline constexpr char Options[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Options");
inline constexpr char IncludeSubdirectories[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Include Subdirectories ");
inline constexpr char Compression[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Compression");
inline constexpr char Multimedia[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Multimedia Compression");
inline constexpr char Dictionary[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Dictionary");
inline constexpr char FileTypes[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Only These Files: (e.g: *.dll,*.exe)");
inline constexpr char CreateAndAdd[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Create and Add File");
inline constexpr char CreateAndMove[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Create and Move File");
inline constexpr char Default[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Default");
inline constexpr char Ok[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "OK");
inline constexpr char Cancel[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Cancel");
inline constexpr char NoArchiveName[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "You have to specify the name of the archive");
// The save-file dialog of "Browse": its title and its filter in the Windows form
// (description|pattern pairs).
inline constexpr char SaveTitle[] = QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Salva il file");
//: Only the description before the bar is translated; the bar and the pattern stay.
inline constexpr char SaveFilter[] =
    QT_TRANSLATE_NOOP("quovara::frmAggiungi", "Uha File (*.uha)|*.uha");
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
