#include "engine/spin_conversions.h"

#include "engine/arithmetic_error.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace quillon::engine {
namespace {

struct SpinRow
{
    const char* name;
    SpinValue (*convert)(float);
    float position;
    float value;
    float unrounded;
};

class SpinConversion : public ::testing::TestWithParam<SpinRow>
{
};

TEST_P(SpinConversion, GivesBothValues)
{
    const SpinValue spin = GetParam().convert(GetParam().position);
    EXPECT_EQ(spin.value, GetParam().value);
    EXPECT_EQ(spin.unrounded, GetParam().unrounded);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(CoaxLength, SpinConversion, ::testing::Values(
    SpinRow{"starting position is 100 ft", SpinToCoaxLength, 3400.0F, 100.0F, 100.0F},
    SpinRow{"highest position is 0 ft", SpinToCoaxLength, 3500.0F, 0.0F, 0.0F},
    SpinRow{"lowest position is 3499 ft", SpinToCoaxLength, 1.0F, 3499.0F, 3499.0F},
    SpinRow{"length is rounded to tenths", SpinToCoaxLength, 3499.75F, 0.3F, 0.25F}), support::RowName());

INSTANTIATE_TEST_SUITE_P(AntennaGain, SpinConversion, ::testing::Values(
    SpinRow{"gain counts down from 10 dB", SpinToAntennaGain, 1.0F, 9.0F, 9.0F},
    SpinRow{"negative position is above 10 dB", SpinToAntennaGain, -20.0F, 30.0F, 30.0F},
    SpinRow{"gain of 0 dB", SpinToAntennaGain, 10.0F, 0.0F, 0.0F},
    SpinRow{"gain is rounded to tenths", SpinToAntennaGain, 9.75F, 0.3F, 0.25F}), support::RowName());

INSTANTIATE_TEST_SUITE_P(VSWR, SpinConversion, ::testing::Values(
    SpinRow{"starting positions are 1.1", SpinToVSWR, 8.9F, 1.1F, 10.0F - 8.9F},
    SpinRow{"lowest ratio is 1.0", SpinToVSWR, 9.0F, 1.0F, 1.0F},
    SpinRow{"highest ratio is 3.9", SpinToVSWR, 6.1F, 3.9F, 10.0F - 6.1F},
    SpinRow{"ratio is rounded to hundredths", SpinToVSWR, 8.875F, 1.13F, 1.125F}), support::RowName());

INSTANTIATE_TEST_SUITE_P(OutputPower, SpinConversion, ::testing::Values(
    SpinRow{"starting position is 100 W", SpinToOutputPower, 1400.0F, 100.0F, 100.0F},
    SpinRow{"one click up is 110 W", SpinToOutputPower, 1390.0F, 110.0F, 110.0F},
    SpinRow{"fine click is 1 W", SpinToOutputPower, 1401.0F, 99.0F, 99.0F},
    SpinRow{"lowest positions are 1511 W", SpinToOutputPower, -11.0F, 1511.0F, 1511.0F},
    SpinRow{"0 W becomes 1 W", SpinToOutputPower, 1500.0F, 1.0F, 1.0F},
    SpinRow{"less than 0 W becomes 1 W", SpinToOutputPower, 1648.9F, 1.0F, 1.0F},
    SpinRow{"power is rounded to whole watts", SpinToOutputPower, 1400.5F, 100.0F, 99.5F},
    SpinRow{"what rounds to 0 W becomes 1 W and keeps its unrounded value", SpinToOutputPower, 1499.75F, 1.0F, 0.25F}),
    support::RowName());

// clang-format on

TEST(SpinConversion, OverflowThrows)
{
    constexpr float kLargest = std::numeric_limits<float>::max();
    EXPECT_EQ(SpinToCoaxLength(-kLargest).unrounded, kLargest) << "3500 is lost beside so large a number";
    EXPECT_THROW((void)SpinToOutputPower(-std::numeric_limits<float>::infinity()), ArithmeticError);
    EXPECT_THROW((void)SpinToVSWR(std::numeric_limits<float>::quiet_NaN()), ArithmeticError);
}

TEST(SpinToConnectors, CountsDownFrom25)
{
    EXPECT_EQ(SpinToConnectors(23), 2);
    EXPECT_EQ(SpinToConnectors(25), 0);
    EXPECT_EQ(SpinToConnectors(1), 24);
    EXPECT_EQ(SpinToConnectors(26), -1);
}

TEST(SpinToConnectors, ThrowsForWhat16BitsCannotHold)
{
    EXPECT_EQ(SpinToConnectors(-32742), 32767);
    EXPECT_EQ(SpinToConnectors(32793), -32768);
    for (const int position : {-32743, 32794, INT_MIN, INT_MAX}) {
        EXPECT_THROW((void)SpinToConnectors(position), ArithmeticError) << position;
    }
}

TEST(RoundTenths, RoundsTheValueItself)
{
    EXPECT_EQ(RoundTenths(0.0F), 0.0F);
    EXPECT_EQ(RoundTenths(0.25F), 0.3F);
    EXPECT_EQ(RoundTenths(-1.06F), -1.1F);
}

} // namespace
} // namespace quillon::engine
