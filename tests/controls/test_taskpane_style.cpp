// TaskPaneBar styles: chosen from the desktop's colour scheme, each painted in its palette,
// switched at run time with a repaint and no host action.
#include "controls/desktoptheme.h"
#include "controls/olecolor.h"
#include "controls/taskpanebar.h"
#include "test_helpers.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

using namespace quovara;
using namespace quovara::test;

namespace {

struct StyleFixture : ::testing::Test {
    std::unique_ptr<TaskPaneBar> pane = std::make_unique<TaskPaneBar>();
    void SetUp() override {
        pane->resize(220, 500);
        pane->AddSpecialGroup(QStringLiteral("Tasks"));
        pane->AddItem(-1, QStringLiteral("a"), QStringLiteral("Alpha"), 1);
        pane->AddGroup(QStringLiteral("G"), QStringLiteral("Group"));
        pane->AddItem(QStringLiteral("G"), QStringLiteral("b"), QStringLiteral("Beta"), 1);
        ShowAndWait(pane.get());
    }
    void TearDown() override {
        DesktopTheme::instance()->SetColorScheme(QStringLiteral("NormalColor"));
    }
    void switchTo(const QString& scheme) {
        const int before = pane->PaintCount();
        DesktopTheme::instance()->SetColorScheme(scheme);
        QTRY_VERIFY_WITH_TIMEOUT(pane->PaintCount() > before, 1000);
    }
    // The header's right end (past the round button), where its gradient ends.
    QColor headerEnd(const QImage& img, int group) const {
        const QRect r = pane->GroupHeaderRect(group);
        return img.pixelColor(r.right() - 1, r.center().y());
    }
    QColor headerStart(const QImage& img, int group) const {
        const QRect r = pane->GroupHeaderRect(group);
        return img.pixelColor(r.left() + 1, r.center().y());
    }
    QColor bodyColour(const QImage& img, int group) const {
        const QRect r = pane->GroupHeaderRect(group);
        return img.pixelColor(r.right() - 10, r.bottom() + 4);
    }
};

} // namespace

TEST_F(StyleFixture, MetallicPaintsItsSilverPalette) {
    switchTo(QStringLiteral("Metallic"));
    EXPECT_EQ(pane->StyleName(), QStringLiteral("Metallic"));
    const QImage img = Grab(pane.get());
    EXPECT_TRUE(Near(headerEnd(img, 1), QColor(214, 215, 224), 4))
        << headerEnd(img, 1).name().toStdString();
    EXPECT_TRUE(Near(bodyColour(img, 1), QColor(240, 241, 245), 2));
    EXPECT_TRUE(Near(headerStart(img, -1), QColor(119, 119, 146), 4));
    EXPECT_TRUE(Near(headerEnd(img, -1), QColor(180, 182, 199), 4));
}

TEST_F(StyleFixture, MetallicOrdinaryAndDetailsHeadersAreOneFlatSilver) {
    pane->AddDetailsGroup(QStringLiteral("Details"), QStringLiteral("a.uha"), QStringLiteral("x"));
    switchTo(QStringLiteral("Metallic"));
    const QImage img = Grab(pane.get());
    const QColor silver(214, 215, 224);
    for (const int group : {1, -2}) {
        const QRect r = pane->GroupHeaderRect(group);
        ASSERT_FALSE(r.isEmpty()) << group;
        EXPECT_TRUE(Near(headerStart(img, group), silver, 2))
            << group << " " << headerStart(img, group).name().toStdString();
        EXPECT_TRUE(Near(headerEnd(img, group), silver, 2)) << group;
        // Above the caption, from the rounded corner to the round button, nothing but silver.
        EXPECT_DOUBLE_EQ(RowShare(img, r.top() + 3, r.left() + 6, r.right() - 30, silver, 2), 1.0)
            << group;
    }
}

TEST_F(StyleFixture, HomeSteadPaintsItsOlivePalette) {
    switchTo(QStringLiteral("HomeStead"));
    EXPECT_EQ(pane->StyleName(), QStringLiteral("HomeStead"));
    const QImage img = Grab(pane.get());
    EXPECT_TRUE(Near(headerStart(img, 1), QColor(255, 252, 236), 4));
    EXPECT_TRUE(Near(headerEnd(img, 1), QColor(224, 231, 184), 4));
    EXPECT_TRUE(Near(bodyColour(img, 1), QColor(246, 246, 236), 2));
}

TEST_F(StyleFixture, ClassicUsesSystemColoursWhenThereIsNoThemedDrawing) {
    LogCapture log("quovara.controls.taskpane");
    switchTo(QStringLiteral("Classic"));
    EXPECT_EQ(pane->StyleName(), QStringLiteral("Classic"));
    EXPECT_FALSE(
        log.lines().filter(QStringLiteral("No theme data for class 'ExplorerBar'.  - ")).isEmpty());
    const QImage img = Grab(pane.get());
    const QPalette& pal = pane->palette();
    EXPECT_TRUE(Near(headerStart(img, 1), SystemColor(Sys3DDarkShadow, pal), 6));
    EXPECT_TRUE(Near(bodyColour(img, 1), SystemColor(SysWindow, pal), 2));
    EXPECT_TRUE(Near(headerStart(img, -1), SystemColor(SysButtonFace, pal), 6));
}

TEST_F(StyleFixture, AnyOtherSchemeIsDrawnInTheDefaultBlueLook) {
    for (const QString& scheme : {QStringLiteral("NormalColor"), QStringLiteral("Royale")}) {
        switchTo(QStringLiteral("Metallic"));
        switchTo(scheme);
        EXPECT_EQ(pane->StyleName(), scheme);
        const QImage img = Grab(pane.get());
        EXPECT_TRUE(Near(headerEnd(img, 1), QColor(198, 211, 247), 4));
        EXPECT_TRUE(Near(bodyColour(img, 1), QColor(214, 223, 247), 2));
        EXPECT_TRUE(Near(headerStart(img, -1), QColor(0, 73, 181), 4));
        // The pane behind the groups is blue as well.
        EXPECT_TRUE(Near(img.pixelColor(3, 3), QColor(123, 162, 231), 4));
    }
}

TEST_F(StyleFixture, EachStylePaintsTheHeaderInItsOwnColour) {
    QList<QColor> seen;
    for (const QString& scheme : {QStringLiteral("NormalColor"), QStringLiteral("Metallic"),
                                  QStringLiteral("HomeStead"), QStringLiteral("Classic")}) {
        switchTo(scheme);
        seen.append(headerEnd(Grab(pane.get()), 1));
    }
    for (int a = 0; a < seen.size(); ++a)
        for (int b = a + 1; b < seen.size(); ++b)
            EXPECT_FALSE(Near(seen[a], seen[b], 3)) << a << " " << b;
}

TEST_F(StyleFixture, SwitchingTheDesktopSchemeRepaintsWithoutTheHost) {
    const QImage before = Grab(pane.get());
    switchTo(QStringLiteral("HomeStead")); // waits for a paint the host never asked for
    EXPECT_NE(Grab(pane.get()), before);
}

TEST_F(StyleFixture, AHostedChildSitsOnTheBodyColourOfTheStyle) {
    auto* child = new QWidget;
    child->setObjectName(QStringLiteral("picStato"));
    child->resize(100, 30);
    pane->SetGroupChild(QStringLiteral("G"), child);
    QWidget* container = pane->GroupChildContainer(QStringLiteral("G"));
    ASSERT_NE(container, nullptr);
    EXPECT_EQ(container->palette().color(QPalette::Window), QColor(214, 223, 247));
    switchTo(QStringLiteral("Metallic"));
    EXPECT_EQ(container->palette().color(QPalette::Window), QColor(240, 241, 245));
}

TEST_F(StyleFixture, ThemePathsAreDerivedFromTheStyleFile) {
    DesktopTheme::instance()->SetColorScheme(QStringLiteral("Metallic"),
                                             QStringLiteral("/opt/styles/Quartz/quartz.style"));
    pane->repaint();
    EXPECT_EQ(pane->ThemeFilePath(), QStringLiteral("/opt/styles/Quartz/quartz.style"));
    EXPECT_EQ(pane->ShellStylePath(),
              QStringLiteral("/opt/styles/Quartz/Shell/Metallic/ShellStyle.dll"));
}

TEST_F(StyleFixture, HotItemTextIsDrawnInTheHotStyle) {
    const QRect r = pane->ItemRect(1, 1);
    ASSERT_FALSE(r.isEmpty());
    const QImage before = Grab(pane.get()).copy(r);
    MoveMouse(pane.get(), QPoint(r.left() + 4, r.center().y()));
    const QImage hot = Grab(pane.get()).copy(r);
    EXPECT_NE(before, hot);
    int highlight = 0;
    const QColor h = SystemColor(SysHighlight, pane->palette());
    for (int y = 0; y < hot.height(); ++y)
        for (int x = 0; x < hot.width(); ++x)
            highlight += Near(hot.pixelColor(x, y), h, 30) ? 1 : 0;
    EXPECT_GT(highlight, 5);
    MoveMouseAway();
}

TEST_F(StyleFixture, AStyleOverrideIgnoresTheDesktop) {
    pane->SetStyleOverride(QStringLiteral("HomeStead"));
    pane->repaint();
    EXPECT_EQ(pane->StyleName(), QStringLiteral("HomeStead"));
    DesktopTheme::instance()->SetColorScheme(QStringLiteral("Metallic"));
    QApplication::processEvents();
    pane->repaint();
    EXPECT_EQ(pane->StyleName(), QStringLiteral("HomeStead"));
    pane->SetStyleOverride(QString());
    pane->repaint();
    EXPECT_EQ(pane->StyleName(), QStringLiteral("Metallic"));
}
