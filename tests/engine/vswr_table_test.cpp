#include "engine/vswr_table.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quillon::engine {
namespace {

struct StepRow
{
    const char* name;
    std::size_t index;
    float vswr;
    float factor;
    float lossDB;
};

class VSWRStep : public ::testing::TestWithParam<StepRow>
{
};

TEST_P(VSWRStep, StandsInItsRow)
{
    const VSWRRow row = BuildVSWRTable().at(GetParam().index);
    EXPECT_EQ(row.vswr, GetParam().vswr);
    EXPECT_EQ(row.factor, GetParam().factor);
    EXPECT_EQ(row.lossDB, GetParam().lossDB);
}

TEST_P(VSWRStep, IsFoundByItsRatio)
{
    const VSWRTable table = BuildVSWRTable();
    const auto row = FindVSWRRow(table, GetParam().vswr);
    ASSERT_TRUE(row.has_value());
    EXPECT_EQ(*row, table.at(GetParam().index));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Steps, VSWRStep, ::testing::Values(
    StepRow{"1.0 passes all power", 0, 1.0F, 1.0F, 0.010F},
    StepRow{"1.1 equals 1.0, as given", 1, 1.1F, 1.0F, 0.010F},
    StepRow{"1.2", 2, 1.2F, 0.9997F, 0.03532F},
    StepRow{"1.3", 3, 1.3F, 0.9920F, 0.0750F},
    StepRow{"1.4", 4, 1.4F, 0.9829F, 0.1126F},
    StepRow{"1.5", 5, 1.5F, 0.9744F, 0.1173F},
    StepRow{"1.6", 6, 1.6F, 0.9600F, 0.2500F},
    StepRow{"1.7", 7, 1.7F, 0.9442F, 0.3040F},
    StepRow{"1.8", 8, 1.8F, 0.9341F, 0.3546F},
    StepRow{"1.9", 9, 1.9F, 0.9217F, 0.4576F},
    StepRow{"2.0", 10, 2.0F, 0.9000F, 0.5115F},
    StepRow{"2.1", 11, 2.1F, 0.8882F, 0.5821F},
    StepRow{"2.2", 12, 2.2F, 0.8751F, 0.6773F},
    StepRow{"2.3", 13, 2.3F, 0.8670F, 0.7500F},
    StepRow{"2.4", 14, 2.4F, 0.8415F, 0.8428F},
    StepRow{"2.5", 15, 2.5F, 0.8204F, 0.8814F},
    StepRow{"2.6 passes more than 2.5, as given", 16, 2.6F, 0.8280F, 0.9645F},
    StepRow{"2.7", 17, 2.7F, 0.8054F, 1.0500F},
    StepRow{"2.8", 18, 2.8F, 0.7943F, 1.1300F},
    StepRow{"2.9", 19, 2.9F, 0.7762F, 1.2110F},
    StepRow{"3.0", 20, 3.0F, 0.7586F, 1.2454F},
    StepRow{"3.1 passes as much as 3.0, as given", 21, 3.1F, 0.7586F, 1.3200F},
    StepRow{"3.2", 22, 3.2F, 0.7413F, 1.4000F},
    StepRow{"3.3", 23, 3.3F, 0.7244F, 1.4500F},
    StepRow{"3.4", 24, 3.4F, 0.7162F, 1.5000F},
    StepRow{"3.5", 25, 3.5F, 0.7079F, 1.5500F},
    StepRow{"3.6 passes more than 3.5, as given", 26, 3.6F, 0.7159F, 1.6800F},
    StepRow{"3.7", 27, 3.7F, 0.6841F, 1.7100F},
    StepRow{"3.8", 28, 3.8F, 0.6761F, 1.8000F},
    StepRow{"3.9", 29, 3.9F, 0.6607F, 1.8900F}), support::RowName());

// clang-format on

TEST(FindVSWRRow, NothingOffTheTable)
{
    const VSWRTable table = BuildVSWRTable();
    for (const float vswr : {0.0F, 0.9F, 4.0F, 1.05F, -1.0F, 1.54F, 100.0F}) {
        EXPECT_FALSE(FindVSWRRow(table, vswr).has_value()) << vswr;
    }
}

TEST(FindVSWRRow, TheNearestFloatIsNoMatch)
{
    const VSWRTable table = BuildVSWRTable();
    EXPECT_FALSE(FindVSWRRow(table, std::nextafter(1.1F, 2.0F)).has_value());
    EXPECT_FALSE(FindVSWRRow(table, std::nextafter(1.1F, 1.0F)).has_value());
}

TEST(FindVSWRRow, NothingInATableThatIsNotFilled)
{
    const VSWRTable table;
    EXPECT_FALSE(FindVSWRRow(table, 0.0F).has_value());
    EXPECT_FALSE(FindVSWRRow(table, 1.0F).has_value());
    EXPECT_FALSE(FindVSWRRow(table, std::numeric_limits<float>::quiet_NaN()).has_value());
}

} // namespace
} // namespace quillon::engine
