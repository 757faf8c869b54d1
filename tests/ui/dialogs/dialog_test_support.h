// Helpers for the dialog tests: finding controls by object name, driving them with real mouse
// and key events, and the exact bytes of the job scripts the dialogs write.
#pragma once

#include "../../core/recording_prompter.h"
#include "../../core/test_support.h"

#include "core/places.h"

#include "ui/common/foldertreemodel.h"
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QTreeView>
#include <QWidget>
#include <gtest/gtest.h>

// Job scripts in failure messages: their text, with the line ends shown.
inline void PrintTo(const QByteArray& bytes, std::ostream* os) {
    *os << '"' << QString::fromLatin1(bytes).replace("\r\n", "\\r\\n").toStdString() << '"';
}

namespace quovara::testing {

template <typename T> T* control(QWidget* window, const char* name) {
    T* found = window->findChild<T*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << "no control named " << name;
    return found;
}

// Shows a window on the offscreen screen and waits until it is laid out and exposed, so that
// clicks land where a user would click.
inline void showAndWait(QWidget* window) {
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
}

// A mouse click where the button reacts: on the caption of a tick box or option (its left
// part), in the middle of a push button.
inline void click(QAbstractButton* button) {
    ASSERT_NE(button, nullptr);
    ASSERT_TRUE(button->isVisible()) << button->objectName().toStdString();
    const QPoint at = button->inherits("QPushButton")
                          ? button->rect().center()
                          : QPoint(qMin(30, button->width() / 2), button->height() / 2);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, at);
}

// Replaces the text of a box by typing: select all, delete, then the keys of `text`.
inline void typeInto(QLineEdit* edit, const QString& text) {
    ASSERT_NE(edit, nullptr);
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Backspace);
    // One key event per character, as an input method delivers letters that no key names
    // (a character outside the BMP travels as its surrogate pair in one event).
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype n = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, text.mid(i, n), Qt::NoModifier);
        i += n - 1;
    }
}

// Chooses a list position with the keyboard: Home, then Down as often as needed.
inline void choosePosition(QComboBox* combo, int position) {
    ASSERT_NE(combo, nullptr);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Home);
    for (int i = 0; i < position; ++i)
        QTest::keyClick(combo, Qt::Key_Down);
    ASSERT_EQ(combo->currentIndex(), position);
}

// The widgets that the Tab key visits, in order, starting at `first`.
inline QStringList tabChain(QWidget* first, int count) {
    QStringList names;
    QWidget* w = first;
    for (int i = 0; i < count && w; ++i) {
        names << w->objectName();
        do {
            w = w->nextInFocusChain();
        } while (w && w != first &&
                 (!(w->focusPolicy() & Qt::TabFocus) || w->objectName().isEmpty() ||
                  w->objectName().startsWith(QLatin1String("qt_"))));
    }
    return names;
}

// Clicks the folder `path` in a folder tree with the mouse: its parent is expanded first and
// the click waits until the row has been read and laid out.
inline void clickFolder(QTreeView* tree, const QString& path) {
    ASSERT_NE(tree, nullptr);
    auto* model = qobject_cast<FolderTreeModel*>(tree->model());
    ASSERT_NE(model, nullptr);
    const QModelIndex parent = model->reveal(QFileInfo(path).absolutePath());
    ASSERT_TRUE(parent.isValid());
    tree->expand(parent);
    QModelIndex index;
    ASSERT_TRUE(QTest::qWaitFor([&] {
        index = model->find(path);
        if (!index.isValid())
            return false;
        tree->scrollTo(index);
        return tree->visualRect(index).isValid();
    }));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree->visualRect(index).center());
}

// The preamble of every add and extract script.
inline QByteArray scriptPreamble() {
    return QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n");
}

// '"' + ProgramFolder + "/uharc.exe" + '"' + ' '.
inline QString engineText() {
    return QStringLiteral("\"") + ProgramFolder() + QStringLiteral("/uharc.exe\" ");
}

// " > " + WorkFolder + "/das.txt".
inline QString redirectText() {
    return QStringLiteral(" > ") + WorkFolder() + QStringLiteral("/das.txt");
}

inline QByteArray scriptBytes(const QString& commandLine) {
    return scriptPreamble() + commandLine.toLatin1();
}

inline QByteArray addScript() {
    return readAll(WorkFile(names::AddScript));
}
inline QByteArray extractScript() {
    return readAll(WorkFile(names::ExtractScript));
}

} // namespace quovara::testing
