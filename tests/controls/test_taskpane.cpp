// TaskPaneBar: structure, group references, items, hosted children, hover and leave,
// clicks, scrolling, keyboard and the diagnostic texts.
#include "controls/taskpanebar.h"
#include "test_helpers.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <memory>

using namespace quovara;
using namespace quovara::test;

namespace {

const char* kCategory = "quovara.controls.taskpane";

// A pane with: special group (2 items), "Dettagli" / "Operazioni" (3 items) / "Stato",
// and the details group.
struct PaneFixture : ::testing::Test {
    QStringList events; // declared first: outlives the pane that reports into it
    std::unique_ptr<TaskPaneBar> pane = std::make_unique<TaskPaneBar>();

    void SetUp() override {
        pane->setObjectName(QStringLiteral("Barra"));
        pane->resize(220, 700);
        pane->AddSpecialGroup(QStringLiteral("Archive Tasks"));
        pane->AddItem(-1, QStringLiteral("open"), QStringLiteral("Open"), 1);
        pane->AddItem(QStringLiteral("Special Group"), QStringLiteral("find"),
                      QStringLiteral("Find"), 1);
        pane->AddGroup(QStringLiteral("Dettagli"), QStringLiteral("Details"));
        pane->AddGroup(QStringLiteral("Operazioni"), QStringLiteral("File and Folder Operations"));
        pane->AddItem(QStringLiteral("Operazioni"), QStringLiteral("ext"),
                      QStringLiteral("Extract"), 1);
        pane->AddItem(QStringLiteral("Operazioni"), QStringLiteral("run"), QStringLiteral("Run"),
                      1);
        pane->AddItem(2, QStringLiteral("mail"), QStringLiteral("Mail"), 1);
        pane->AddGroup(QStringLiteral("Stato"), QStringLiteral("State"));
        pane->AddDetailsGroup(QStringLiteral("Details"), QStringLiteral("archive.uha"),
                              QStringLiteral("Files: 3"));
        pane->SetImageList({QIcon()});
        QObject::connect(pane.get(), &TaskPaneBar::MouseOver,
                         [this] { events << QStringLiteral("MouseOver"); });
        QObject::connect(pane.get(), &TaskPaneBar::MouseOut,
                         [this] { events << QStringLiteral("MouseOut"); });
        QObject::connect(pane.get(), &TaskPaneBar::GroupHover,
                         [this](const QString& k) { events << QStringLiteral("GroupHover ") + k; });
        QObject::connect(pane.get(), &TaskPaneBar::GroupOut,
                         [this](const QString& k) { events << QStringLiteral("GroupOut ") + k; });
        QObject::connect(pane.get(), &TaskPaneBar::ItemHover,
                         [this](const QString& g, const QString& k) {
                             events << QStringLiteral("ItemHover ") + g + QStringLiteral("/") + k;
                         });
        QObject::connect(pane.get(), &TaskPaneBar::ItemOut,
                         [this](const QString& g, const QString& k) {
                             events << QStringLiteral("ItemOut ") + g + QStringLiteral("/") + k;
                         });
        QObject::connect(pane.get(), &TaskPaneBar::ItemClick,
                         [this](const QString& g, const QString& k) {
                             events << QStringLiteral("ItemClick ") + g + QStringLiteral("/") + k;
                         });
        QObject::connect(pane.get(), &TaskPaneBar::GroupClick, [this](int index, bool& expanded) {
            events << QStringLiteral("GroupClick %1 %2").arg(index).arg(expanded);
        });
        ShowAndWait(pane.get());
        MoveMouseAway();
        events.clear();
    }
    void TearDown() override {
        QObject::disconnect(pane.get(), nullptr, nullptr, nullptr);
        MoveMouseAway();
    }
    QPoint headerPoint(const QVariant& g) const { return pane->GroupHeaderRect(g).center(); }
    QPoint itemPoint(const QVariant& g, int i) const {
        const QRect r = pane->ItemRect(g, i);
        return QPoint(r.left() + 4, r.center().y());
    }
    QPoint emptyPoint() const { return QPoint(3, pane->height() - 3); }
    // Waits for the leave poll to notice the cursor outside.
    void leaveAndWait() {
        QSignalSpy out(pane.get(), &TaskPaneBar::MouseOut);
        MoveMouseAway();
        if (out.isEmpty())
            out.wait(500);
    }
};

} // namespace

TEST(TaskPaneBasics, ControlVersionIsOnePointSeventy) {
    TaskPaneBar pane;
    EXPECT_EQ(pane.GetControlVersion(), QStringLiteral("1.70"));
}

TEST(TaskPaneBasics, NewPaneHasNoGroupsAndHiddenSingletons) {
    TaskPaneBar pane;
    EXPECT_EQ(pane.GroupCount(), 0);
    EXPECT_FALSE(pane.GroupVisible(TaskPaneBar::SpecialGroupIndex));
    EXPECT_FALSE(pane.GroupVisible(TaskPaneBar::DetailsGroupIndex));
    EXPECT_TRUE(pane.UpdatesEnabled());
    EXPECT_EQ(pane.GroupKey(-1), QStringLiteral("Special Group"));
    EXPECT_EQ(pane.GroupKey(-2), QStringLiteral("Details Group"));
    EXPECT_EQ(pane.font().family(), QStringLiteral("Tahoma"));
    EXPECT_DOUBLE_EQ(pane.font().pointSizeF(), 8.25);
    ASSERT_NE(pane.findChild<QScrollBar*>(QStringLiteral("m_ScrollBar")), nullptr);
}

TEST_F(PaneFixture, GroupsAreFoundByNumberOrKeyInTheFixedOrder) {
    EXPECT_EQ(pane->ResolveGroup(2), 2);
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Operazioni")), 2);
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("operazioni")), -3); // case matters
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Special Group")), -1);
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Details")), -2);
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Nowhere")), -3);
    // An ordinary group keyed like a singleton wins over it.
    pane->AddGroup(QStringLiteral("Special Group"), QStringLiteral("Impostor"));
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Special Group")), 4);
}

TEST_F(PaneFixture, TheDetailsGroupIsFoundByDetailsNotByItsOwnKey) {
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Details Group")), -3);
    LogCapture log(kCategory);
    pane->ExpandGroup(QStringLiteral("Details Group"), false);
    EXPECT_TRUE(pane->GroupExpanded(-2));
    pane->ExpandGroup(QStringLiteral("Details"), false);
    EXPECT_FALSE(pane->GroupExpanded(-2));
}

TEST_F(PaneFixture, TwoGroupsWithTheSameKeyResolveToTheLowerIndex) {
    pane->AddGroup(QStringLiteral("Operazioni"), QStringLiteral("Second"));
    EXPECT_EQ(pane->ResolveGroup(QStringLiteral("Operazioni")), 2);
    pane->AddItem(QStringLiteral("Operazioni"), QStringLiteral("x"), QStringLiteral("X"), 1);
    EXPECT_EQ(pane->ItemCount(2), 4);
    EXPECT_EQ(pane->ItemCount(4), 0);
    pane->ExpandGroup(QStringLiteral("Operazioni"), false);
    EXPECT_FALSE(pane->GroupExpanded(2));
    EXPECT_TRUE(pane->GroupExpanded(4));
}

TEST_F(PaneFixture, AddItemToAnUnknownGroupAddsNothingAndLogs) {
    LogCapture log(kCategory);
    const int before =
        pane->ItemCount(1) + pane->ItemCount(2) + pane->ItemCount(3) + pane->ItemCount(-1);
    pane->AddItem(QStringLiteral("Nowhere"), QStringLiteral("k"), QStringLiteral("K"), 1);
    pane->AddItem(QStringLiteral("Details Group"), QStringLiteral("k"), QStringLiteral("K"), 1);
    EXPECT_TRUE(log.contains(QStringLiteral("Can't assign items to te Especified group")));
    pane->AddItem(0, QStringLiteral("k"), QStringLiteral("K"), 1);
    EXPECT_TRUE(log.contains(QStringLiteral("The group '0' desn't exist")));
    const int after =
        pane->ItemCount(1) + pane->ItemCount(2) + pane->ItemCount(3) + pane->ItemCount(-1);
    EXPECT_EQ(after, before);
    EXPECT_EQ(pane->ItemCount(-2), 0);
}

TEST_F(PaneFixture, ItemsRecordTheirGroupKeyAndIndex) {
    EXPECT_EQ(pane->ItemCount(-1), 2);
    EXPECT_EQ(pane->ItemKey(-1, 2), QStringLiteral("find"));
    EXPECT_EQ(pane->ItemCount(QStringLiteral("Operazioni")), 3);
    EXPECT_EQ(pane->ItemCaption(2, 3), QStringLiteral("Mail"));
    EXPECT_EQ(pane->ItemKey(2, 1), QStringLiteral("ext"));
}

TEST_F(PaneFixture, ExpandGroupWithoutTheFlagTogglesWithItSets) {
    EXPECT_TRUE(pane->GroupExpanded(2));
    pane->ExpandGroup(2);
    EXPECT_FALSE(pane->GroupExpanded(2));
    pane->ExpandGroup(2);
    EXPECT_TRUE(pane->GroupExpanded(2));
    pane->ExpandGroup(2, true);
    EXPECT_TRUE(pane->GroupExpanded(2));
    pane->ExpandGroup(-1, false);
    EXPECT_FALSE(pane->GroupExpanded(-1));
    pane->ExpandGroup(-1, false);
    EXPECT_FALSE(pane->GroupExpanded(-1));
    pane->ExpandGroup(-2);
    EXPECT_FALSE(pane->GroupExpanded(-2));
    // A collapsed group's items have no place to be hit.
    pane->ExpandGroup(2, false);
    EXPECT_TRUE(pane->ItemRect(2, 1).isEmpty());
}

TEST_F(PaneFixture, ClearGroupEmptiesOrdinaryAndSpecialGroups) {
    pane->ClearGroup(QStringLiteral("Operazioni"));
    EXPECT_EQ(pane->ItemCount(2), 0);
    pane->ClearGroup(-1);
    EXPECT_EQ(pane->ItemCount(-1), 0);
    EXPECT_EQ(pane->GroupCount(), 3);
}

TEST_F(PaneFixture, ClearStructureRemovesEverythingAndGivesChildrenBack) {
    QWidget form;
    auto* pic = new QLabel(QStringLiteral("state"), &form);
    pic->setObjectName(QStringLiteral("picStato"));
    pane->SetGroupChild(QStringLiteral("Stato"), pic);
    ASSERT_NE(pane->GroupChildContainer(3), nullptr);
    pane->DisableUpdates(true);
    pane->ClearStructure();
    EXPECT_EQ(pane->GroupCount(), 0);
    EXPECT_FALSE(pane->GroupVisible(-1));
    EXPECT_FALSE(pane->GroupVisible(-2));
    EXPECT_EQ(pane->ItemCount(-1), 0);
    EXPECT_TRUE(pane->UpdatesEnabled());
    EXPECT_EQ(pic->parentWidget(), &form);
    EXPECT_TRUE(pic->isHidden());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(pane->findChild<QWidget*>(QStringLiteral("picStato_Container")), nullptr);
}

TEST_F(PaneFixture, SetGroupChildHostsTheWidgetInTheGroupsBody) {
    auto* pic = new QLabel(QStringLiteral("Quovara is ready"));
    pic->setObjectName(QStringLiteral("picStato"));
    pic->resize(150, 40);
    pane->SetGroupChild(QStringLiteral("Stato"), pic);
    QWidget* container = pane->GroupChildContainer(QStringLiteral("Stato"));
    ASSERT_NE(container, nullptr);
    EXPECT_EQ(container->objectName(), QStringLiteral("picStato_Container"));
    EXPECT_EQ(container->property("Tag").toString(), QStringLiteral("picStato"));
    EXPECT_EQ(pic->parentWidget(), container);
    EXPECT_EQ(pane->findChild<QLabel*>(QStringLiteral("picStato")), pic);
    const QRect header = pane->GroupHeaderRect(3);
    EXPECT_GE(container->geometry().top(), header.bottom());
    EXPECT_LT(container->geometry().top(), header.bottom() + 10);
    EXPECT_GE(container->height(), 40);
    EXPECT_TRUE(pic->isVisible());
    pane->ExpandGroup(3, false);
    EXPECT_FALSE(container->isVisible());
    pane->ExpandGroup(3, true);
    EXPECT_TRUE(container->isVisible());
    // The group below the hosted child starts below it.
    EXPECT_GT(pane->GroupHeaderRect(-2).top(), container->geometry().bottom());
}

TEST_F(PaneFixture, SetItemIconAndTextByIndexOrKey) {
    MessageBoxCapture boxes;
    pane->SetItemText(2, 1, QStringLiteral("Extract all"));
    EXPECT_EQ(pane->ItemCaption(2, 1), QStringLiteral("Extract all"));
    pane->SetItemText(QStringLiteral("Operazioni"), QStringLiteral("run"),
                      QStringLiteral("Run it"));
    EXPECT_EQ(pane->ItemCaption(2, 2), QStringLiteral("Run it"));
    pane->SetItemIcon(2, QStringLiteral("mail"), 4);
    EXPECT_EQ(pane->ItemIcon(2, 3), 4);
    pane->SetItemIcon(-1, 2, 3);
    EXPECT_EQ(pane->ItemIcon(-1, 2), 3);
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(PaneFixture, AnUnknownItemKeyShowsTheGlakreBox) {
    MessageBoxCapture boxes;
    pane->SetItemText(2, QStringLiteral("nope"), QStringLiteral("x"));
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].icon, ControlMessageIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("glakre"));
    EXPECT_EQ(
        boxes.shown[0].text,
        QStringLiteral(
            "An Error has ocurred!\nItem Key Especified doesn't match with the existing Items"));
    pane->SetItemIcon(-1, QStringLiteral("nope"), 2);
    EXPECT_EQ(boxes.shown.size(), 2);
    EXPECT_EQ(boxes.shown[1].text, boxes.shown[0].text);
}

TEST_F(PaneFixture, AboutNamesTheControl) {
    MessageBoxCapture boxes;
    pane->About();
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].icon, ControlMessageIcon::Information);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(QStringLiteral("TaskPaneBar Control.")));
}

class LinkCatcher : public QObject {
    Q_OBJECT
public:
    QList<QUrl> urls;
public slots:
    void open(const QUrl& url) { urls.append(url); }
};

TEST_F(PaneFixture, OpenLinkHandsTheAddressToTheDesktop) {
    LinkCatcher catcher;
    QDesktopServices::setUrlHandler(QStringLiteral("quovaratest"), &catcher, "open");
    EXPECT_TRUE(pane->OpenLink(QStringLiteral("quovaratest://host/page")));
    QDesktopServices::unsetUrlHandler(QStringLiteral("quovaratest"));
    ASSERT_EQ(catcher.urls.size(), 1);
    EXPECT_EQ(catcher.urls[0].toString(), QStringLiteral("quovaratest://host/page"));
}

TEST_F(PaneFixture, MissingImageListIconIsLoggedAndDrawnWithoutIcon) {
    LogCapture log(kCategory);
    pane->SetImageList({});
    pane->repaint();
    EXPECT_TRUE(log.contains(QStringLiteral("No Defined Imagelist or invalid Image Index")));
}

TEST_F(PaneFixture, DisabledUpdatesDrawNothingUntilEnabled) {
    pane->repaint();
    const QImage before = Grab(pane.get());
    const int paints = pane->PaintCount();
    pane->DisableUpdates(true);
    pane->AddGroup(QStringLiteral("New"), QStringLiteral("A new group"));
    pane->ExpandGroup(2, false);
    pane->repaint();
    EXPECT_EQ(pane->PaintCount(), paints);
    EXPECT_EQ(Grab(pane.get()), before);
    pane->DisableUpdates(false);
    pane->repaint();
    EXPECT_GT(pane->PaintCount(), paints);
    EXPECT_NE(Grab(pane.get()), before);
}

TEST_F(PaneFixture, HoverRaisesHeaderAndItemEventsAndLeavingClearsThem) {
    LogCapture log(kCategory);
    MoveMouse(pane.get(), headerPoint(2));
    EXPECT_EQ(pane->HotHeader(), 2);
    EXPECT_EQ(pane->GroupHeaderState(2), 2);
    EXPECT_TRUE(events.contains(QStringLiteral("GroupHover Operazioni")));
    EXPECT_TRUE(log.contains(QStringLiteral("over Group Operazioni")));
    EXPECT_EQ(pane->cursor().shape(), Qt::PointingHandCursor);
    QTRY_VERIFY_WITH_TIMEOUT(events.contains(QStringLiteral("MouseOver")), 500);

    events.clear();
    MoveMouse(pane.get(), itemPoint(2, 2));
    EXPECT_EQ(events, QStringList({"GroupOut Operazioni", "ItemHover Operazioni/run"}));
    EXPECT_EQ(pane->GroupHeaderState(2), 0);
    EXPECT_TRUE(log.contains(QStringLiteral("Exit Group Operazioni")));
    EXPECT_TRUE(log.contains(QStringLiteral("Hover Item: run")));

    events.clear();
    MoveMouse(pane.get(), emptyPoint());
    EXPECT_EQ(events, QStringList({"ItemOut Operazioni/run"}));
    EXPECT_TRUE(log.contains(QStringLiteral("Out Item: run")));
    EXPECT_NE(pane->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(PaneFixture, SpecialAndDetailsGroupsHaveTheirOwnTraces) {
    LogCapture log(kCategory);
    MoveMouse(pane.get(), headerPoint(-1));
    EXPECT_TRUE(events.contains(QStringLiteral("GroupHover Special Group")));
    MoveMouse(pane.get(), itemPoint(-1, 1));
    MoveMouse(pane.get(), headerPoint(QStringLiteral("Details")));
    EXPECT_TRUE(events.contains(QStringLiteral("ItemHover Special Group/open")));
    EXPECT_TRUE(events.contains(QStringLiteral("ItemOut Special Group/open")));
    EXPECT_TRUE(events.contains(QStringLiteral("GroupHover Details Group")));
    MoveMouse(pane.get(), emptyPoint());
    const QStringList expected{"Over Special Group Special Group",
                               "Exit Special Group Special Group",
                               "Hover Item: open",
                               "Out Special Item: open",
                               "Over Details Group Details Group",
                               "Exit Details Group Details Group"};
    for (const QString& line : expected)
        EXPECT_TRUE(log.contains(line)) << line.toStdString();
}

TEST_F(PaneFixture, AfterTheCursorLeavesNothingStaysHot) {
    MoveMouse(pane.get(), headerPoint(2));
    QTRY_VERIFY_WITH_TIMEOUT(pane->MouseInside(), 500);
    events.clear();
    leaveAndWait();
    EXPECT_TRUE(events.contains(QStringLiteral("MouseOut")));
    EXPECT_TRUE(events.contains(QStringLiteral("GroupOut Operazioni")));
    EXPECT_EQ(pane->HotHeader(), 0);
    EXPECT_EQ(pane->GroupHeaderState(2), 0);
    EXPECT_FALSE(pane->MouseInside());

    MoveMouse(pane.get(), itemPoint(-1, 2));
    QTRY_VERIFY_WITH_TIMEOUT(pane->MouseInside(), 500);
    events.clear();
    leaveAndWait();
    EXPECT_TRUE(events.contains(QStringLiteral("ItemOut Special Group/find")));
    EXPECT_EQ(pane->HotItemIndex(), 0);
    EXPECT_EQ(pane->HotItemGroup(), 0);
}

TEST_F(PaneFixture, LeftClickOnAHeaderTogglesThenRaisesGroupClick) {
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, headerPoint(2));
    EXPECT_FALSE(pane->GroupExpanded(2));
    EXPECT_TRUE(events.contains(QStringLiteral("GroupClick 2 0")));
    events.clear();
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, headerPoint(-1));
    EXPECT_TRUE(events.contains(QStringLiteral("GroupClick -1 0")));
    events.clear();
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, headerPoint(QStringLiteral("Details")));
    EXPECT_TRUE(events.contains(QStringLiteral("GroupClick -2 0")));
}

TEST_F(PaneFixture, TheHostCanVetoTheToggleThroughBExpanded) {
    auto veto =
        QObject::connect(pane.get(), &TaskPaneBar::GroupClick, [](int index, bool& expanded) {
            if (index == 2)
                expanded = true;
        });
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, headerPoint(2));
    EXPECT_TRUE(pane->GroupExpanded(2));
    // The pane is laid out for the state the host chose: the items can be clicked.
    events.clear();
    ASSERT_FALSE(pane->ItemRect(2, 1).isEmpty());
    QTest::qWait(QApplication::doubleClickInterval() + 50); // a new click, not a double-click
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, itemPoint(2, 1));
    EXPECT_TRUE(events.contains(QStringLiteral("ItemClick Operazioni/ext")))
        << events.join('|').toStdString();
    QObject::disconnect(veto);
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, headerPoint(2));
    EXPECT_FALSE(pane->GroupExpanded(2));
}

TEST_F(PaneFixture, RightAndMiddleClicksDoNothing) {
    QTest::mouseClick(pane.get(), Qt::RightButton, {}, headerPoint(2));
    QTest::mouseClick(pane.get(), Qt::MiddleButton, {}, headerPoint(2));
    QTest::mouseClick(pane.get(), Qt::RightButton, {}, itemPoint(2, 1));
    QTest::mouseClick(pane.get(), Qt::MiddleButton, {}, itemPoint(-1, 1));
    EXPECT_TRUE(pane->GroupExpanded(2));
    EXPECT_TRUE(events.filter(QStringLiteral("Click")).isEmpty());
}

TEST_F(PaneFixture, LeftClickOnAnItemRaisesItemClick) {
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, itemPoint(2, 3));
    EXPECT_TRUE(events.contains(QStringLiteral("ItemClick Operazioni/mail")));
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, itemPoint(-1, 2));
    EXPECT_TRUE(events.contains(QStringLiteral("ItemClick Special Group/find")));
    // Where a collapsed group's item was, nothing is clicked.
    const QPoint where = itemPoint(2, 1);
    pane->ExpandGroup(2, false);
    events.clear();
    QTest::mouseClick(pane.get(), Qt::LeftButton, {}, where);
    EXPECT_TRUE(events.filter(QStringLiteral("ItemClick")).isEmpty());
}

TEST_F(PaneFixture, HitTestingIncludesLeftAndTopEdgesOnly) {
    const QRect r = pane->GroupHeaderRect(2);
    MoveMouse(pane.get(), r.topLeft());
    EXPECT_EQ(pane->HotHeader(), 2);
    MoveMouse(pane.get(), QPoint(r.left() + r.width(), r.top() + 2));
    EXPECT_EQ(pane->HotHeader(), 0);
    MoveMouse(pane.get(), QPoint(r.left() + 2, r.top() + r.height()));
    EXPECT_NE(pane->HotHeader(), 2);
}

struct ScrollFixture : ::testing::Test {
    std::unique_ptr<TaskPaneBar> pane = std::make_unique<TaskPaneBar>();
    QScrollBar* bar = nullptr;
    void SetUp() override {
        pane->resize(220, 200);
        for (int g = 1; g <= 6; ++g) {
            const QString key = QStringLiteral("g%1").arg(g);
            pane->AddGroup(key, QStringLiteral("Group %1").arg(g));
            for (int i = 1; i <= 3; ++i)
                pane->AddItem(key, QStringLiteral("i%1").arg(i), QStringLiteral("Item %1").arg(i),
                              1);
        }
        ShowAndWait(pane.get());
        bar = pane->ScrollBar();
    }
    void wheel(int delta, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        const QPointF pos(50, 100);
        QWheelEvent e(pos, pane->mapToGlobal(pos), QPoint(), QPoint(0, delta), Qt::NoButton, mods,
                      Qt::NoScrollPhase, false);
        QApplication::sendEvent(pane.get(), &e);
    }
};

TEST_F(ScrollFixture, TallContentShowsTheScrollBar) {
    ASSERT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->geometry().right(), pane->width() - 1);
    EXPECT_GT(bar->maximum(), 0);
    pane->resize(220, 3000);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(ScrollFixture, OneWheelNotchMovesThirtyTwo) {
    const int top = pane->GroupHeaderRect(1).top();
    wheel(-120);
    EXPECT_EQ(bar->value(), 32);
    EXPECT_EQ(pane->GroupHeaderRect(1).top(), top - 32);
    wheel(-120);
    EXPECT_EQ(bar->value(), 64);
    wheel(120);
    EXPECT_EQ(bar->value(), 32);
    wheel(120);
    wheel(120);
    EXPECT_EQ(bar->value(), 0); // clamped
    bar->setValue(bar->maximum() - 5);
    wheel(-120);
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(ScrollFixture, OtherWheelMessagesAreIgnored) {
    wheel(-240);
    EXPECT_EQ(bar->value(), 0);
    wheel(-60);
    EXPECT_EQ(bar->value(), 0);
    wheel(-120, Qt::ControlModifier);
    EXPECT_EQ(bar->value(), 0);
    wheel(-120, Qt::ShiftModifier);
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(ScrollFixture, NoWheelScrollingWithoutTheScrollBar) {
    pane->resize(220, 3000);
    ASSERT_TRUE(bar->isHidden());
    const int top = pane->GroupHeaderRect(1).top();
    wheel(-120);
    EXPECT_EQ(bar->value(), 0);
    EXPECT_EQ(pane->GroupHeaderRect(1).top(), top);
}

TEST_F(ScrollFixture, MovingTheScrollBarRepaintsShifted) {
    const QImage before = Grab(pane.get());
    bar->setValue(40);
    EXPECT_NE(Grab(pane.get()), before);
}

// A pane whose scroll bar refuses its properties.
class RefusingScrollBarPane : public TaskPaneBar {
protected:
    bool SetScrollBarProperties(const QRect&, int, int) override { return false; }
};

TEST(TaskPaneScrollBar, AFailureToSetTheBarIsReportedAndThePaneGoesOn) {
    LogCapture log(kCategory);
    RefusingScrollBarPane pane;
    pane.resize(220, 120);
    for (int g = 1; g <= 4; ++g)
        pane.AddGroup(QStringLiteral("g%1").arg(g), QStringLiteral("Group %1").arg(g));
    ShowAndWait(&pane);
    EXPECT_TRUE(pane.ScrollBar()->isVisible());
    EXPECT_TRUE(log.contains(QStringLiteral("Couldn't Set ScrollBar Properties")));
    EXPECT_EQ(pane.GroupHeaderRect(1).top(), 12);
}

TEST_F(ScrollFixture, SettingTheBarNormallyReportsNothing) {
    LogCapture log(kCategory);
    pane->resize(220, 150);
    pane->repaint();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_FALSE(log.contains(QStringLiteral("Couldn't Set ScrollBar Properties")));
    EXPECT_EQ(bar->pageStep(), 150);
    EXPECT_EQ(bar->geometry().height(), 150);
}

TEST_F(PaneFixture, KeyboardMovesTheHotElementAndActivatesIt) {
    QWidget window;
    auto* first = new QWidget(&window);
    first->setFocusPolicy(Qt::StrongFocus);
    auto* p = new TaskPaneBar(&window);
    p->resize(220, 500);
    p->move(0, 30);
    p->AddGroup(QStringLiteral("A"), QStringLiteral("Alpha"));
    p->AddItem(QStringLiteral("A"), QStringLiteral("a1"), QStringLiteral("One"), 1);
    p->AddGroup(QStringLiteral("B"), QStringLiteral("Beta"));
    QStringList got;
    QObject::connect(p, &TaskPaneBar::GroupHover,
                     [&](const QString& k) { got << QStringLiteral("GroupHover ") + k; });
    QObject::connect(p, &TaskPaneBar::ItemHover, [&](const QString& g, const QString& k) {
        got << QStringLiteral("ItemHover ") + g + QStringLiteral("/") + k;
    });
    QObject::connect(p, &TaskPaneBar::ItemClick, [&](const QString& g, const QString& k) {
        got << QStringLiteral("ItemClick ") + g + QStringLiteral("/") + k;
    });
    QObject::connect(p, &TaskPaneBar::GroupClick, [&](int i, bool& e) {
        got << QStringLiteral("GroupClick %1 %2").arg(i).arg(e);
    });
    window.resize(240, 540);
    ShowAndWait(&window);
    QApplication::setActiveWindow(&window);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_TRUE(p->hasFocus());
    EXPECT_EQ(p->HotHeader(), 0); // focus alone makes nothing hot
    QTest::keyClick(p, Qt::Key_Down);
    EXPECT_EQ(p->HotHeader(), 1);
    EXPECT_TRUE(got.contains(QStringLiteral("GroupHover A")));
    QTest::keyClick(p, Qt::Key_Down);
    EXPECT_EQ(p->HotItemIndex(), 1);
    EXPECT_TRUE(got.contains(QStringLiteral("ItemHover A/a1")));
    QTest::keyClick(p, Qt::Key_Return);
    EXPECT_TRUE(got.contains(QStringLiteral("ItemClick A/a1")));
    QTest::keyClick(p, Qt::Key_Down);
    EXPECT_EQ(p->HotHeader(), 2);
    QTest::keyClick(p, Qt::Key_Space);
    EXPECT_TRUE(got.contains(QStringLiteral("GroupClick 2 0")));
    EXPECT_FALSE(p->GroupExpanded(2));
    QTest::keyClick(p, Qt::Key_Up);
    QTest::keyClick(p, Qt::Key_Up);
    EXPECT_EQ(p->HotHeader(), 1);
    QTest::keyClick(p, Qt::Key_Enter);
    EXPECT_FALSE(p->GroupExpanded(1));
    QObject::disconnect(p, nullptr, nullptr, nullptr);
}

#include "test_taskpane.moc"
