// The main window's start-up order: the work folder is made before the window's furniture
// (toolbar and task-pane groups), and the engine is checked after it.
#include "mainwindow_fixture.h"

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, AnUnusableWorkFolderEndsTheStartBeforeTheFurnitureIsBuilt) {
    // TMPDIR names a file: no work folder can be made inside it.
    const QString file = places_.path() + "/not-a-folder";
    writeFile(file, "x");
    ScopedEnv tmp("TMPDIR", file.toLocal8Bit());
    EXPECT_FALSE(window_.Form_Load(""));
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_TRUE(prompter_.shown[0].startsWith("critical: Quovara cannot use its work folder\n" +
                                              file + "/Corvana\n"))
        << prompter_.shown[0].toStdString();
    EXPECT_EQ(child<ucToolbar>("ucToolbar1")->ButtonCount(), 0);
    EXPECT_EQ(child<TaskPaneBar>("Barra")->GroupCount(), 0);
    // The engine was not looked at: the stored 0.6 copy still waits beside it.
    EXPECT_EQ(readAll(places_.programFolder() + "/uharc.exe"), readAll(kFour));
}

TEST_F(MainWindow, AMissingEngineIsFoundAfterTheWorkFolderAndTheFurniture) {
    QFile::remove(places_.programFolder() + "/Uharc0.6.fns");
    QFile::remove(places_.programFolder() + "/uharc.exe");
    writeFile(WorkFolder() + "/left-over.txt", "from the previous run");
    EXPECT_FALSE(window_.Form_Load(""));
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: Uharc 0.4 not detected, program will be end"}));
    EXPECT_FALSE(QFile::exists(WorkFolder() + "/left-over.txt"));
    EXPECT_TRUE(QFileInfo(WorkFolder()).isDir());
    EXPECT_EQ(child<ucToolbar>("ucToolbar1")->ButtonCount(), 11);
    EXPECT_EQ(child<TaskPaneBar>("Barra")->GroupCount(), 3);
}
