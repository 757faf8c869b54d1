// The search results as the user sees them: every column inside the list at the window's
// default size, and names in the browser's own order under every locale.
#include "mainwindow_fixture.h"

#include "core/places.h"

#include <QHeaderView>
#include <QLocale>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, AtTheDefaultSizeEverySearchResultColumnShowsWithoutScrollingSideways) {
    const QString archive = makeArchive(kSix, "columns.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(searchWithEnter("*"));
    auto* found = child<QTreeView>("Trovati");
    ASSERT_EQ(found->model()->rowCount(), 4);
    QHeaderView* header = found->header();
    const int width = found->viewport()->width();
    for (int column = 0; column < 6; ++column) {
        const QString caption = found->model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_FALSE(header->isSectionHidden(column)) << caption.toStdString();
        EXPECT_GE(header->sectionViewportPosition(column), 0) << caption.toStdString();
        EXPECT_LE(header->sectionViewportPosition(column) + header->sectionSize(column), width)
            << caption.toStdString();
        // Wide enough for its heading.
        EXPECT_GE(header->sectionSize(column), header->fontMetrics().horizontalAdvance(caption))
            << caption.toStdString();
    }
    EXPECT_EQ(found->model()->headerData(5, Qt::Horizontal).toString(), "CRC-32");
    EXPECT_EQ(found->horizontalScrollBar()->maximum(), 0);
    EXPECT_FALSE(found->horizontalScrollBar()->isVisible());
    // Name and folder share the width the details leave.
    EXPECT_EQ(header->sectionSize(0), header->sectionSize(1));
    // A narrower window takes its width from the names, not from the details.
    window_.resize(window_.width() - 100, window_.height());
    ASSERT_TRUE(waitFor([&] { return found->viewport()->width() == width - 100; }));
    EXPECT_EQ(header->sectionViewportPosition(5) + header->sectionSize(5), width - 100);
    EXPECT_EQ(found->horizontalScrollBar()->maximum(), 0);
}

namespace {

// Names whose order differs between their characters' codes and a reader's language: "Ё" comes
// between "Е" and "Ж", hiragana and katakana interleave by sound, and numbers by their value.
const QStringList kNames = {QString::fromUtf8("Ёж"),
                            QString::fromUtf8("Еда"),
                            QString::fromUtf8("Жук"),
                            QString::fromUtf8("あい"),
                            QString::fromUtf8("アカ"),
                            QString::fromUtf8("か"),
                            "file10",
                            "file2"};

struct LocaleOrder {
    const char* locale;
    QStringList order;
};

class NameOrder : public MainWindow, public ::testing::WithParamInterface<LocaleOrder> {};

} // namespace

TEST_P(NameOrder, SearchResultsComeInTheOrderOfTheBrowsersList) {
    QLocale::setDefault(QLocale(QString::fromLatin1(GetParam().locale)));
    auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    QDir().mkpath(src_ + "/names");
    for (const QString& name : kNames)
        writeFile(src_ + "/names/" + name, name.toUtf8());
    const QString archive = makeArchive(kSix, "names.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();

    // The browser's list of the folder.
    window_.fileView()->setFolder(ScratchFolder() + "/names");
    QAbstractItemView* list = window_.fileView()->currentView();
    auto shown = [&] {
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            names << list->model()->index(row, 0, list->rootIndex()).data().toString();
        return names;
    };
    ASSERT_TRUE(waitFor([&] { return shown().size() == kNames.size(); }));
    QTest::qWait(100); // the file model orders what it has read a moment later
    const QStringList browser = shown();

    // The search results of the same folder.
    clickToolbar(1);
    ASSERT_TRUE(searchWithEnter("*"));
    auto* found = child<QTreeView>("Trovati");
    QStringList results;
    for (int row = 0; row < found->model()->rowCount(); ++row)
        if (cell(found, row, 1) == "names")
            results << cell(found, row, 0);

    EXPECT_EQ(results, browser);
    EXPECT_EQ(results, GetParam().order);
}

INSTANTIATE_TEST_SUITE_P(
    EveryLocale, NameOrder,
    ::testing::Values(
        LocaleOrder{"ru_RU",
                    {QString::fromUtf8("Еда"), QString::fromUtf8("Ёж"), QString::fromUtf8("Жук"),
                     "file2", "file10", QString::fromUtf8("あい"), QString::fromUtf8("アカ"),
                     QString::fromUtf8("か")}},
        LocaleOrder{"ja_JP",
                    {"file2", "file10", QString::fromUtf8("あい"), QString::fromUtf8("アカ"),
                     QString::fromUtf8("か"), QString::fromUtf8("Еда"), QString::fromUtf8("Ёж"),
                     QString::fromUtf8("Жук")}},
        LocaleOrder{"en_US",
                    {"file2", "file10", QString::fromUtf8("Еда"), QString::fromUtf8("Ёж"),
                     QString::fromUtf8("Жук"), QString::fromUtf8("あい"), QString::fromUtf8("アカ"),
                     QString::fromUtf8("か")}},
        // The C locale compares characters by their codes, without regard to case.
        LocaleOrder{"C",
                    {"file10", "file2", QString::fromUtf8("Еда"), QString::fromUtf8("Жук"),
                     QString::fromUtf8("Ёж"), QString::fromUtf8("あい"), QString::fromUtf8("か"),
                     QString::fromUtf8("アカ")}}),
    [](const ::testing::TestParamInfo<LocaleOrder>& info) {
        return std::string(info.param.locale);
    });
