// What the Add and Extract dialogs share: the hand-over to the job that runs their script, and
// the "File to Extract" frame (all files, some file types, a list file, exclusions) that both
// show with the same controls.
#pragma once

#include "engine/grammar.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <functional>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace quovara {

// Runs the job whose script a dialog has just written and returns when it has ended. The
// argument is the archive of the job (the add job's target, the extract job's source); the job
// works in the folder that holds it. The main window hands over to the progress window; tests
// hand over to a plain run of the script.
using JobHandOver = std::function<void(const QString& archivePath)>;

// Captions shared by both dialogs; their translation context is "DialogText".
namespace dialogtext {
inline constexpr char FileFrame[] = QT_TRANSLATE_NOOP("DialogText", "File to Extract");
inline constexpr char AllFiles[] = QT_TRANSLATE_NOOP("DialogText", "All Files");
inline constexpr char FileList[] = QT_TRANSLATE_NOOP("DialogText", "By File List (Full Path)");
inline constexpr char Exclude[] = QT_TRANSLATE_NOOP("DialogText", "Exclude: (e.g: *.dll *.exe)");
inline constexpr char Password[] = QT_TRANSLATE_NOOP("DialogText", "Password");
} // namespace dialogtext

// The controls of the "File to Extract" frame. `OpAllFile`, `OpFileType` and `OpFileList` are
// one option group; the text boxes are always enabled.
struct FileChoiceControls {
    QGroupBox* Frame = nullptr;
    QRadioButton* OpAllFile = nullptr;
    QRadioButton* OpFileType = nullptr;
    QLineEdit* TxtFileType = nullptr;
    QRadioButton* OpFileList = nullptr;
    QLineEdit* TxtFileList = nullptr;
    QCheckBox* ChkExclude = nullptr;
    QLineEdit* TxtExclude = nullptr;

    FileChoice choice() const;
    // The frame's controls in the order the Tab key visits them.
    QList<QWidget*> tabOrder() const;
};

// Builds the frame with its object name and caption; `fileTypesCaption` is the caption of
// `OpFileType`, which differs between the two dialogs.
FileChoiceControls BuildFileChoiceFrame(const char* frameName, const QString& fileTypesCaption,
                                        QWidget* parent);

// Chains the Tab order through `widgets`, in order.
void ChainTabOrder(const QList<QWidget*>& widgets);

// Gives a new control its form name and returns it.
template <typename W> W* named(W* widget, const char* name) {
    widget->setObjectName(QLatin1String(name));
    return widget;
}

// A caption shared by both dialogs (a `dialogtext` constant) as the user reads it.
QString DialogText(const char* source);

// The same path written two ways ("/a/b/" and "/a/b", native or not) compares equal.
bool SamePath(const QString& a, const QString& b);

} // namespace quovara
