// frmSFX: the "Make SFX" dialog. It gathers the texts of the settings record (where to
// extract, programs to run before and after, the texts of the SFX and licence windows), asks
// where to save the executable and has the open archive assembled into it.
#pragma once

#include "engine/sfx.h"

#include <QDialog>
#include <QPointer>
#include <QString>
#include <QtGlobal>

#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabBar;

namespace quovara {

class Prompter;

// Texts of the dialog; their translation context is the dialog's.
namespace sfxdlg {
inline constexpr char Caption[] = QT_TRANSLATE_NOOP("quovara::frmSFX", "Make SFX");
inline constexpr char SaveTitle[] = QT_TRANSLATE_NOOP("quovara::frmSFX", "Save the SFX");
// The save dialog's filter as written in the form: description, bar, pattern.
//: Only the description before the bar is translated; the bar and the pattern stay.
inline constexpr char SaveFilter[] =
    QT_TRANSLATE_NOOP("quovara::frmSFX", "Application (*.exe)|*.exe");
inline constexpr char InitialSfxText[] = QT_TRANSLATE_NOOP(
    "quovara::frmSFX",
    "Setup will install PROGRAM NAME HERE into the following folder. To continue, click "
    "Install.If you would like to select a different folder, click Browse");
// The longest window text the stub shows, counted as it is written (a line break is CR LF).
inline constexpr int MaxSfxText = 156;
} // namespace sfxdlg

// The filter of the form written the way Qt's file dialog takes it: "Application (*.exe)".
QString SfxSaveFilterForQt();

// What the save dialog is asked for.
struct SfxSaveRequest {
    QString title;    // "Save the SFX"
    QString filter;   // "Application (*.exe)"
    QString proposal; // the path proposed: the archive's folder and name, with ".exe"
    QString suffix;   // added to a name typed without one ("exe")
    bool confirmOverwrite = true;
};

// Shows the save dialog and answers the chosen path, or the empty string for Cancel.
using SfxSaveDialog = std::function<QString(QWidget* parent, const SfxSaveRequest& request)>;
// The platform's save dialog. A name that holds double quotes (legal here) is taken as typed,
// not read as a list of quoted names.
QString PlatformSfxSaveDialog(QWidget* parent, const SfxSaveRequest& request);
// Replaces the save dialog (tests answer it without a modal window); an empty function
// restores the platform's file dialog.
void SetSfxSaveDialog(SfxSaveDialog dialog);

class frmSFX : public QDialog {
    Q_OBJECT
public:
    // `archivePath` is the main window's open archive; `stato` and `consiglio` its state and
    // hint lines (either may be null); messages go through `prompter`.
    frmSFX(const QString& archivePath, QLabel* stato, QLabel* consiglio, Prompter& prompter,
           QWidget* parent = nullptr);
    ~frmSFX() override;

    // The seven texts as the settings record takes them (line breaks as CR LF).
    SfxSettings settings() const;
    // The page shown under the tabs: 0, 1, or -1 for none ("Advanced").
    int visiblePage() const;
    // True when the last "Create" built the executable.
    bool created() const { return created_; }

    // Handlers of the controls.
    void TabStrip1_Click(int index);
    void cmdOk_Click();
    void cmdCancel_Click();

private:
    void Form_Load();
    void limitSfxText();

    QString archivePath_;
    QPointer<QLabel> stato_;
    QPointer<QLabel> consiglio_;
    Prompter& prompter_;
    bool created_ = false;
    bool limiting_ = false;

    QTabBar* TabStrip1 = nullptr;
    QWidget* pic[2] = {nullptr, nullptr};
    QGroupBox* Frame1 = nullptr;
    QComboBox* cmbPath = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLabel* Label2 = nullptr;
    QLineEdit* TxTRunB = nullptr;
    QLabel* Label1 = nullptr;
    QLineEdit* TxTRunA = nullptr;
    QGroupBox* Frame3 = nullptr;
    QLabel* Label5 = nullptr;
    QLineEdit* TxtCaptionSFX = nullptr;
    QLabel* Label3 = nullptr;
    QPlainTextEdit* TextSFX = nullptr;
    QGroupBox* Frame4 = nullptr;
    QLabel* Label6 = nullptr;
    QLineEdit* TxtCaptionLicense = nullptr;
    QLabel* Label4 = nullptr;
    QPlainTextEdit* TextLicense = nullptr;
    QPushButton* cmdOk = nullptr;
    QPushButton* cmdCancel = nullptr;
};

} // namespace quovara
