// The main window in other languages: no English text left in any caption, menu, tooltip or
// accessible name (the toolbar's buttons and the task pane's groups are read the way a screen
// reader meets them), and at 640×420 no translated caption is cut: the task pane is as wide as
// its longest texts need, and the toolbar's buttons are either whole or behind its arrow.
#include "english_left.h"
#include "mainwindow_fixture.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QScrollBar>
#include <QToolButton>

using namespace quovara;
using namespace quovara::testing;

namespace {

// The names and descriptions of `root` and everything below it in the accessibility tree.
void collectAccessible(QAccessibleInterface* node, QStringList& out, int depth = 0) {
    if (!node || depth > 12)
        return;
    out << node->text(QAccessible::Name) << node->text(QAccessible::Description);
    for (int i = 0; i < node->childCount(); ++i)
        collectAccessible(node->child(i), out, depth + 1);
}

class TranslatedMainWindow : public ::testing::TestWithParam<const char*> {
protected:
    TranslatedMainWindow() : language_(QString::fromLatin1(GetParam())) {}

    void SetUp() override {
        ASSERT_TRUE(language_.loaded());
        QFile::copy(kFour, places_.programFolder() + "/uharc.exe");
        QFile::copy(kSix, places_.programFolder() + "/Uharc0.6.fns");
        const QString src = places_.path() + "/данные";
        QDir().mkpath(src + "/Документы/写真");
        writeFile(src + "/Zażółć.txt", "gęślą jaźń");
        writeFile(src + "/Документы/写真/一覧.txt", "一覧");
        archive_ = places_.path() + "/Отпуск.uha";
        ASSERT_FALSE(makeArchiveOf(kSix, src, archive_, {}).isEmpty());
        window_.setPrompter(&prompter_);
        static int count = 0;
        window_.setInstanceLockPath(QDir(QCoreApplication::applicationDirPath())
                                        .filePath(QStringLiteral("quovara-test-%1-tr%2.lock")
                                                      .arg(QCoreApplication::applicationPid())
                                                      .arg(++count)));
    }

    template <typename T> T* child(const char* name) {
        T* w = window_.findChild<T*>(QLatin1String(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }

    LanguageForTest language_;
    ScopedPlaces places_;
    RecordingPrompter prompter_;
    TestApri window_;
    QString archive_;
};

TEST_P(TranslatedMainWindow, AnEngineErrorIsQuotedInASentenceOfTheLanguage) {
    // A damaged archive: its start kept, the rest cut.
    const QString damaged = places_.path() + "/Сломанный.uha";
    QFile in(archive_);
    ASSERT_TRUE(in.open(QIODevice::ReadOnly));
    writeFile(damaged, in.read(in.size() / 2));
    window_.Form_Load(damaged);
    ASSERT_TRUE(waitFor([&] { return !prompter_.shown.isEmpty(); }));
    const QString engineText =
        "Can't read from archive file / Unexpected end of file (maybe corrupt)";
    const QMap<QString, QString> sentence{{"ru", "Движок сообщил об ошибке:"},
                                          {"ja", "エンジンがエラーを報告しました:"},
                                          {"de", "Die Engine hat einen Fehler gemeldet:"}};
    EXPECT_EQ(prompter_.shown.first(),
              "critical: " + sentence.value(GetParam()) + "\n\n" + engineText);
}

// Read for English left: the languages written in other scripts.
class MainWindowInOtherScripts : public TranslatedMainWindow {};

TEST_P(MainWindowInOtherScripts, HasNoEnglishLeftInAnyTextOrAccessibleName) {
    ASSERT_TRUE(window_.Form_Load(archive_));
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    ASSERT_FALSE(child<TaskPaneBar>("Barra")->isHidden());
    QStringList texts = ShownTexts(&window_);
    collectAccessible(QAccessible::queryAccessibleInterface(&window_), texts);
    texts.removeAll(QString());
    // The folder list names the folders of the archive's path: names, not texts.
    for (const QString& folder : places_.path().split(QLatin1Char('/'), Qt::SkipEmptyParts))
        texts.removeIf([&](const QString& t) { return t.trimmed() == folder; });
    // The toolbar's eight buttons and the pane's three groups were read through the tree.
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    for (int id : {1, 3, 4, 5, 6, 8, 10, 11})
        EXPECT_TRUE(texts.contains(toolbar->ButtonCaption(id))) << id;
    auto* pane = child<TaskPaneBar>("Barra");
    for (int g = 1; g <= pane->GroupCount(); ++g)
        EXPECT_TRUE(texts.contains(pane->GroupCaption(g))) << g;
    EXPECT_EQ(EnglishLeft(texts), QStringList());
    // What the source texts say is not what is shown.
    EXPECT_NE(toolbar->ButtonCaption(3), "Add");
    EXPECT_NE(pane->GroupCaption(2), "File and Folder Operations");
}

TEST_P(TranslatedMainWindow, AtSixHundredFortyByFourHundredTwentyNoCaptionIsCut) {
    ASSERT_TRUE(window_.Form_Load(archive_));
    window_.resize(640, 420);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    ASSERT_TRUE(waitFor([&] { return window_.width() == 640 && window_.height() == 420; }));
    auto* pane = child<TaskPaneBar>("Barra");
    // At this height the pane scrolls: its groups are at their narrowest.
    ASSERT_TRUE(pane->ScrollBar()->isVisible());
    QFont bold = pane->font();
    bold.setBold(true);
    const QFontMetrics bfm(bold);
    for (int g = 1; g <= pane->GroupCount(); ++g) {
        // The caption has the header less its left margin and the expand button.
        const QRect header = pane->GroupHeaderRect(g);
        EXPECT_LE(bfm.horizontalAdvance(pane->GroupCaption(g)), header.width() - 12 - 18 - 10 - 1)
            << pane->GroupCaption(g).toStdString();
    }
    // The links and labels of the groups keep their whole width inside the pane.
    for (const char* name : {"EstFile", "EseFile"}) {
        auto* b = child<QPushButton>(name);
        EXPECT_GE(b->width(), b->sizeHint().width()) << name;
        EXPECT_LE(b->mapTo(pane, QPoint(b->width(), 0)).x(), pane->width() - 14) << name;
    }
    for (const char* name : {"LBCerca", "RatioP"}) {
        auto* l = child<QLabel>(name);
        EXPECT_LE(l->fontMetrics().horizontalAdvance(l->text()), l->contentsRect().width()) << name;
    }
    // Every toolbar button is whole left of the arrow, or offered by the arrow.
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    auto* more = toolbar->findChild<QToolButton*>("Overflow");
    ASSERT_NE(more, nullptr);
    const QList<int> behind = toolbar->OverflowButtons();
    for (int id = 1; id <= toolbar->ButtonCount(); ++id) {
        if (toolbar->ButtonStyleOf(id) == ucToolbar::tbrSeparator || behind.contains(id))
            continue;
        const QRect r = toolbar->ButtonRect(id);
        EXPECT_LE(r.right(), more->isVisible() ? more->x() - 1 : toolbar->width() - 1) << id;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowInOtherScripts, ::testing::Values("ru", "ja"));
INSTANTIATE_TEST_SUITE_P(Languages, TranslatedMainWindow, ::testing::Values("ru", "ja", "de"));

} // namespace
