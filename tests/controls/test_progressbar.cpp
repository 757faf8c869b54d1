// XP_ProgressBar: defaults and property bag, repaint rules, percentage text, rendering.
#include "controls/xp_progressbar.h"
#include "test_helpers.h"

#include <QPainter>
#include <QSet>
#include <gtest/gtest.h>
#include <memory>

using namespace quovara;
using namespace quovara::test;

namespace {

struct BarFixture : ::testing::Test {
    std::unique_ptr<XP_ProgressBar> bar = std::make_unique<XP_ProgressBar>();
    const QColor red{255, 0, 0};
    void SetUp() override {
        bar->setObjectName(QStringLiteral("RatioBar"));
        bar->resize(204, 20);
        bar->SetColor(red);
        ShowAndWait(bar.get());
    }
    // Share of the inner width (inside the 2-pixel edge) filled with the bar colour.
    double filledShare() {
        const QImage img = Grab(bar.get());
        return RowShare(img, img.height() / 2, 2, img.width() - 2, red, 10);
    }
};

} // namespace

TEST(ProgressBarDefaults, PropertiesStartAtTheirDefaults) {
    XP_ProgressBar bar;
    EXPECT_EQ(bar.ColorValue(), 0x8000000Du);
    EXPECT_EQ(bar.Color(), bar.palette().color(QPalette::Highlight));
    EXPECT_EQ(bar.eBrushStyle(), 4);
    EXPECT_EQ(bar.FillOrEmpty(), 1);
    EXPECT_EQ(bar.Font().family(), QStringLiteral("Tahoma"));
    EXPECT_TRUE(bar.Image().isNull());
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.Min(), 0);
    EXPECT_EQ(bar.Orientation(), 0);
    EXPECT_EQ(bar.Scrolling(), 0);
    EXPECT_FALSE(bar.ShowText());
    EXPECT_EQ(bar.Value(), 0);
}

TEST(ProgressBarPropertyBag, MissingKeysReadAsDefaultsAndAllKeysAreWritten) {
    XP_ProgressBar bar;
    bar.SetValue(12);
    bar.SetMax(50);
    bar.SeteBrushStyle(2);
    bar.ReadProperties(QVariantMap{});
    EXPECT_EQ(bar.Value(), 0);
    EXPECT_EQ(bar.Max(), 100);
    EXPECT_EQ(bar.eBrushStyle(), 4);
    EXPECT_EQ(bar.ColorValue(), 0x8000000Du);

    QVariantMap bag;
    bar.WriteProperties(bag);
    const QStringList keys = bag.keys();
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()),
              QSet<QString>({"Color", "BrushStyle", "FillOrEmpty", "Image", "Max", "Min",
                             "Orientation", "Scrolling", "ShowText", "Value"}));
    EXPECT_EQ(bag.value("Color").toLongLong(), 0x8000000DLL);
    EXPECT_EQ(bag.value("BrushStyle").toInt(), 4);
}

TEST(ProgressBarPropertyBag, RoundTripThroughTheBag) {
    XP_ProgressBar a;
    QPixmap pattern(4, 4);
    pattern.fill(Qt::yellow);
    a.SetColor(QColor(10, 20, 30));
    a.SeteBrushStyle(5);
    a.SetFillOrEmpty(0);
    a.SetImage(pattern);
    a.SetMax(250);
    a.SetMin(-5);
    a.SetOrientation(1);
    a.SetScrolling(7);
    a.SetShowText(true);
    a.SetValue(300);
    QVariantMap bag;
    a.WriteProperties(bag);
    XP_ProgressBar b;
    b.ReadProperties(bag);
    EXPECT_EQ(b.Color(), QColor(10, 20, 30));
    EXPECT_EQ(b.ColorValue(), 0x001E140Au); // red in the low byte
    EXPECT_EQ(b.eBrushStyle(), 5);
    EXPECT_EQ(b.FillOrEmpty(), 0);
    EXPECT_EQ(b.Image().size(), QSize(4, 4));
    EXPECT_EQ(b.Max(), 250);
    EXPECT_EQ(b.Min(), -5);
    EXPECT_EQ(b.Orientation(), 1);
    EXPECT_EQ(b.Scrolling(), 7);
    EXPECT_TRUE(b.ShowText());
    EXPECT_EQ(b.Value(), 300);
    // A colour stored as a QColor is accepted too, and a system colour value is translated.
    b.ReadProperties(QVariantMap{{"Color", QColor(1, 2, 3)}});
    EXPECT_EQ(b.Color(), QColor(1, 2, 3));
    b.ReadProperties(QVariantMap{{"Color", qlonglong(0x80000005LL)}});
    EXPECT_EQ(b.Color(), b.palette().color(QPalette::Base));
}

TEST(ProgressBarText, PercentOfMaxIgnoringMin) {
    XP_ProgressBar bar;
    bar.SetShowText(true);
    bar.SetValue(45);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("45 %"));
    bar.SetMin(40); // not part of the percentage
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("45 %"));
    bar.SetValue(7);
    bar.SetMax(9);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("77 %"));
    bar.SetMax(100);
    bar.SetValue(29);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("29 %"));
    bar.SetMax(0);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("0 %"));
    bar.SetMax(100);
    bar.SetScrolling(2);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("Searching.."));
}

TEST(ProgressBarValue, IsNotClamped) {
    XP_ProgressBar bar;
    bar.SetMin(10);
    bar.SetMax(100);
    bar.SetValue(150);
    EXPECT_EQ(bar.Value(), 150);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("150 %"));
    bar.SetValue(-5);
    EXPECT_EQ(bar.Value(), -5);
    EXPECT_EQ(bar.DisplayText(), QStringLiteral("-5 %"));
}

TEST_F(BarFixture, FortyFivePercentFillsAboutFortyFivePercentOfTheWidth) {
    bar->SetValue(45);
    EXPECT_NEAR(filledShare(), 0.45, 0.02);
    bar->SetValue(100);
    EXPECT_NEAR(filledShare(), 1.0, 0.02);
    bar->SetValue(0);
    EXPECT_NEAR(filledShare(), 0.0, 0.01);
    bar->SetValue(150); // drawn to the end, not past the edge
    EXPECT_NEAR(filledShare(), 1.0, 0.02);
    const QImage img = Grab(bar.get());
    EXPECT_FALSE(Near(img.pixelColor(img.width() - 1, img.height() / 2), red, 10));
}

TEST_F(BarFixture, VerticalOrientationFillsFromTheBottom) {
    bar->resize(20, 104);
    bar->SetOrientation(1);
    bar->SetValue(45);
    const QImage img = Grab(bar.get());
    int filled = 0;
    for (int y = 2; y < img.height() - 2; ++y)
        filled += Near(img.pixelColor(img.width() / 2, y), red, 10) ? 1 : 0;
    EXPECT_NEAR(filled / 100.0, 0.45, 0.02);
    EXPECT_TRUE(Near(img.pixelColor(img.width() / 2, img.height() - 4), red, 10));
    EXPECT_FALSE(Near(img.pixelColor(img.width() / 2, 4), red, 10));
}

TEST_F(BarFixture, FillOrEmptyZeroShowsTheRemainingPart) {
    bar->SetValue(30);
    bar->SetFillOrEmpty(0);
    bar->pDraw();
    EXPECT_NEAR(filledShare(), 0.70, 0.02);
}

TEST_F(BarFixture, MaxMinBrushStyleAndFillOrEmptyDoNotRepaint) {
    bar->SetValue(50);
    const QImage at50 = Grab(bar.get());
    bar->SetMax(200);
    EXPECT_EQ(Grab(bar.get()), at50);
    bar->SetMin(20);
    EXPECT_EQ(Grab(bar.get()), at50);
    bar->SetFillOrEmpty(0);
    EXPECT_EQ(Grab(bar.get()), at50);
    bar->SetFillOrEmpty(1);
    bar->pDraw(); // the next repaint shows them: (50 - 20) / (200 - 20)
    EXPECT_NEAR(filledShare(), 30.0 / 180.0, 0.02);

    bar->SetScrolling(7);
    const QImage cross = Grab(bar.get());
    bar->SeteBrushStyle(0);
    EXPECT_EQ(Grab(bar.get()), cross);
    bar->pDraw();
    EXPECT_NE(Grab(bar.get()), cross);
}

TEST_F(BarFixture, RepaintingSettersShowAtOnce) {
    QImage last = Grab(bar.get());
    auto changed = [&] {
        const QImage now = Grab(bar.get());
        const bool differs = now != last;
        last = now;
        return differs;
    };
    bar->SetValue(40);
    EXPECT_TRUE(changed());
    bar->SetColor(QColor(0, 0, 255));
    EXPECT_TRUE(changed());
    bar->SetScrolling(1);
    EXPECT_TRUE(changed());
    bar->SetShowText(true);
    EXPECT_TRUE(changed());
    QFont big = bar->Font();
    big.setPointSize(14);
    bar->SetFont(big);
    EXPECT_TRUE(changed());
    bar->SetOrientation(1);
    EXPECT_TRUE(changed());
    bar->SetOrientation(0);
    bar->SetScrolling(8);
    last = Grab(bar.get());
    QPixmap pattern(6, 6);
    pattern.fill(Qt::darkGreen);
    bar->SetImage(pattern);
    EXPECT_TRUE(changed());
}

TEST_F(BarFixture, TheTenModesAreDrawnDistinctly) {
    bar->SetValue(45);
    QPixmap pattern(6, 6);
    pattern.fill(QColor(0, 200, 0));
    bar->SetImage(pattern);
    QList<QImage> images;
    for (int mode = 0; mode < 10; ++mode) {
        bar->SetScrolling(mode);
        images.append(Grab(bar.get()));
    }
    for (int a = 0; a < 10; ++a)
        for (int b = a + 1; b < 10; ++b)
            EXPECT_NE(images[a], images[b]) << "modes " << a << " and " << b;
    const int mid = images[0].height() / 2;
    // Gradient: lighter at the start of the fill than at its end.
    const QImage& g = images[5];
    EXPECT_GT(g.pixelColor(4, mid).lightness(), g.pixelColor(int(0.45 * 200) - 2, mid).lightness());
    // Image pattern: the pattern's colour fills the filled part.
    EXPECT_TRUE(Near(images[8].pixelColor(40, mid), QColor(0, 200, 0), 10));
    // On white: the empty part of mode 6 is white.
    EXPECT_TRUE(Near(images[6].pixelColor(180, mid), Qt::white, 2));
    // Hatched: the filled part holds both the hatch colour and a lighter ground.
    int hatch = 0, ground = 0;
    for (int x = 4; x < 80; ++x) {
        const QColor c = images[7].pixelColor(x, mid - 2);
        hatch += Near(c, red, 10) ? 1 : 0;
        ground += Near(c, red.lighter(185), 12) ? 1 : 0;
    }
    EXPECT_GT(hatch, 0);
    EXPECT_GT(ground, 0);
}

TEST_F(BarFixture, HatchStyleSelectsThePattern) {
    bar->SetValue(60);
    bar->SetScrolling(7);
    QList<QImage> styles;
    for (int s = 0; s < 6; ++s) {
        bar->SeteBrushStyle(s);
        bar->pDraw();
        styles.append(Grab(bar.get()));
    }
    for (int a = 0; a < 6; ++a)
        for (int b = a + 1; b < 6; ++b)
            EXPECT_NE(styles[a], styles[b]) << "styles " << a << " and " << b;
}

TEST_F(BarFixture, ModeSixDrawsTheTextInTwoColours) {
    bar->resize(300, 24);
    bar->SetScrolling(6);
    bar->SetShowText(true);
    QFont f = bar->Font();
    f.setPointSize(12);
    f.setBold(true);
    bar->SetFont(f);
    bar->SetValue(50);
    const QImage img = Grab(bar.get());
    const int split = 2 + (300 - 4) / 2;
    int whiteInFill = 0, colourInEmpty = 0;
    for (int y = 4; y < img.height() - 4; ++y) {
        for (int x = split - 40; x < split; ++x)
            whiteInFill += Near(img.pixelColor(x, y), Qt::white, 40) ? 1 : 0;
        for (int x = split + 1; x < split + 40; ++x)
            colourInEmpty += Near(img.pixelColor(x, y), red, 40) ? 1 : 0;
    }
    EXPECT_GT(whiteInFill, 5);
    EXPECT_GT(colourInEmpty, 5);
}

TEST_F(BarFixture, TextShowsInTheBar) {
    bar->SetValue(45);
    const QImage plain = Grab(bar.get());
    bar->SetShowText(true);
    EXPECT_NE(Grab(bar.get()), plain);
}

TEST_F(BarFixture, TheOffScreenSurfaceFollowsTheSize) {
    EXPECT_EQ(bar->hDC().deviceIndependentSize().toSize(), QSize(204, 20));
    bar->resize(120, 30);
    EXPECT_EQ(bar->hDC().deviceIndependentSize().toSize(), QSize(120, 30));
    bar->SetValue(45);
    EXPECT_EQ(Grab(bar.get()), bar->hDC().toImage().convertToFormat(QImage::Format_RGB32));
}

TEST_F(BarFixture, DrawLineAndDrawGradientPaintOnTheSurface) {
    bar->DrawLine(0, 10, 203, 10, QColor(0, 0, 255));
    const QImage img = Grab(bar.get());
    EXPECT_TRUE(Near(img.pixelColor(100, 10), QColor(0, 0, 255), 0));
    bar->DrawGradient(QColor(0, 0, 0), QColor(255, 255, 255), QRect(0, 0, 204, 20));
    const QImage g = Grab(bar.get());
    EXPECT_GT(g.pixelColor(2, 5).lightness(), 240);
    EXPECT_LT(g.pixelColor(201, 5).lightness(), 15);
}
