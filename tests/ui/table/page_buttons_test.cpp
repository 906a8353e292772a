#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/row_name.h"
#include "tests/support/shown_window.h"
#include "ui/table/show_table.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QWheelEvent>

#include <vector>

namespace quillon::ui {
namespace {

class PageButtons : public ::testing::Test
{
protected:
    void SetUp() override { test::ShowActive(window); }

    void PageDown(int times = 1) { Press("cmdPageDn", times); }

    void PageUp(int times = 1) { Press("cmdPageUp", times); }

    /// Number in the fixed column of the row at the top of the view.
    int TopNumber() { return grid.verticalHeaderItem(grid.rowAt(0))->text().toInt(); }

    /// Number of the row at the bottom of the view.
    int BottomNumber()
    {
        const int row = grid.rowAt(grid.viewport()->height() - 1);
        return grid.verticalHeaderItem(row < 0 ? grid.rowCount() - 1 : row)->text().toInt();
    }

    void Wheel(int notches)
    {
        const QPointF at(QRectF(grid.viewport()->rect()).center());
        QWheelEvent turn(at, grid.viewport()->mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(grid.viewport(), &turn);
    }

    ShowTable window;
    QTableWidget& grid = test::Find<QTableWidget>(window, QStringLiteral("dBCalcTable"));

private:
    void Press(const char* button, int times)
    {
        for (int i = 0; i < times; ++i) {
            test::Find<QPushButton>(window, QString::fromUtf8(button)).click();
        }
    }
};

TEST_F(PageButtons, StartAbove)
{
    EXPECT_EQ(window.TopRow(), 0);
    EXPECT_EQ(TopNumber(), 1);
}

TEST_F(PageButtons, GoDownInStepsOf20FromRow0AsGiven)
{
    for (const int row : {20, 40, 60, 80, 100, 120, 140, 160, 180}) {
        PageDown();
        EXPECT_EQ(window.TopRow(), row);
        EXPECT_EQ(TopNumber(), row);
    }
    for (const int row : {200, 201, 201}) {
        PageDown();
        EXPECT_EQ(window.TopRow(), row);
        EXPECT_EQ(BottomNumber(), 200) << "the last page";
    }
}

TEST_F(PageButtons, GoUpFrom201Through181To1)
{
    PageDown(11);
    for (const int row : {181, 161, 141, 121, 101, 81, 61, 41, 21, 1, 1}) {
        PageUp();
        EXPECT_EQ(window.TopRow(), row);
        EXPECT_EQ(TopNumber(), row);
    }
}

TEST_F(PageButtons, FirstPageUpGoesToRow1)
{
    PageUp();
    EXPECT_EQ(window.TopRow(), 1);
    EXPECT_EQ(TopNumber(), 1);
}

struct StepRow
{
    const char* name;
    int from;
    int up;
    int down;
};

class PageButtonsFrom : public PageButtons, public ::testing::WithParamInterface<StepRow>
{
};

TEST_P(PageButtonsFrom, WhereAPersonScrolled)
{
    for (const bool down : {false, true}) {
        grid.verticalScrollBar()->setValue(9);
        grid.verticalScrollBar()->setValue(GetParam().from - 1);
        EXPECT_EQ(window.TopRow(), GetParam().from);
        if (down) {
            PageDown();
        } else {
            PageUp();
        }
        EXPECT_EQ(window.TopRow(), down ? GetParam().down : GetParam().up);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, PageButtonsFrom, ::testing::Values(
    StepRow{"row 1", 1, 1, 21},
    StepRow{"row 20 goes up to 1", 20, 1, 40},
    StepRow{"row 21 goes up to 1", 21, 1, 41},
    StepRow{"row 22 goes up a page", 22, 2, 42},
    StepRow{"row 180 goes down a page, past the last one", 180, 160, 200},
    StepRow{"row 181 goes down to the end", 181, 161, 201}), support::RowName());

// clang-format on

/// How a person scrolls, and where that leads from row 40.
struct ScrollRow
{
    const char* name;
    int topRow;
    void (*scroll)(ShowTable& window, QTableWidget& grid);
};

class OwnScrolling : public PageButtons, public ::testing::WithParamInterface<ScrollRow>
{
};

TEST_P(OwnScrolling, MovesTheRowThatTheButtonsGoOnFrom)
{
    PageDown(2);
    GetParam().scroll(window, grid);
    EXPECT_EQ(window.TopRow(), GetParam().topRow);
    EXPECT_EQ(TopNumber(), GetParam().topRow);
    PageDown();
    EXPECT_EQ(window.TopRow(), GetParam().topRow + 20);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Ways, OwnScrolling, ::testing::Values(
    ScrollRow{"arrow of the scroll bar", 41, [](ShowTable&, QTableWidget& grid) {
        grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd); }},
    ScrollRow{"handle of the scroll bar", 101, [](ShowTable&, QTableWidget& grid) {
        grid.verticalScrollBar()->setSliderDown(true);
        grid.verticalScrollBar()->setSliderPosition(100); }},
    ScrollRow{"Home", 1, [](ShowTable& window, QTableWidget&) {
        test::Click(window, Qt::Key_Home, Qt::ControlModifier); }},
    ScrollRow{"arrow key above the top", 39, [](ShowTable& window, QTableWidget&) {
        test::Click(window, Qt::Key_Up); }}), support::RowName());

// clang-format on

TEST_F(PageButtons, GoOnFromWhereTheWheelLed)
{
    PageDown(2);
    Wheel(-1);
    const int row = TopNumber();
    EXPECT_GT(row, 40);
    EXPECT_EQ(window.TopRow(), row);
    PageDown();
    EXPECT_EQ(window.TopRow(), row + 20);
}

TEST_F(PageButtons, GoOnFromWhereThePagingKeysLed)
{
    test::Click(window, Qt::Key_PageDown);
    test::Click(window, Qt::Key_PageDown);
    EXPECT_EQ(window.TopRow(), TopNumber());
    EXPECT_GT(window.TopRow(), 1);
    test::Click(window, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(window.TopRow(), TopNumber());
    EXPECT_EQ(BottomNumber(), 200);
}

TEST_F(PageButtons, WheelThatMovesNothingLeavesRow201)
{
    PageDown(11);
    Wheel(-3);
    EXPECT_EQ(window.TopRow(), 201);
    PageUp();
    EXPECT_EQ(window.TopRow(), 181);
}

TEST_F(PageButtons, ArrowKeysGoOnFromThePageOnShow)
{
    PageDown(3);
    test::Click(window, Qt::Key_Down);
    EXPECT_EQ(grid.currentRow(), 60) << "row 61, below the row at the top";
    EXPECT_EQ(window.TopRow(), 60);
}

TEST_F(PageButtons, AnotherSizeOfTheWindowIsNoScrolling)
{
    PageDown(9);
    window.resize(window.width(), window.height() / 2);
    QApplication::processEvents();
    window.resize(window.width(), 3 * window.height());
    QApplication::processEvents();
    ASSERT_LT(TopNumber(), 180) << "a higher window has to move its last page";
    EXPECT_EQ(window.TopRow(), 180);
}

TEST_F(PageButtons, AnotherFontIsNoScrolling)
{
    PageDown(9);
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(4);
    ASSERT_LT(TopNumber(), 180);
    EXPECT_EQ(window.TopRow(), 180);
}

TEST_F(PageButtons, WorkByTheirAccessKeys)
{
    test::Click(window, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.TopRow() == 20; }));
    test::Click(window, Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.TopRow() == 1; }));
}

TEST_F(PageButtons, StartAnewInTheNextWindow)
{
    PageDown(3);
    const ShowTable next;
    EXPECT_EQ(next.TopRow(), 0);
}

} // namespace
} // namespace quillon::ui
