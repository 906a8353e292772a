#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/shown_window.h"
#include "ui/table/show_table.h"
#include "ui/widgets/looks.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableWidget>

namespace quillon::ui {
namespace {

QTableWidget& GridOf(const ShowTable& window)
{
    return test::Find<QTableWidget>(window, QStringLiteral("dBCalcTable"));
}

int WholeRowsInView(const QTableWidget& grid)
{
    return grid.viewport()->height() / grid.rowHeight(0);
}

TEST(TableLooks, ColumnsAre2650TwipsWide)
{
    ShowTable window;
    test::ShowActive(window);
    const QTableWidget& grid = GridOf(window);
    ASSERT_EQ(grid.logicalDpiX(), 96);
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(grid.columnWidth(column), 176) << "1.84 inch";
    }
}

TEST(TableLooks, ColumnsHoldTheirHeadingsInALargeFont)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(20);
    ShowTable window;
    test::ShowActive(window);
    const QTableWidget& grid = GridOf(window);
    const QFontMetrics metrics(QApplication::font());
    EXPECT_EQ(grid.columnWidth(0), 176);
    for (int column = 1; column < 3; ++column) {
        EXPECT_GT(grid.columnWidth(column), metrics.horizontalAdvance(grid.horizontalHeaderItem(column)->text()));
    }
}

TEST(TableLooks, NarrowWindowCutsNoHeadingInALargeFont)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(20);
    ShowTable window;
    test::ShowActive(window);
    window.resize(window.width() - 60, window.height());
    QApplication::processEvents();
    EXPECT_GT(GridOf(window).columnWidth(2),
              QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("Loss Coefficient")));
}

TEST(TableLooks, RowsAreAFontHeightAndAUnitHigh)
{
    const test::ApplicationFont font;
    for (const double points : {8.0, 10.0, 20.0}) {
        test::ApplicationFont::SetPointSize(points);
        const ShowTable window;
        EXPECT_EQ(GridOf(window).rowHeight(0), QFontMetrics(QApplication::font()).height() + BaseUnit()) << points;
    }
}

TEST(TableLooks, WholeTableIsWideAnd20RowsHighWithoutScrollingSideways)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(8);
    ShowTable window;
    test::ShowActive(window);
    EXPECT_EQ(WholeRowsInView(GridOf(window)), 20);
    EXPECT_FALSE(GridOf(window).horizontalScrollBar()->isVisible());
}

TEST(TableLooks, WindowKeepsToTheScreenInALargeFont)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(20);
    ShowTable window;
    test::ShowActive(window);
    EXPECT_LE(window.height(), window.screen()->availableSize().height());
    EXPECT_LE(window.width(), window.screen()->availableSize().width());
}

TEST(TableLooks, LastColumnTakesWhatAWiderWindowHasLeft)
{
    ShowTable window;
    test::ShowActive(window);
    const QTableWidget& grid = GridOf(window);
    window.resize(window.width() + 100, window.height());
    QApplication::processEvents();
    EXPECT_EQ(grid.columnWidth(0), 176);
    EXPECT_EQ(grid.columnWidth(1), 176);
    EXPECT_EQ(grid.columnWidth(2), 276);
}

TEST(TableLooks, NarrowWindowScrollsSidewaysAndCutsNoColumn)
{
    ShowTable window;
    test::ShowActive(window);
    const QTableWidget& grid = GridOf(window);
    window.resize(window.width() - 100, window.height());
    QApplication::processEvents();
    EXPECT_TRUE(grid.horizontalScrollBar()->isVisible());
    EXPECT_EQ(grid.columnWidth(2), 176);
}

TEST(TableLooks, RowsAlternateWithoutLinesBetweenThem)
{
    const ShowTable window;
    EXPECT_TRUE(GridOf(window).alternatingRowColors());
    EXPECT_FALSE(GridOf(window).showGrid());
}

TEST(TableLooks, ColumnsAndRowsCannotBePulled)
{
    const ShowTable window;
    const QTableWidget& grid = GridOf(window);
    EXPECT_EQ(grid.horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(grid.verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
}

TEST(TableLooks, ScrollButtonsStandAtTheLeftAndCloseAtTheRightEnd)
{
    ShowTable window;
    test::ShowActive(window);
    const auto& up = test::Find<QPushButton>(window, QStringLiteral("cmdPageUp"));
    const auto& down = test::Find<QPushButton>(window, QStringLiteral("cmdPageDn"));
    const auto& close = test::Find<QPushButton>(window, QStringLiteral("cmdClose"));
    const QRect grid = GridOf(window).geometry();
    EXPECT_EQ(up.geometry().left(), grid.left());
    EXPECT_LT(up.geometry().right(), down.geometry().left());
    EXPECT_LT(down.geometry().right(), close.geometry().left());
    EXPECT_EQ(close.geometry().right(), grid.right());
    EXPECT_EQ(up.width(), down.width());
    EXPECT_EQ(up.width(), close.width());
}

TEST(TableLooks, FollowAnotherFontWhileTheWindowIsOpen)
{
    ShowTable window;
    test::ShowActive(window);
    const int before = GridOf(window).rowHeight(0);
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(2 * QApplication::font().pointSizeF());
    EXPECT_GT(GridOf(window).rowHeight(0), before);
    EXPECT_GT(GridOf(window).rowHeight(199), before);
}

} // namespace
} // namespace quillon::ui
