// The main window's single items: the "No item selected" message and the hand over what can
// be clicked.
#include "mainwindow_fixture.h"

#include "ui/common/handcursor.h"

#include <QPushButton>
#include <QToolButton>

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, MsgNessunoSaysNoItemSelected) {
    ASSERT_TRUE(window_.Form_Load(""));
    window_.MsgNessuno();
    EXPECT_EQ(prompter_.shown, QStringList({"exclamation: No item selected"}));
}

TEST(SetHandCursor, TheHandWhenTrueTheArrowWhenFalse) {
    QWidget widget;
    SetHandCursor(&widget, true);
    EXPECT_EQ(widget.cursor().shape(), Qt::PointingHandCursor);
    SetHandCursor(&widget, false);
    EXPECT_EQ(widget.cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(widget.testAttribute(Qt::WA_SetCursor));
}

TEST_F(MainWindow, TheSingleItemLinksAndTheSearchPictureShowTheHand) {
    ASSERT_TRUE(window_.Form_Load(""));
    EXPECT_EQ(child<QPushButton>("EstFile")->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(child<QPushButton>("EseFile")->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(child<QToolButton>("ImgCerca")->cursor().shape(), Qt::PointingHandCursor);
}
