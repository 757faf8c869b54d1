// The About window: its texts and pictures, the colours of the three links as the pointer
// moves over them and over the areas that restore them, and what a click on each opens.
#include "../../core/recording_prompter.h"
#include "../../core/test_support.h"
#include "sfx_test_helpers.h"

#include "core/desktop.h"
#include "ui/browser/frmapri.h"
#include "ui/jobs/frminfo.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

class AboutWindow : public ::testing::Test {
protected:
    void SetUp() override {
        SetDesktopOpener([this](const QString& target, const QString&, const QString&) {
            opened_ << target;
            return 42;
        });
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }
    void TearDown() override { SetDesktopOpener({}); }

    QLabel* link(int i) {
        auto* l = window_.findChild<QLabel*>(QStringLiteral("Contattare(%1)").arg(i));
        EXPECT_NE(l, nullptr) << i;
        return l;
    }
    template <class T> T* control(const char* name) {
        T* w = window_.findChild<T*>(QLatin1String(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }

    // "blue" or "red", and whether underlined, of link i.
    std::string look(int i) {
        QLabel* l = link(i);
        const QColor c = l->palette().color(QPalette::WindowText);
        std::string colour = c == QColor(0, 0, 255)   ? "blue"
                             : c == QColor(255, 0, 0) ? "red"
                                                      : c.name().toStdString();
        return colour + (l->font().underline() ? " underlined" : "");
    }

    void pointAt(QWidget* w) { QTest::mouseMove(w, QPoint(w->width() / 2, w->height() / 2)); }

    // A point of the program's frame that is not on any of its controls.
    QPoint freePointOfFrame2() {
        auto* frame = control<QGroupBox>("Frame2");
        const QPoint p(frame->width() - 4, frame->height() - 4);
        EXPECT_EQ(frame->childAt(p), nullptr);
        return p;
    }
    // A point of the window that is on none of its controls.
    QPoint freePointOfWindow() {
        const QPoint p(window_.width() - 3, 3);
        EXPECT_EQ(window_.childAt(p), nullptr);
        return p;
    }

    QStringList opened_;
    frmInfo window_;
};

} // namespace

TEST_F(AboutWindow, TextsFramesAndPictures) {
    EXPECT_EQ(window_.windowTitle(), "Quovara v 2.0");
    auto* frame2 = control<QGroupBox>("Frame2");
    auto* frame1 = control<QGroupBox>("Frame1");
    EXPECT_EQ(frame2->title(), "Quovara v 2.0 UHARC GUI");
    EXPECT_EQ(frame1->title(), "UHARC 0.6a BETA VERSION High Compression Multimedia Archiver");
    EXPECT_EQ(control<QLabel>("Label6")->text(), "E-mai: ");
    EXPECT_EQ(control<QLabel>("Label5")->text(), "Web Site: ");
    EXPECT_EQ(control<QLabel>("Label3")->text(), "Written by the Quovara developers");
    EXPECT_EQ(control<QLabel>("Label4")->text(), "IT IS FREE, NOT FOR COMMERCIAL USE");
    EXPECT_EQ(control<QLabel>("Label2")->text(),
              "FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE");
    EXPECT_EQ(control<QLabel>("Label1")->text(),
              "UHARC is a separate program by its own author. Quovara does not include it.");
    EXPECT_EQ(control<QLabel>("Label7")->text(), "FORZA NAPOLI");
    EXPECT_EQ(control<QLabel>("Label8")->text(), "For everyone who keeps old archives alive.");
    EXPECT_EQ(control<QPushButton>("Command1")->text(), "OK");

    EXPECT_EQ(link(0)->text(), "quovara.example.org");
    EXPECT_EQ(link(1)->text(), "quovara@example.org");
    EXPECT_EQ(link(2)->text(), "quovara.example.org/engine");

    // Where each control lies.
    for (const char* name :
         {"Contattare(0)", "Contattare(1)", "Label3", "Label4", "Label5", "Label6", "Image1"})
        EXPECT_TRUE(frame2->isAncestorOf(control<QWidget>(name))) << name;
    for (const char* name : {"Picture1", "Label1", "Label2"})
        EXPECT_TRUE(frame1->isAncestorOf(control<QWidget>(name))) << name;
    for (const char* name : {"Contattare(2)", "Label7", "Label8", "Command1"}) {
        EXPECT_FALSE(frame2->isAncestorOf(control<QWidget>(name))) << name;
        EXPECT_FALSE(frame1->isAncestorOf(control<QWidget>(name))) << name;
    }

    // The two pictures are drawn.
    for (const char* name : {"Image1", "Picture1"}) {
        auto* picture = control<QLabel>(name);
        ASSERT_FALSE(picture->pixmap().isNull()) << name;
        const QImage image = picture->pixmap().toImage();
        EXPECT_NE(image.pixelColor(image.width() / 2, image.height() / 2).alpha(), 0) << name;
        EXPECT_FALSE(picture->accessibleName().isEmpty()) << name;
    }

    // The links are blue and plain at first, and named for assistive technology.
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(look(i), "blue") << i;
        EXPECT_TRUE(link(i)->accessibleName().endsWith(link(i)->text())) << i;
        EXPECT_EQ(link(i)->focusPolicy(), Qt::StrongFocus);
    }
}

TEST_F(AboutWindow, LinkUnderThePointerTurnsRedAndUnderlined) {
    for (int i = 0; i < 3; ++i) {
        pointAt(link(i));
        EXPECT_EQ(look(i), "red underlined") << i;
    }
    // Passing to another link does not restore the previous one.
    EXPECT_EQ(look(0), "red underlined");
    EXPECT_EQ(look(1), "red underlined");
}

TEST_F(AboutWindow, EachAreaRestoresOnlyTheLinksInIt) {
    for (int i = 0; i < 3; ++i)
        pointAt(link(i));

    // The program's frame restores the two links inside it, not the third.
    QTest::mouseMove(control<QGroupBox>("Frame2"), freePointOfFrame2());
    EXPECT_EQ(look(0), "blue");
    EXPECT_EQ(look(1), "blue");
    EXPECT_EQ(look(2), "red underlined");

    // The window's free area restores the third, not the two in the frame.
    pointAt(link(0));
    QTest::mouseMove(&window_, freePointOfWindow());
    EXPECT_EQ(look(2), "blue");
    EXPECT_EQ(look(0), "red underlined");
    EXPECT_EQ(look(1), "blue");

    // The engine's frame and the plain labels restore nothing.
    pointAt(link(2));
    pointAt(control<QGroupBox>("Frame1"));
    pointAt(control<QLabel>("Label7"));
    pointAt(control<QLabel>("Label3"));
    EXPECT_EQ(look(0), "red underlined");
    EXPECT_EQ(look(2), "red underlined");
}

TEST_F(AboutWindow, LeavingTheWindowFromALinkLeavesItHighlighted) {
    QWidget elsewhere;
    elsewhere.setGeometry(window_.geometry().right() + 50, window_.geometry().top(), 200, 200);
    elsewhere.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&elsewhere));

    pointAt(link(0));
    pointAt(&elsewhere);
    EXPECT_EQ(look(0), "red underlined");
    pointAt(link(2));
    pointAt(&elsewhere);
    EXPECT_EQ(look(2), "red underlined");

    // Coming back over the area that holds each link restores it.
    QTest::mouseMove(control<QGroupBox>("Frame2"), freePointOfFrame2());
    EXPECT_EQ(look(0), "blue");
    EXPECT_EQ(look(2), "red underlined");
    QTest::mouseMove(&window_, freePointOfWindow());
    EXPECT_EQ(look(2), "blue");
}

TEST_F(AboutWindow, ClickingALinkOpensItThroughTheDesktop) {
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(link(i), Qt::LeftButton);
    EXPECT_EQ(opened_, QStringList({"http://quovara.example.org", "mailto:quovara@example.org",
                                    "http://quovara.example.org/engine"}));
    EXPECT_EQ(window_.linkTarget(1), "mailto:quovara@example.org");
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(AboutWindow, LinksWorkFromTheKeyboard) {
    link(0)->setFocus();
    QTest::keyClick(link(0), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), link(1));
    QTest::keyClick(link(1), Qt::Key_Space);
    QTest::keyClick(link(1), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), link(2));
    QTest::keyClick(link(2), Qt::Key_Return);
    EXPECT_EQ(opened_,
              QStringList({"mailto:quovara@example.org", "http://quovara.example.org/engine"}));
    QTest::keyClick(link(2), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), control<QPushButton>("Command1"));
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(AboutWindow, OkCloses) {
    QTest::mouseClick(control<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(window_.result(), QDialog::Accepted);
}

TEST(AboutFromMainWindow, AboutButtonOpensTheWindowModally) {
    ScopedPlaces places;
    writeFile(places.programFolder() + "/uharc.exe", "MZ not really an engine");
    RecordingPrompter prompter;
    frmApri main;
    main.setPrompter(&prompter);
    main.setInstanceLockPath(places.path() + "/instance.lock");
    ASSERT_TRUE(main.Form_Load(QString()));
    QString title;
    WhenShown<frmInfo> act([&](frmInfo* about) {
        title = about->windowTitle();
        EXPECT_TRUE(about->isModal());
        QTest::mouseClick(about->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    });
    main.ButtonClick(11);
    EXPECT_TRUE(act.acted());
    EXPECT_EQ(title, "Quovara v 2.0");
    EXPECT_TRUE(prompter.shown.isEmpty()) << prompter.shown.join('|').toStdString();
    main.close();
}
