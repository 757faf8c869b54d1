// ucToolbar: ids, sizes, per-button properties, tooltips, hot-item events, clicks, drop-down
// and keyboard.
#include "controls/uctoolbar.h"
#include "test_helpers.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <gtest/gtest.h>
#include <memory>

using namespace quovara;
using namespace quovara::test;

namespace {

QIcon solidIcon(const QColor& c) {
    QPixmap pm(32, 32);
    pm.fill(c);
    return QIcon(pm);
}

// A host window with a toolbar at (10, 20) holding: 1 "Back", 2 separator, 3 "Add",
// 4 "Extract" (disabled), 5 "View" (drop-down), 6 "Check" (check style).
struct ToolbarFixture : ::testing::Test {
    QStringList events; // declared first: outlives the widgets that report into it
    std::unique_ptr<QWidget> host = std::make_unique<QWidget>();
    ucToolbar* tb = nullptr;

    void SetUp() override {
        host->resize(600, 120);
        tb = new ucToolbar(host.get());
        tb->setObjectName(QStringLiteral("ucToolbar1"));
        tb->move(10, 20);
        tb->Initialize(32, true, false, true);
        tb->AddIcon(solidIcon(Qt::red));
        tb->AddIcon(solidIcon(Qt::green));
        tb->AddButton(QStringLiteral("Back"), 0, QStringLiteral("Go back"));
        tb->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
        tb->AddButton(QStringLiteral("Add"), 1, QStringLiteral("Add files"));
        tb->AddButton(QStringLiteral("Extract"), 1, QStringLiteral("Extract files"));
        tb->AddButton(QStringLiteral("View"), 0, QString(), ucToolbar::tbrDropDown);
        tb->AddButton(QStringLiteral("Check"), 0, QStringLiteral("Toggle"), ucToolbar::tbrCheck);
        tb->SetButtonEnabled(4, false);
        tb->resize(560, tb->sizeHint().height());
        QObject::connect(tb, &ucToolbar::ButtonClick,
                         [this](int id) { events << QStringLiteral("ButtonClick %1").arg(id); });
        QObject::connect(tb, &ucToolbar::ButtonEnter,
                         [this](int id) { events << QStringLiteral("ButtonEnter %1").arg(id); });
        QObject::connect(tb, &ucToolbar::ButtonLeave,
                         [this](int id) { events << QStringLiteral("ButtonLeave %1").arg(id); });
        QObject::connect(tb, &ucToolbar::ButtonDropDown, [this](int id, int x, int y) {
            events << QStringLiteral("ButtonDropDown %1 %2 %3").arg(id).arg(x).arg(y);
        });
        QObject::connect(tb, &ucToolbar::ToolbarEnter,
                         [this] { events << QStringLiteral("ToolbarEnter"); });
        QObject::connect(tb, &ucToolbar::ToolbarLeave,
                         [this] { events << QStringLiteral("ToolbarLeave"); });
        ShowAndWait(host.get());
        MoveMouseAway();
        events.clear();
    }
    void TearDown() override { QObject::disconnect(tb, nullptr, nullptr, nullptr); }
    QPoint centreOf(int id) const { return tb->ButtonRect(id).center(); }
    QPoint emptyPoint() const { return QPoint(tb->width() - 5, tb->height() / 2); }
};

} // namespace

TEST(ToolbarBeforeInitialize, EverythingIsANoOp) {
    ucToolbar tb;
    tb.AddButton(QStringLiteral("Back"), 0, QStringLiteral("tip"));
    EXPECT_EQ(tb.ButtonCount(), 0);
    EXPECT_EQ(tb.ToolbarHeight(), 0);
    EXPECT_EQ(tb.AddIcon(solidIcon(Qt::red)), -1);
    EXPECT_EQ(tb.AddBitmap(QPixmap(16, 16)), -1);
    EXPECT_EQ(tb.ButtonCaption(1), QString());
    EXPECT_EQ(tb.ButtonTipText(1), QString());
    EXPECT_FALSE(tb.ButtonEnabled(1));
    EXPECT_FALSE(tb.ButtonVisible(1));
    EXPECT_EQ(tb.ButtonImage(1), 0);
    tb.SetButtonCaption(1, QStringLiteral("x"));
    tb.SetButtonTipText(1, QStringLiteral("x"));
    EXPECT_EQ(tb.ButtonCaption(1), QString());
    EXPECT_FALSE(tb.IsInitialized());
    EXPECT_TRUE(tb.Initialize(16, true, false, false));
    EXPECT_EQ(tb.ButtonCount(), 0);
}

TEST(Toolbar, InitializeTakesTheHostFont) {
    QWidget host;
    QFont f(QStringLiteral("DejaVu Sans"), 13);
    f.setBold(true);
    host.setFont(f);
    auto* tb = new ucToolbar(&host);
    tb->Initialize(16, true, false, false);
    EXPECT_EQ(tb->Font().pointSize(), 13);
    EXPECT_TRUE(tb->Font().bold());
    QFont other(QStringLiteral("DejaVu Serif"), 7);
    tb->SetFont(other);
    EXPECT_EQ(tb->Font().pointSize(), 7);
    EXPECT_EQ(tb->Font().family(), QStringLiteral("DejaVu Serif"));
}

TEST_F(ToolbarFixture, IdsFollowTheOrderOfAddingSeparatorsIncluded) {
    EXPECT_EQ(tb->ButtonCount(), 6);
    EXPECT_EQ(tb->ButtonCaption(1), QStringLiteral("Back"));
    EXPECT_EQ(tb->ButtonStyleOf(2), int(ucToolbar::tbrSeparator));
    EXPECT_EQ(tb->ButtonCaption(3), QStringLiteral("Add"));
    EXPECT_EQ(tb->ButtonCaption(5), QStringLiteral("View"));
    // Position = id - 1: buttons lie left to right in id order.
    for (int id = 2; id <= 6; ++id)
        EXPECT_GT(tb->ButtonRect(id).left(), tb->ButtonRect(id - 1).left());
}

TEST_F(ToolbarFixture, ImagesAreIndexedFromZeroAndMaskColourIsTransparent) {
    EXPECT_EQ(tb->ImageCount(), 2);
    QPixmap bmp(16, 16);
    bmp.fill(Qt::magenta);
    {
        QPainter p(&bmp);
        p.fillRect(4, 4, 8, 8, Qt::blue);
    }
    EXPECT_EQ(tb->AddBitmap(bmp, QColor(Qt::magenta)), 2);
    EXPECT_EQ(tb->AddBitmap(bmp), 3);
    EXPECT_EQ(tb->AddBitmap(QPixmap()), -1);
    EXPECT_EQ(tb->AddIcon(QIcon()), -1);
    EXPECT_EQ(tb->ButtonImage(3), 1);
    tb->SetButtonImage(3, 2);
    EXPECT_EQ(tb->ButtonImage(3), 2);
    // The masked bitmap paints nothing where the mask colour was.
    QImage masked(16, 16, QImage::Format_ARGB32);
    masked.fill(Qt::transparent);
    {
        QPainter p(&masked);
        QPixmap pm = bmp;
        pm.setMask(pm.createMaskFromColor(Qt::magenta, Qt::MaskInColor));
        p.drawPixmap(0, 0, pm);
    }
    EXPECT_EQ(qAlpha(masked.pixel(0, 0)), 0);
    EXPECT_EQ(QColor(masked.pixel(8, 8)), QColor(Qt::blue));
}

TEST_F(ToolbarFixture, ToolbarHeightMeasuresPositionOnePlusTheDivider) {
    const QRect pos1 = tb->ButtonRect(2); // the separator after "Back"
    EXPECT_EQ(tb->ToolbarHeight(), pos1.top() + pos1.height());
    // The divider allowance: the widget-side rectangle starts 2 below the client top.
    EXPECT_EQ(pos1.top(), 2);

    QWidget host2;
    auto* plain = new ucToolbar(&host2);
    plain->Initialize(32, true, false, false);
    plain->AddIcon(solidIcon(Qt::red));
    plain->AddButton(QStringLiteral("Back"), 0, QString());
    plain->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    EXPECT_EQ(tb->ToolbarHeight(), plain->ToolbarHeight() + 2);

    // Position 1, not 0: hiding it leaves only the divider allowance, although "Back" shows.
    tb->SetButtonVisible(2, false);
    EXPECT_TRUE(tb->ButtonVisible(1));
    EXPECT_EQ(tb->ToolbarHeight(), 2);
    plain->SetButtonVisible(2, false);
    EXPECT_EQ(plain->ToolbarHeight(), 0);

    // With one button there is no position 1.
    QWidget host3;
    auto* single = new ucToolbar(&host3);
    single->Initialize(16, true, false, true);
    single->AddButton(QStringLiteral("Only"), -1, QString());
    EXPECT_EQ(single->ToolbarHeight(), 2);
}

TEST_F(ToolbarFixture, TipTextsAreCutToEightyCharacters) {
    const QString longTip = QString(100, QLatin1Char('t'));
    tb->AddButton(QStringLiteral("Long"), 0, longTip);
    EXPECT_EQ(tb->ButtonTipText(7), longTip.left(80));
    tb->SetButtonTipText(3, QString(120, QLatin1Char('u')));
    EXPECT_EQ(tb->ButtonTipText(3), QString(80, QLatin1Char('u')));
    tb->SetButtonTipText(3, QStringLiteral("short"));
    EXPECT_EQ(tb->ButtonTipText(3), QStringLiteral("short"));
    // Outside the tip-text array: absorbed, the getter answers empty.
    LogCapture log("quovara.controls.toolbar");
    tb->SetButtonTipText(99, QStringLiteral("lost"));
    EXPECT_EQ(tb->ButtonTipText(99), QString());
    EXPECT_EQ(tb->ButtonTipText(-1), QString());
    EXPECT_FALSE(log.lines().isEmpty());
}

TEST_F(ToolbarFixture, EmptyTipTextShowsNoTooltip) {
    QToolTip::hideText();
    QTest::qWait(400);
    ASSERT_FALSE(QToolTip::isVisible());
    const QPoint view = centreOf(5); // "View" has an empty tip text
    QHelpEvent none(QEvent::ToolTip, view, tb->mapToGlobal(view));
    QApplication::sendEvent(tb, &none);
    EXPECT_FALSE(QToolTip::isVisible());

    const QPoint add = centreOf(3);
    QHelpEvent some(QEvent::ToolTip, add, tb->mapToGlobal(add));
    QApplication::sendEvent(tb, &some);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Add files"));
    QToolTip::hideText();
}

TEST_F(ToolbarFixture, CaptionsAreReadThroughALimitedBufferCutAtNul) {
    tb->SetButtonCaption(3, QStringLiteral("Ad") + QChar(u'\0') + QStringLiteral("d"));
    EXPECT_EQ(tb->ButtonCaption(3), QStringLiteral("Ad"));
    tb->SetButtonCaption(3, QString(300, QLatin1Char('c')));
    EXPECT_EQ(tb->ButtonCaption(3).size(), 260);
    const int before = tb->ButtonRect(3).width();
    tb->SetButtonCaption(3, QStringLiteral("A"));
    EXPECT_EQ(tb->ButtonCaption(3), QStringLiteral("A"));
    EXPECT_LT(tb->ButtonRect(3).width(), before);
}

TEST_F(ToolbarFixture, StateBitsReadAndWrite) {
    EXPECT_TRUE(tb->ButtonEnabled(3));
    EXPECT_FALSE(tb->ButtonEnabled(4));
    EXPECT_FALSE(tb->ButtonChecked(6));
    tb->SetButtonChecked(6, true);
    EXPECT_TRUE(tb->ButtonChecked(6));
    tb->SetButtonPressed(3, true);
    EXPECT_TRUE(tb->ButtonPressed(3));
    tb->SetButtonPressed(3, false);
    EXPECT_FALSE(tb->ButtonPressed(3));
    const int viewLeft = tb->ButtonRect(5).left();
    tb->SetButtonVisible(3, false);
    EXPECT_FALSE(tb->ButtonVisible(3));
    EXPECT_TRUE(tb->ButtonRect(3).isEmpty());
    EXPECT_LT(tb->ButtonRect(5).left(), viewLeft);
    tb->SetButtonVisible(3, true);
    EXPECT_EQ(tb->ButtonRect(5).left(), viewLeft);
}

TEST_F(ToolbarFixture, MovingBetweenEnabledButtonsRaisesLeaveThenEnterOnly) {
    MoveMouse(tb, emptyPoint());
    EXPECT_TRUE(events.isEmpty());
    MoveMouse(tb, centreOf(1));
    EXPECT_EQ(events, QStringList({"ToolbarEnter", "ButtonEnter 1"}));
    events.clear();
    MoveMouse(tb, centreOf(3));
    EXPECT_EQ(events, QStringList({"ButtonLeave 1", "ButtonEnter 3"}));
    events.clear();
    MoveMouse(tb, emptyPoint());
    EXPECT_EQ(events, QStringList({"ButtonLeave 3", "ToolbarLeave"}));
}

TEST_F(ToolbarFixture, MovingOntoADisabledButtonFromOutsideRaisesNoEnterEvents) {
    MoveMouse(tb, emptyPoint());
    events.clear();
    MoveMouse(tb, centreOf(4));
    EXPECT_FALSE(events.contains(QStringLiteral("ToolbarEnter")));
    EXPECT_FALSE(events.contains(QStringLiteral("ButtonEnter 4")));
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(ToolbarFixture, LeavingTheControlLeavesTheHotButton) {
    MoveMouse(tb, centreOf(3));
    events.clear();
    MoveMouseAway();
    EXPECT_EQ(events, QStringList({"ButtonLeave 3", "ToolbarLeave"}));
    EXPECT_EQ(tb->HotButton(), 0);
}

TEST_F(ToolbarFixture, LeftClickRaisesButtonClickWithTheId) {
    QTest::mouseClick(tb, Qt::LeftButton, {}, centreOf(3));
    EXPECT_TRUE(events.contains(QStringLiteral("ButtonClick 3")));
    events.clear();
    QTest::mouseClick(tb, Qt::RightButton, {}, centreOf(3));
    QTest::mouseClick(tb, Qt::LeftButton, {}, centreOf(4)); // disabled
    QTest::mouseClick(tb, Qt::LeftButton, {}, centreOf(2)); // separator
    EXPECT_FALSE(events.filter(QStringLiteral("ButtonClick")).size());
    // A press that is released elsewhere is no click.
    QTest::mousePress(tb, Qt::LeftButton, {}, centreOf(3));
    EXPECT_TRUE(tb->ButtonPressed(3));
    QTest::mouseRelease(tb, Qt::LeftButton, {}, emptyPoint());
    EXPECT_FALSE(tb->ButtonPressed(3));
    EXPECT_FALSE(events.filter(QStringLiteral("ButtonClick")).size());
}

TEST_F(ToolbarFixture, CheckButtonsToggleOnClick) {
    QTest::mouseClick(tb, Qt::LeftButton, {}, centreOf(6));
    EXPECT_TRUE(tb->ButtonChecked(6));
    QTest::mouseClick(tb, Qt::LeftButton, {}, centreOf(6));
    EXPECT_FALSE(tb->ButtonChecked(6));
    EXPECT_EQ(events.filter(QStringLiteral("ButtonClick 6")).size(), 2);
}

TEST_F(ToolbarFixture, DropDownArrowReportsTheBottomLeftCornerInHostCoordinates) {
    const QRect r = tb->ButtonRect(5);
    const QPoint arrow(r.right() - 3, r.center().y());
    QTest::mouseClick(tb, Qt::LeftButton, {}, arrow);
    const QString expected =
        QStringLiteral("ButtonDropDown 5 %1 %2").arg(10 + r.left()).arg(20 + r.top() + r.height());
    EXPECT_TRUE(events.contains(expected)) << events.join(u'|').toStdString();
    EXPECT_FALSE(events.contains(QStringLiteral("ButtonClick 5")));
    events.clear();
    QTest::mouseClick(tb, Qt::LeftButton, {}, QPoint(r.left() + 5, r.center().y()));
    EXPECT_TRUE(events.contains(QStringLiteral("ButtonClick 5")));
}

TEST_F(ToolbarFixture, KeyboardFocusArrowsAndActivation) {
    auto* edit = new QLineEdit(host.get());
    edit->move(10, 90);
    edit->show();
    QApplication::setActiveWindow(host.get());
    edit->setFocus();
    events.clear();
    QTest::keyClick(edit, Qt::Key_Tab);
    ASSERT_TRUE(tb->hasFocus());
    EXPECT_EQ(tb->HotButton(), 0); // focus alone makes no button hot
    EXPECT_TRUE(events.isEmpty());
    QTest::keyClick(tb, Qt::Key_Right);
    EXPECT_EQ(tb->HotButton(), 1);
    EXPECT_EQ(events, QStringList({"ToolbarEnter", "ButtonEnter 1"}));
    events.clear();
    QTest::keyClick(tb, Qt::Key_Right); // skips the separator
    EXPECT_EQ(tb->HotButton(), 3);
    EXPECT_EQ(events, QStringList({"ButtonLeave 1", "ButtonEnter 3"}));
    QTest::keyClick(tb, Qt::Key_Right); // skips the disabled "Extract"
    EXPECT_EQ(tb->HotButton(), 5);
    events.clear();
    QTest::keyClick(tb, Qt::Key_Return);
    EXPECT_EQ(events, QStringList({"ButtonClick 5"}));
    events.clear();
    QTest::keyClick(tb, Qt::Key_Down);
    ASSERT_EQ(events.size(), 1);
    EXPECT_TRUE(events.first().startsWith(QStringLiteral("ButtonDropDown 5 ")));
    QTest::keyClick(tb, Qt::Key_Right);
    events.clear();
    QTest::keyClick(tb, Qt::Key_Space);
    EXPECT_EQ(events, QStringList({"ButtonClick 6"}));
    EXPECT_TRUE(tb->ButtonChecked(6));
    QTest::keyClick(tb, Qt::Key_Home);
    EXPECT_EQ(tb->HotButton(), 1);
}

TEST_F(ToolbarFixture, HotButtonIsDrawnDifferently) {
    const QImage before = Grab(tb);
    MoveMouse(tb, centreOf(3));
    const QImage hot = Grab(tb);
    EXPECT_NE(before, hot);
    const QRect r = tb->ButtonRect(3);
    // Outside the hot button nothing changed.
    EXPECT_EQ(before.copy(0, 0, r.left(), tb->height()), hot.copy(0, 0, r.left(), tb->height()));
}

TEST_F(ToolbarFixture, ButtonsThatDoNotFitStayReachableThroughTheOverflowArrow) {
    auto* overflow = tb->findChild<QToolButton*>(QStringLiteral("Overflow"));
    ASSERT_NE(overflow, nullptr);
    EXPECT_FALSE(overflow->isVisible());
    EXPECT_TRUE(tb->OverflowButtons().isEmpty());
    // Narrower than its buttons: they take only what their captions need, and the last ones
    // are offered by the arrow.
    tb->resize(tb->sizeHint().width() - 1, tb->height());
    tb->resize(tb->ButtonRect(3).right() + 10, tb->height());
    EXPECT_TRUE(overflow->isVisible());
    EXPECT_EQ(tb->OverflowButtons(), QList<int>({3, 4, 5, 6}));
    EXPECT_EQ(overflow->accessibleName(), "More buttons");
    // Clicking the arrow opens the menu; choosing "Add" clicks that button.
    QStringList offered, tips;
    bool tipsShown = false;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        tipsShown = menu->toolTipsVisible();
        for (QAction* a : menu->actions()) {
            offered << a->text() + (a->isEnabled() ? "" : " (disabled)");
            tips << a->toolTip();
        }
        menu->setActiveAction(menu->actions().first());
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::mouseClick(overflow, Qt::LeftButton);
    EXPECT_EQ(offered, QStringList({"Add", "Extract (disabled)", "View", "Check"}));
    // The buttons' tips come along (they name keys), shown when the pointer rests on an entry.
    EXPECT_TRUE(tipsShown);
    EXPECT_EQ(tips[0], tb->ButtonTipText(3));
    EXPECT_TRUE(events.contains("ButtonClick 3")) << events.join('|').toStdString();
    // Wide enough again: no arrow.
    tb->resize(tb->sizeHint().width() + 10, tb->height());
    EXPECT_FALSE(overflow->isVisible());
}

TEST(ToolbarLongCaptions, NarrowerThanItsButtonsEachTakesWhatItsCaptionNeeds) {
    QWidget host;
    host.resize(900, 80);
    auto* tb = new ucToolbar(&host);
    tb->Initialize(32, true, true, true);
    tb->AddIcon(solidIcon(Qt::red));
    // One long caption, as translations make them, among short ones.
    tb->AddButton(QStringLiteral("Back"), 0, QString());
    tb->AddButton(QStringLiteral("Add"), 0, QString());
    tb->AddButton(QStringLiteral("Durchsuchen und hinzufügen"), 0, QString());
    tb->AddButton(QStringLiteral("View"), 0, QString());
    tb->AddButton(QStringLiteral("Test"), 0, QString());
    const int preferred = tb->sizeHint().width();
    tb->resize(preferred, tb->sizeHint().height());
    ShowAndWait(&host);
    // Wide enough: every button as wide as the widest, as platform toolbars draw them.
    EXPECT_EQ(tb->ButtonRect(1).width(), tb->ButtonRect(3).width());
    EXPECT_TRUE(tb->OverflowButtons().isEmpty());

    // Narrower: the short buttons shrink to their captions and all five still fit.
    tb->resize(preferred * 2 / 3, tb->height());
    QApplication::processEvents();
    EXPECT_LT(tb->ButtonRect(1).width(), tb->ButtonRect(3).width());
    EXPECT_TRUE(tb->OverflowButtons().isEmpty());
    EXPECT_LE(tb->ButtonRect(5).right(), tb->width() - 1);
    // The hint stays what the toolbar would like: every button at the common width.
    EXPECT_EQ(tb->sizeHint().width(), preferred);

    // Narrower still: what does not fit is behind the arrow and is neither drawn nor
    // clickable; the screen reader hears it as off the screen.
    tb->resize(tb->ButtonRect(3).right() + 10, tb->height());
    QApplication::processEvents();
    EXPECT_EQ(tb->OverflowButtons(), QList<int>({3, 4, 5}));
    const QImage shown = tb->grab().toImage();
    // Nothing is painted between the last whole button and the arrow.
    const QRect gap(tb->ButtonRect(2).right() + 1, 2,
                    tb->width() - 18 - tb->ButtonRect(2).right() - 1, tb->height() - 4);
    const QColor background = shown.pixelColor(gap.left() + 1, gap.top() + 1);
    int painted = 0;
    for (int y = gap.top(); y <= gap.bottom(); ++y)
        for (int x = gap.left(); x <= gap.right(); ++x)
            painted += shown.pixelColor(x, y) != background;
    EXPECT_EQ(painted, 0);
    QStringList clicks;
    QObject::connect(tb, &ucToolbar::ButtonClick, [&](int id) { clicks << QString::number(id); });
    QTest::mouseClick(tb, Qt::LeftButton, {}, tb->ButtonRect(3).topLeft() + QPoint(4, 10));
    EXPECT_TRUE(clicks.isEmpty());
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(tb);
    ASSERT_NE(access, nullptr);
    bool thirdOffscreen = false, firstOffscreen = true;
    for (int i = 0; i < access->childCount(); ++i) {
        QAccessibleInterface* c = access->child(i);
        if (c->text(QAccessible::Name) == tb->ButtonCaption(3))
            thirdOffscreen = c->state().offscreen;
        if (c->text(QAccessible::Name) == "Back")
            firstOffscreen = c->state().offscreen;
    }
    EXPECT_TRUE(thirdOffscreen);
    EXPECT_FALSE(firstOffscreen);
}
