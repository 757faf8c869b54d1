// The message boxes of the windows, driven with the keyboard as a user answers them.
#include "ui/common/messageprompter.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

using namespace quovara;

namespace {

// Runs `act` on the question box once it is shown.
void whenQuestionShown(const std::function<void(QMessageBox*)>& act) {
    QTimer::singleShot(0, [act] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* box = qobject_cast<QMessageBox*>(w);
                box && box->objectName() == "EngineQuestion" && box->isVisible()) {
                act(box);
                return;
            }
        }
        whenQuestionShown(act);
    });
}

} // namespace

TEST(MessagePrompterQuestion, EscapeAnswersNoAndEnterTakesTheDefaultNo) {
    MessagePrompter prompter;
    QString text;
    whenQuestionShown([&](QMessageBox* box) {
        text = box->text();
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_FALSE(prompter.question("Overwrite?"));
    EXPECT_EQ(text, "Overwrite?");
    whenQuestionShown([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
    EXPECT_FALSE(prompter.question("Overwrite?"));
}

TEST(MessagePrompterQuestion, YesIsReachedWithTheKeyboard) {
    MessagePrompter prompter;
    QString title;
    QStringList buttons;
    whenQuestionShown([&](QMessageBox* box) {
        title = box->windowTitle();
        for (QAbstractButton* b : box->buttons())
            buttons << b->text().remove('&');
        box->activateWindow();
        if (!QTest::qWaitForWindowActive(box) || !QApplication::focusWidget()) {
            ADD_FAILURE() << "the question box never had the focus";
            box->reject();
            return;
        }
        // The focus starts on the default No; Shift+Tab reaches Yes and Space presses it.
        EXPECT_EQ(QApplication::focusWidget(), box->button(QMessageBox::No));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget(), box->button(QMessageBox::Yes));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    EXPECT_TRUE(prompter.question("Overwrite?"));
    EXPECT_EQ(title, "Quovara");
    buttons.sort();
    EXPECT_EQ(buttons, QStringList({"No", "Yes"}));
}
