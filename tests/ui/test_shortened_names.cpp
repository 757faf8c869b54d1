// An archive whose names the file system cannot all hold (here a file and a folder of one name,
// as captured from the real engine): every entry is shown, found and extracted, each under its
// stored name, and the user is told that some names are shown otherwise.
#include "mainwindow_fixture.h"

#include <QPushButton>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

// An engine that lists the captured archive and records what a single-item extract asks for,
// writing the item into the target under the last part of the name it was given.
const QByteArray kCannedEngine =
    "#!/bin/sh\n"
    "case \"$1\" in\n"
    "l) for a; do case \"$a\" in -lg*) cat \"$QV_LOG\" > \"${a#-lg}\";; esac; done;;\n"
    "e) printf '%s\\n' \"$@\" > \"$QV_RECORD\"\n"
    "   for a; do case \"$a\" in -t*) t=\"${a#-t}\";; esac; last=\"$a\"; done\n"
    "   name=$(printf '%s' \"$last\" | tr '\\\\' '/'); printf inside > \"$t/${name##*/}\";;\n"
    "esac\n";

class ShortenedNames : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        emptyProgramFolder();
        writeExecutable(places_.programFolder() + "/uharc.exe", kCannedEngine);
        archive_ = places_.path() + "/clash.uha";
        writeFile(archive_, "an archive");
    }
    // In the work folder, where a single item is extracted: an extraction may write nothing
    // outside its destination, the engine's record included.
    QString record() const { return WorkFolder() + "/record.txt"; }

    ScopedEnv log_{"QV_LOG", QUOVARA_LISTING_DATA "/list-file-folder-clash.log"};
    ScopedEnv record_{"QV_RECORD", QByteArray()};
    QString archive_;
};

} // namespace

TEST_F(ShortenedNames, AFileAndAFolderOfOneNameAreBothShownAndExtractedUnderTheirStoredNames) {
    qputenv("QV_RECORD", record().toUtf8());
    ASSERT_TRUE(window_.Form_Load(archive_));
    show();
    EXPECT_EQ(prompter_.shown,
              QStringList({"information: Some names of the archive\n" + archive_ +
                           "\ncannot stand as they are on this system (a name longer than 255 "
                           "bytes, or a file and a folder of one name): 1 name is shown "
                           "shortened or numbered. They are extracted under their stored "
                           "names."}));
    EXPECT_TRUE(QFileInfo(ScratchFolder() + "/clash/x").isFile());
    EXPECT_TRUE(QFileInfo(ScratchFolder() + "/clash/x (2)/y.txt").isFile());
    EXPECT_EQ(text("NomeAr"), "Files: 2");

    // Selected in the tree, the renamed folder's entry goes to the engine as stored.
    window_.fileView()->setFolder(ScratchFolder() + "/clash/x (2)");
    clickItem(ScratchFolder() + "/clash/x (2)/y.txt");
    EXPECT_EQ(window_.selectedItem(), "clash\\x\\y.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(record()).trimmed().split('\n').last(), QByteArray("clash\\x\\y.txt"));
    EXPECT_EQ(readAll(WorkFolder() + "/y.txt"), QByteArray("inside"));
    EXPECT_EQ(opened_.last(), WorkFolder() + "/y.txt");

    // Found by search, the same.
    clickToolbar(1);
    ASSERT_TRUE(searchWithEnter("y.txt"));
    auto* found = child<QTreeView>("Trovati");
    ASSERT_EQ(found->model()->rowCount(), 1);
    QTest::mouseClick(found->viewport(), Qt::LeftButton, {},
                      found->visualRect(found->model()->index(0, 0)).center());
    EXPECT_EQ(window_.selectedItem(), "clash\\x\\y.txt");
}
