#include "engine/db_table.h"

#include "engine/arithmetic_error.h"
#include "tests/engine/db_table_rows.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace quillon::engine {
namespace {

TEST(DBTable, All200RowsStandAsGiven)
{
    const DBTable table = BuildDBTable();
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(table.at(i).dB, kExpectedDBRows.at(i).dB) << "row " << i;
        EXPECT_EQ(table.at(i).gainCoefficient, kExpectedDBRows.at(i).gainCoefficient) << "row " << i;
        EXPECT_EQ(table.at(i).lossCoefficient, kExpectedDBRows.at(i).lossCoefficient) << "row " << i;
    }
}

struct EdgeRow
{
    const char* name;
    std::size_t index;
    DBRow row;
};

class DBTableEdge : public ::testing::TestWithParam<EdgeRow>
{
};

TEST_P(DBTableEdge, StandsInItsRow)
{
    EXPECT_EQ(BuildDBTable().at(GetParam().index), GetParam().row);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, DBTableEdge, ::testing::Values(
    EdgeRow{"first row passes all power", 0, {0.0F, 1.0F, 1.0F}},
    EdgeRow{"row 30 halves the power", 30, {3.0F, 1.995F, 0.5013F}},
    EdgeRow{"row 51 is 3.326, not 3.236, as given", 51, {5.1F, 3.326F, 0.3007F}},
    EdgeRow{"row 52 is less than row 51, as given", 52, {5.2F, 3.311F, 0.3020F}},
    EdgeRow{"row 95 is 8.913", 95, {9.5F, 8.913F, 0.1122F}},
    EdgeRow{"row 99 is 9.722, not 9.772, as given", 99, {9.9F, 9.722F, 0.1029F}},
    EdgeRow{"row 100 is 10", 100, {10.0F, 10.0F, 0.1F}},
    EdgeRow{"row 101 has two decimals", 101, {10.1F, 10.23F, 0.0978F}},
    EdgeRow{"row 152 is 35.11, not 33.11, as given", 152, {15.2F, 35.11F, 0.0285F}},
    EdgeRow{"row 195 is 89.13", 195, {19.5F, 89.13F, 0.0112F}},
    EdgeRow{"last row", 199, {19.9F, 97.72F, 0.0102F}}), support::RowName());

// clang-format on

TEST(FindDBRow, FindsEveryRowByItsDecibels)
{
    const DBTable table = BuildDBTable();
    for (const ExpectedDBRow& expected : kExpectedDBRows) {
        const auto row = FindDBRow(table, expected.dB, [] {});
        ASSERT_TRUE(row.has_value()) << expected.dB;
        EXPECT_EQ(row->gainCoefficient, expected.gainCoefficient) << expected.dB;
    }
}

TEST(FindDBRow, NothingOffTheTable)
{
    const DBTable table = BuildDBTable();
    for (const float dB : {-0.1F, -3.0F, 20.0F, 1000.0F, 0.05F, 19.95F}) {
        EXPECT_FALSE(FindDBRow(table, dB, [] {}).has_value()) << dB;
    }
}

TEST(FindDBRow, NothingInATableThatIsNotFilled)
{
    EXPECT_FALSE(FindDBRow(DBTable(), 0.0F, [] {}).has_value());
}

struct StepsRow
{
    const char* name;
    float dB;
    int steps;
};

class SearchSteps : public ::testing::TestWithParam<StepsRow>
{
};

TEST_P(SearchSteps, EachIsReported)
{
    int steps = 0;
    (void)FindDBRow(BuildDBTable(), GetParam().dB, [&steps] { ++steps; });
    EXPECT_EQ(steps, GetParam().steps);
}

// The first middle is 199 / 2 = 99.5, which goes to the even 100.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Bisection, SearchSteps, ::testing::Values(
    StepsRow{"10.0 is the first middle", 10.0F, 1},
    StepsRow{"5.0 is the second, 99 / 2 to the even 50", 5.0F, 2},
    StepsRow{"15.0 is the second, 300 / 2", 15.0F, 2},
    StepsRow{"2.4 is the third, 49 / 2 to the even 24", 2.4F, 3},
    StepsRow{"first row: 100, 50, 24, 12, 6, 2, 0", 0.0F, 7},
    StepsRow{"second row: 100, 50, 24, 12, 6, 2, 0, 1", 0.1F, 8},
    StepsRow{"last row: 100, 150, 175, 188, 194, 197, 198, 199", 19.9F, 8},
    StepsRow{"above the table as many as its last row", 20.0F, 8},
    StepsRow{"below the table as many as its first row", -0.1F, 7}), support::RowName());

// clang-format on

struct GainRow
{
    const char* name;
    float gain;
    const char* gainType;
    float dBd;
};

class CatalogueGain : public ::testing::TestWithParam<GainRow>
{
};

TEST_P(CatalogueGain, BecomesDBd)
{
    EXPECT_EQ(GainToDBd(GetParam().gain, GetParam().gainType), GetParam().dBd);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Gains, CatalogueGain, ::testing::Values(
    GainRow{"dBd stays, 30", 30.0F, "dBd", 3.0F},
    GainRow{"dBi loses 2.15, 30 gives 0.9", 30.0F, "dBi", 0.9F},
    GainRow{"dBi loses 2.15, 71 gives 5.0", 71.0F, "dBi", 5.0F},
    GainRow{"dBi loses 2.15, 82 gives 6.1", 82.0F, "dBi", 6.1F},
    GainRow{"dBi below 2.15 is negative", 0.0F, "dBi", -2.2F},
    GainRow{"dBi of 2.15 is 0", 21.5F, "dBi", 0.0F},
    GainRow{"dBi tie at 2.2 dBi goes up, 0.05 gives 0.1", 22.0F, "dBi", 0.1F},
    GainRow{"negative dBd stays", -12.0F, "dBd", -1.2F},
    GainRow{"dBd is rounded to tenths", 30.5F, "dBd", 3.1F},
    GainRow{"only the first three characters count, dBi", 30.0F, "dBi (free space)", 0.9F},
    GainRow{"only the first three characters count, dBd", 30.0F, "dBdx", 3.0F},
    GainRow{"case counts", 30.0F, "DBI", 3.0F},
    GainRow{"any other type leaves the value", 30.0F, "dB", 3.0F},
    GainRow{"an empty type leaves the value", 30.0F, "", 3.0F}), support::RowName());

// clang-format on

TEST(GainToDBd, ThrowsForWhatIsNoNumber)
{
    EXPECT_THROW((void)GainToDBd(std::numeric_limits<float>::infinity(), "dBd"), ArithmeticError);
    EXPECT_THROW((void)GainToDBd(std::numeric_limits<float>::quiet_NaN(), "dBi"), ArithmeticError);
}

} // namespace
} // namespace quillon::engine
