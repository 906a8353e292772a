#include "ui/table/show_table.h"

#include "tests/support/find_widget.h"
#include "tests/support/row_name.h"
#include "tests/support/shown_numbers.h"
#include "tests/support/shown_window.h"
#include "tests/ui/table/table_texts.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <functional>

namespace quillon::ui {
namespace {

const QTableWidget& GridOf(const ShowTable& window)
{
    return test::Find<QTableWidget>(window, QStringLiteral("dBCalcTable"));
}

TEST(ShowTable, All200RowsReadAsGiven)
{
    const ShowTable window;
    const QTableWidget& grid = GridOf(window);
    ASSERT_EQ(grid.rowCount(), 200);
    ASSERT_EQ(grid.columnCount(), 3);
    for (int row = 0; row < 200; ++row) {
        const TableTexts& texts = kTableTexts.at(static_cast<std::size_t>(row));
        EXPECT_EQ(support::WithPoint(grid.item(row, 0)->text()), texts.dB) << "row " << row + 1;
        EXPECT_EQ(support::WithPoint(grid.item(row, 1)->text()), texts.gainCoefficient) << "row " << row + 1;
        EXPECT_EQ(support::WithPoint(grid.item(row, 2)->text()), texts.lossCoefficient) << "row " << row + 1;
        EXPECT_EQ(grid.verticalHeaderItem(row)->text().toStdString(), std::to_string(row + 1));
    }
}

struct EdgeRow
{
    const char* name;
    int row;
    std::array<const char*, 3> texts;
};

class ShowTableEdge : public ::testing::TestWithParam<EdgeRow>
{
};

TEST_P(ShowTableEdge, ReadsAsGiven)
{
    const ShowTable window;
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(support::WithPoint(GridOf(window).item(GetParam().row - 1, column)->text()),
                  GetParam().texts.at(static_cast<std::size_t>(column)));
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, ShowTableEdge, ::testing::Values(
    EdgeRow{"no zeros behind the whole figures of row 1", 1, {"0", "1", "1"}},
    EdgeRow{"row 11 is 1 dB", 11, {"1", "1.259", "0.7943"}},
    EdgeRow{"row 31 is 3 dB", 31, {"3", "1.995", "0.5013"}},
    EdgeRow{"row 52 shows 3.326, as given", 52, {"5.1", "3.326", "0.3007"}},
    EdgeRow{"row 100 shows 9.722, as given", 100, {"9.9", "9.722", "0.1029"}},
    EdgeRow{"row 101 is 10 dB", 101, {"10", "10", "0.1"}},
    EdgeRow{"row 153 shows 35.11, as given", 153, {"15.2", "35.11", "0.0285"}},
    EdgeRow{"last row", 200, {"19.9", "97.72", "0.0102"}}), support::RowName());

// clang-format on

TEST(ShowTable, HeadingsStandAtTheLeft)
{
    const ShowTable window;
    const QTableWidget& grid = GridOf(window);
    // The blank behind the first, as given.
    EXPECT_EQ(grid.horizontalHeaderItem(0)->text(), QStringLiteral("dB Value "));
    EXPECT_EQ(grid.horizontalHeaderItem(1)->text(), QStringLiteral("Gain Coefficient"));
    EXPECT_EQ(grid.horizontalHeaderItem(2)->text(), QStringLiteral("Loss Coefficient"));
    EXPECT_TRUE(grid.horizontalHeader()->defaultAlignment().testFlag(Qt::AlignLeft));
}

TEST(ShowTable, CarriesItsNameAndCaption)
{
    const ShowTable window;
    EXPECT_EQ(window.objectName(), QStringLiteral("ShowTable"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("dB Calculation Table"));
}

struct ButtonRow
{
    const char* name;
    const char* control;
    const char* caption;
    const char* toolTip;
};

class ShowTableButton : public ::testing::TestWithParam<ButtonRow>
{
};

TEST_P(ShowTableButton, CarriesItsTexts)
{
    const ShowTable window;
    const auto& button = test::Find<QPushButton>(window, QString::fromUtf8(GetParam().control));
    EXPECT_EQ(button.text().toStdString(), GetParam().caption);
    EXPECT_EQ(button.toolTip().toStdString(), GetParam().toolTip);
    EXPECT_FALSE(button.autoDefault() || button.isDefault());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Buttons, ShowTableButton, ::testing::Values(
    ButtonRow{"up with the tool tip of Close, as given", "cmdPageUp", "Scroll &Up", "Close this window."},
    ButtonRow{"down with the tool tip of Close, as given", "cmdPageDn", "Scroll &Down", "Close this window."},
    ButtonRow{"close", "cmdClose", "&Close", "Close this window."}), support::RowName());

// clang-format on

/// Opens the window and works it once it is there. The work has to close it.
void OpenAnd(ShowTable& window, const std::function<void()>& work)
{
    QTimer::singleShot(0, &window, work);
    window.Open();
}

TEST(ShowTable, IsModalUntilItIsClosed)
{
    ShowTable window;
    bool wasModal = false;
    OpenAnd(window, [&] {
        wasModal = QApplication::activeModalWidget() == &window;
        test::Find<QPushButton>(window, QStringLiteral("cmdClose")).click();
    });
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(window.isVisible());
}

struct WayOutRow
{
    const char* name;
    bool closes;
    void (*go)(ShowTable& window);
};

class ShowTableWayOut : public ::testing::TestWithParam<WayOutRow>
{
};

TEST_P(ShowTableWayOut, IsCloseAlone)
{
    ShowTable window;
    test::ShowActive(window);
    GetParam().go(window);
    // A button pressed by its access key goes down for a moment first.
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isVisible() != GetParam().closes; }));
}

void FocusAndPress(ShowTable& window, const char* control, Qt::Key key)
{
    test::Find<QWidget>(window, QString::fromUtf8(control)).setFocus();
    test::Click(window, key);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Ways, ShowTableWayOut, ::testing::Values(
    WayOutRow{"click on Close", true, [](ShowTable& window) {
        QTest::mouseClick(&test::Find<QPushButton>(window, QStringLiteral("cmdClose")), Qt::LeftButton); }},
    WayOutRow{"Alt C", true, [](ShowTable& window) { test::Click(window, Qt::Key_C, Qt::AltModifier); }},
    WayOutRow{"Enter on Close", true, [](ShowTable& window) { FocusAndPress(window, "cmdClose", Qt::Key_Return); }},
    WayOutRow{"Space on Close", true, [](ShowTable& window) { FocusAndPress(window, "cmdClose", Qt::Key_Space); }},
    WayOutRow{"not Enter on the table", false,
        [](ShowTable& window) { FocusAndPress(window, "dBCalcTable", Qt::Key_Return); }},
    WayOutRow{"not Esc on the table", false,
        [](ShowTable& window) { FocusAndPress(window, "dBCalcTable", Qt::Key_Escape); }},
    WayOutRow{"not Esc on Close", false,
        [](ShowTable& window) { FocusAndPress(window, "cmdClose", Qt::Key_Escape); }},
    WayOutRow{"not the close box or Alt F4", false, [](ShowTable& window) { window.windowHandle()->close(); }}),
    support::RowName());

// clang-format on

TEST(ShowTable, CannotBeTypedInto)
{
    ShowTable window;
    test::ShowActive(window);
    auto& grid = test::Find<QTableWidget>(window, QStringLiteral("dBCalcTable"));
    grid.setFocus();
    test::Click(window, Qt::Key_F2);
    test::Type(window, QStringLiteral("7"));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, grid.visualItemRect(grid.item(3, 1)).center());
    EXPECT_EQ(grid.findChild<QLineEdit*>(), nullptr) << "an editor";
    EXPECT_EQ(support::WithPoint(grid.item(3, 1)->text()), "1.072");
}

TEST(ShowTable, ScreenReadersHearTheTable)
{
    ShowTable window;
    test::ShowActive(window);
    auto& grid = test::Find<QTableWidget>(window, QStringLiteral("dBCalcTable"));
    EXPECT_EQ(grid.accessibleName(), QStringLiteral("dB values with their gain and loss coefficients"));
    QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(&grid)->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(support::WithPoint(table->cellAt(51, 1)->text(QAccessible::Name)), "3.326");
    EXPECT_EQ(table->rowDescription(51), QStringLiteral("52"));
    EXPECT_EQ(table->columnDescription(2), QStringLiteral("Loss Coefficient"));
}

TEST(ShowTable, TabLeadsThroughTheTableAndTheButtons)
{
    ShowTable window;
    test::ShowActive(window);
    QStringList visited;
    for (int step = 0; step < 5; ++step) {
        visited.append(window.focusWidget()->objectName());
        test::Click(window, Qt::Key_Tab);
    }
    EXPECT_EQ(visited,
              QStringList({QStringLiteral("dBCalcTable"), QStringLiteral("cmdPageUp"), QStringLiteral("cmdPageDn"),
                           QStringLiteral("cmdClose"), QStringLiteral("dBCalcTable")}));
}

TEST(ShowTable, ShowsTheDesktopsDecimalSeparator)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const ShowTable window;
    QLocale::setDefault(before);
    EXPECT_EQ(GridOf(window).item(51, 0)->text(), QStringLiteral("5,1"));
    EXPECT_EQ(GridOf(window).item(51, 2)->text(), QStringLiteral("0,3007"));
}

} // namespace
} // namespace quillon::ui
