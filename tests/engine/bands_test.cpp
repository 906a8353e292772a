#include "engine/bands.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>

namespace quillon::engine {
namespace {

struct BandRow
{
    const char* name;
    int position;
    float frequency;
    int index;
};

class BandList : public ::testing::TestWithParam<BandRow>
{
};

TEST_P(BandList, NameStandsAtItsPosition)
{
    EXPECT_EQ(BandNames().at(static_cast<std::size_t>(GetParam().position)), GetParam().name);
}

TEST_P(BandList, PositionGivesTheFrequencyAndTheReversedIndex)
{
    const BandFrequencyRow row = BandFrequency(GetParam().position);
    EXPECT_EQ(row.frequency, GetParam().frequency);
    EXPECT_EQ(row.index, GetParam().index);
}

TEST_P(BandList, NameGivesTheFrequency)
{
    EXPECT_EQ(FrequencyForBand(GetParam().name), GetParam().frequency);
}

INSTANTIATE_TEST_SUITE_P(Bands, BandList,
                         ::testing::Values(BandRow{".70 Meters", 0, 432.1F, 13}, BandRow{"1.25 Meters", 1, 222.1F, 12},
                                           BandRow{"2 Meters", 2, 144.2F, 11}, BandRow{"6 Meters", 3, 50.125F, 10},
                                           BandRow{"10 Meters", 4, 28.5F, 9}, BandRow{"12 Meters", 5, 24.95F, 8},
                                           BandRow{"15 Meters", 6, 21.225F, 7}, BandRow{"17 Meters", 7, 18.14F, 6},
                                           BandRow{"20 Meters", 8, 14.25F, 5}, BandRow{"30 Meters", 9, 10.125F, 4},
                                           BandRow{"40 Meters", 10, 7.23F, 3}, BandRow{"60 Meters", 11, 5.368F, 2},
                                           BandRow{"80 Meters", 12, 3.85F, 1}, BandRow{"160 Meters", 13, 1.9F, 0}),
                         support::RowName());

TEST(BandFrequency, AnyOtherPositionIsARangeError)
{
    for (const int position : {-1, 14, INT_MIN, INT_MAX}) {
        EXPECT_THROW((void)BandFrequency(position), std::out_of_range) << position;
    }
}

TEST(FrequencyForBand, LetterCaseDoesNotCount)
{
    EXPECT_EQ(FrequencyForBand("20 meters"), 14.25F);
    EXPECT_EQ(FrequencyForBand("160 METERS"), 1.9F);
}

TEST(FrequencyForBand, UnknownNamesGiveZero)
{
    for (const char* name : {"", "11 Meters", "20", "20 Meters ", "0 Meters"}) {
        EXPECT_EQ(FrequencyForBand(name), 0.0F) << name;
    }
}

} // namespace
} // namespace quillon::engine
