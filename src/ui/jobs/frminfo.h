// frmInfo: the About window. Quovara's name and version, notes on the program and on the
// engine, and three contact links that open in the user's browser or mail program.
#pragma once

#include <QColor>
#include <QDialog>
#include <QString>
#include <QtGlobal>

class QGroupBox;
class QLabel;
class QPushButton;

namespace quovara {

// Texts of the window.
namespace info {
inline constexpr char Caption[] = QT_TRANSLATE_NOOP("quovara::frmInfo", "Quovara v 2.0");
inline constexpr char ProgramFrame[] =
    QT_TRANSLATE_NOOP("quovara::frmInfo", "Quovara v 2.0 UHARC GUI");
inline constexpr char EngineFrame[] = QT_TRANSLATE_NOOP(
    "quovara::frmInfo", "UHARC 0.6a BETA VERSION High Compression Multimedia Archiver");
inline constexpr char WebSiteLabel[] = QT_TRANSLATE_NOOP("quovara::frmInfo", "Web Site: ");
inline constexpr char EmailLabel[] = QT_TRANSLATE_NOOP("quovara::frmInfo", "E-mai: ");
inline constexpr char FreeNote[] =
    QT_TRANSLATE_NOOP("quovara::frmInfo", "IT IS FREE, NOT FOR COMMERCIAL USE");
inline constexpr char EngineNote[] = QT_TRANSLATE_NOOP(
    "quovara::frmInfo", "FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE");
inline constexpr char Motto[] = QT_TRANSLATE_NOOP("quovara::frmInfo", "FORZA NAPOLI");
// The links, written without their scheme: the home page, the contact address and the page
// on getting the engine.
inline constexpr char HomePage[] = "quovara.example.org";
inline constexpr char Contact[] = "quovara@example.org";
inline constexpr char EnginePage[] = "quovara.example.org/engine";
inline constexpr char AuthorLine[] =
    QT_TRANSLATE_NOOP("quovara::frmInfo", "Written by the Quovara developers");
inline constexpr char EngineNotice[] = QT_TRANSLATE_NOOP(
    "quovara::frmInfo",
    "UHARC is a separate program by its own author. Quovara does not include it.");
inline constexpr char Dedication[] =
    QT_TRANSLATE_NOOP("quovara::frmInfo", "For everyone who keeps old archives alive.");
} // namespace info

// Colours of the links: at rest and under the pointer.
inline const QColor LinkColour(0, 0, 255);
inline const QColor HotLinkColour(255, 0, 0);

class frmInfo : public QDialog {
    Q_OBJECT
public:
    explicit frmInfo(QWidget* parent = nullptr);
    ~frmInfo() override;

    // The link `Contattare(index)`, 0 to 2.
    QLabel* Contattare(int index) const { return links_[index]; }
    // What a click on a link opens: "mailto:" + caption for the e-mail address, "http://" +
    // caption for the two web addresses.
    QString linkTarget(int index) const;

    // Handlers of the controls.
    void Contattare_MouseMove(int index);
    void Contattare_Click(int index);
    void Frame2_MouseMove();
    void Form_MouseMove();
    void Command1_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHot(int index, bool hot);
    int linkIndex(QObject* watched) const;

    QLabel* links_[3] = {nullptr, nullptr, nullptr};
    QGroupBox* Frame2 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QLabel* Image1 = nullptr;
    QLabel* Picture1 = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Label3 = nullptr;
    QLabel* Label4 = nullptr;
    QLabel* Label5 = nullptr;
    QLabel* Label6 = nullptr;
    QLabel* Label7 = nullptr;
    QLabel* Label8 = nullptr;
    QPushButton* Command1 = nullptr;
};

} // namespace quovara
