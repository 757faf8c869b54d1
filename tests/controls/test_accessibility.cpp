// Accessibility trees of the three controls: children, names, roles, states and actions.
#include "controls/taskpanebar.h"
#include "controls/uctoolbar.h"
#include "controls/xp_progressbar.h"
#include "test_helpers.h"

#include <QAccessible>
#include <QLabel>
#include <gtest/gtest.h>
#include <memory>

using namespace quovara;
using namespace quovara::test;

TEST(ToolbarAccessibility, ButtonsAreChildrenWithCaptionsAndStates) {
    QWidget host;
    auto* tb = new ucToolbar(&host);
    tb->Initialize(16, true, false, false);
    tb->AddButton(QStringLiteral("Back"), -1, QStringLiteral("Go back"));
    tb->AddButton(QString(), -1, QString(), ucToolbar::tbrSeparator);
    tb->AddButton(QStringLiteral("Add"), -1, QStringLiteral("Add files"), ucToolbar::tbrCheck);
    tb->AddButton(QStringLiteral("View"), -1, QString(), ucToolbar::tbrDropDown);
    tb->AddButton(QString(), -1, QStringLiteral("Only a tip"));
    tb->SetButtonEnabled(1, false);
    tb->SetButtonChecked(3, true);

    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(tb);
    ASSERT_NE(iface, nullptr);
    EXPECT_EQ(iface->role(), QAccessible::ToolBar);
    ASSERT_EQ(iface->childCount(), 5);
    QAccessibleInterface* back = iface->child(0);
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(iface->child(0), back); // one interface per button
    EXPECT_EQ(back->text(QAccessible::Name), QStringLiteral("Back"));
    EXPECT_EQ(back->text(QAccessible::Description), QStringLiteral("Go back"));
    EXPECT_EQ(back->role(), QAccessible::PushButton);
    EXPECT_TRUE(back->state().disabled);
    EXPECT_EQ(back->parent(), iface);
    EXPECT_EQ(iface->indexOfChild(back), 0);
    EXPECT_EQ(iface->child(1)->role(), QAccessible::Separator);
    QAccessibleInterface* add = iface->child(2);
    EXPECT_FALSE(add->state().disabled);
    EXPECT_TRUE(add->state().checkable);
    EXPECT_TRUE(add->state().checked);
    EXPECT_EQ(iface->child(3)->role(), QAccessible::ButtonDropDown);
    EXPECT_TRUE(iface->child(3)->state().hasPopup);
    EXPECT_EQ(iface->child(4)->text(QAccessible::Name), QStringLiteral("Only a tip"));

    int clicked = 0;
    QObject::connect(tb, &ucToolbar::ButtonClick, [&](int id) { clicked = id; });
    QAccessibleActionInterface* action = add->actionInterface();
    ASSERT_NE(action, nullptr);
    EXPECT_TRUE(action->actionNames().contains(QAccessibleActionInterface::pressAction()));
    action->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked, 3);
    EXPECT_FALSE(add->state().checked);
    clicked = 0;
    back->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked, 0); // disabled
    QObject::disconnect(tb, nullptr, nullptr, nullptr);
}

TEST(ToolbarAccessibility, AnUninitialisedToolbarHasNoChildren) {
    ucToolbar tb;
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&tb);
    ASSERT_NE(iface, nullptr);
    EXPECT_EQ(iface->childCount(), 0);
}

TEST(ProgressBarAccessibility, ExposesItsValue) {
    XP_ProgressBar bar;
    bar.setObjectName(QStringLiteral("RatioBar"));
    bar.SetValue(45);
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&bar);
    ASSERT_NE(iface, nullptr);
    EXPECT_EQ(iface->role(), QAccessible::ProgressBar);
    QAccessibleValueInterface* value = iface->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toInt(), 45);
    EXPECT_EQ(value->maximumValue().toInt(), 100);
    EXPECT_EQ(value->minimumValue().toInt(), 0);
    EXPECT_EQ(iface->text(QAccessible::Value), QStringLiteral("45 %"));
    bar.SetValue(80);
    EXPECT_EQ(value->currentValue().toInt(), 80);
}

TEST(TaskPaneAccessibility, HeadersItemsAndDetailsAreInPaintOrder) {
    auto pane = std::make_unique<TaskPaneBar>();
    pane->resize(220, 600);
    pane->AddSpecialGroup(QStringLiteral("Archive Tasks"));
    pane->AddItem(-1, QStringLiteral("open"), QStringLiteral("Open"), 1);
    pane->AddGroup(QStringLiteral("Operazioni"), QStringLiteral("File and Folder Operations"));
    pane->AddItem(QStringLiteral("Operazioni"), QStringLiteral("ext"), QStringLiteral("Extract"),
                  1);
    pane->AddGroup(QStringLiteral("Stato"), QStringLiteral("State"));
    auto* pic = new QLabel(QStringLiteral("ready"));
    pic->setObjectName(QStringLiteral("picStato"));
    pane->SetGroupChild(QStringLiteral("Stato"), pic);
    pane->AddDetailsGroup(QStringLiteral("Details"), QStringLiteral("archive.uha"),
                          QStringLiteral("Files: 3"));
    ShowAndWait(pane.get());

    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(pane.get());
    ASSERT_NE(iface, nullptr);
    EXPECT_EQ(iface->role(), QAccessible::Pane);
    // Special header, its item, two headers, one item, details header, details text.
    const QList<QPair<QAccessible::Role, QString>> expected{
        {QAccessible::PushButton, "Archive Tasks"},
        {QAccessible::Link, "Open"},
        {QAccessible::PushButton, "File and Folder Operations"},
        {QAccessible::Link, "Extract"},
        {QAccessible::PushButton, "State"},
        {QAccessible::PushButton, "Details"},
        {QAccessible::StaticText, "archive.uha"}};
    ASSERT_GE(iface->childCount(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QAccessibleInterface* c = iface->child(i);
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->role(), expected[i].first) << i;
        EXPECT_EQ(c->text(QAccessible::Name), expected[i].second) << i;
        EXPECT_EQ(iface->indexOfChild(c), i);
    }
    EXPECT_EQ(iface->child(6)->text(QAccessible::Description), QStringLiteral("Files: 3"));
    // The hosted child's container follows the painted parts.
    bool hosted = false;
    for (int i = int(expected.size()); i < iface->childCount(); ++i)
        if (iface->child(i)->object() == pane->GroupChildContainer(QStringLiteral("Stato")))
            hosted = true;
    EXPECT_TRUE(hosted);

    QAccessibleInterface* header = iface->child(2);
    EXPECT_TRUE(header->state().expandable);
    EXPECT_TRUE(header->state().expanded);
    EXPECT_FALSE(header->state().collapsed);
    EXPECT_TRUE(iface->child(3)->state().linked);

    QString clicked;
    QObject::connect(pane.get(), &TaskPaneBar::ItemClick,
                     [&](const QString& g, const QString& k) { clicked = g + "/" + k; });
    iface->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked, QStringLiteral("Operazioni/ext"));

    header->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(pane->GroupExpanded(QStringLiteral("Operazioni")));
    EXPECT_TRUE(header->state().collapsed);
    // The collapsed group's item leaves the tree.
    EXPECT_EQ(iface->child(3)->text(QAccessible::Name), QStringLiteral("State"));
    QObject::disconnect(pane.get(), nullptr, nullptr, nullptr);
}
