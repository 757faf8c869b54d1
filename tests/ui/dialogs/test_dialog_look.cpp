// Pictures of the two dialogs for the documentation. Runs only when QUOVARA_DIALOG_PICTURES
// names a folder and a real display is used (xcb under Xvfb): each dialog is shown on a plain
// screen and the whole screen is taken with ImageMagick's import.
#include "dialog_test_support.h"

#include "ui/jobs/frmaggiungi.h"
#include "ui/jobs/frmestrai.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QProcess>
#include <QRadioButton>
#include <QScreen>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

void takePicture(QWidget* window, const QString& file) {
    window->move(40, 40);
    showAndWait(window);
    window->activateWindow();
    QTest::qWait(700);
    QProcess import;
    import.start("import", {"-window", "root", "-crop",
                            QStringLiteral("%1x%2+0+0")
                                .arg(window->frameGeometry().right() + 41)
                                .arg(window->frameGeometry().bottom() + 41),
                            file});
    ASSERT_TRUE(import.waitForFinished(30000));
    EXPECT_EQ(import.exitCode(), 0) << import.readAllStandardError().toStdString();
}

} // namespace

TEST(DialogLook, PicturesOfBothDialogs) {
    const QString folder = qEnvironmentVariable("QUOVARA_DIALOG_PICTURES");
    if (folder.isEmpty() || QGuiApplication::platformName() != "xcb")
        GTEST_SKIP() << "set QUOVARA_DIALOG_PICTURES and run under a display";
    ScopedPlaces places;
    // A folder with some folders of its own, so that the tree shows a home-like place.
    const QString src = places.path() + "/home/anna/Documents";
    for (const char* name : {"Invoices", "Letters", "Music", "Photos", "Projects", "Recipes",
                             "Reports", "Scans", "Travel", "Work"})
        QDir().mkpath(src + "/" + name);
    RecordingPrompter prompter;

    frmAggiungi add([src] { return src; }, prompter, {});
    add.move(40, 40);
    showAndWait(&add);
    click(control<QCheckBox>(&add, "Check4"));
    QTest::keyClicks(control<QLineEdit>(&add, "Text2"), "secret");
    takePicture(&add, folder + "/dialog-add.png");
    add.hide();

    const QString archive = src + "/Holiday.uha";
    writeFile(archive, "archive");
    frmEstrai extract(archive, prompter, {});
    extract.move(40, 40);
    showAndWait(&extract);
    click(control<QCheckBox>(&extract, "Check3"));
    control<QTreeView>(&extract, "FolderView1")
        ->expand(control<QTreeView>(&extract, "FolderView1")->currentIndex());
    takePicture(&extract, folder + "/dialog-extract.png");
}
