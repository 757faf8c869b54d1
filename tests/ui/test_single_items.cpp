// The main window's single items: the "No item selected" message, the hand over what can be
// clicked, a run of a file that no application opens, and one where xdg-open is missing.
#include "mainwindow_fixture.h"

#include "ui/common/handcursor.h"

#include <QPushButton>
#include <QToolButton>

using namespace quovara;
using namespace quovara::testing;

namespace {

// The desktop's own opener, with its look-up answering "no application" and its hand-over
// recorded, for one scope.
class NoApplicationDesktop {
public:
    NoApplicationDesktop() {
        SetDesktopOpener({});
        SetAssociationLookup([this](const QStringList& types) {
            asked << types.value(0);
            return QString();
        });
        SetDesktopLauncher([this](const QString& target) {
            launched << target;
            return true;
        });
    }
    ~NoApplicationDesktop() {
        SetAssociationLookup({});
        SetDesktopLauncher({});
    }
    QStringList asked;
    QStringList launched;
};

} // namespace

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

TEST_F(MainWindow, RunningAFileThatNoApplicationOpensSaysSoInItalian) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    clickItem(ScratchFolder() + "/root.txt");
    ASSERT_EQ(window_.selectedItem(), "root.txt");
    NoApplicationDesktop desktop;
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    // The item was extracted, then found to have no application.
    EXPECT_EQ(readAll(WorkFolder() + "/root.txt"), QByteArray("root file"));
    EXPECT_EQ(desktop.asked, QStringList({"text/plain"}));
    EXPECT_TRUE(desktop.launched.isEmpty());
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: Il sistema in uso non presenta alcuna associazione per "
                           "questo tipo di file\r\r"}));
    EXPECT_EQ(text("Stato"), "Quovara is ready");
}

TEST_F(MainWindow, RunningAFileWithoutXdgOpenSaysWhichPackageToInstall) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    clickItem(ScratchFolder() + "/root.txt");
    ASSERT_EQ(window_.selectedItem(), "root.txt");
    // The desktop's own opener, on a PATH where no xdg-open lies.
    SetDesktopOpener({});
    QTemporaryDir noPrograms;
    ScopedEnv path("PATH", noPrograms.path().toLocal8Bit());
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/root.txt"), QByteArray("root file"));
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: root.txt cannot be opened: the program that opens files, "
                           "xdg-open, is not installed.\n\nIt comes with the package xdg-utils; "
                           "install it (for example with \"sudo apt install xdg-utils\") and "
                           "try again."}));
    EXPECT_EQ(text("Stato"), "Quovara is ready");
}
