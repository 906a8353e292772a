#include "engine/decimal.h"

#include "engine/arithmetic_error.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::engine {
namespace {

TEST(ShortestDecimal, TakesTheFewestDigitsThatReadBack)
{
    const Decimal number = ShortestDecimal(-0.35F);
    EXPECT_TRUE(number.negative);
    EXPECT_EQ(number.digits, "35");
    EXPECT_EQ(number.point, 0);
}

TEST(ShortestDecimal, ZeroHasNoDigitsAndNoSign)
{
    for (const float zero : {0.0F, -0.0F}) {
        const Decimal number = ShortestDecimal(zero);
        EXPECT_FALSE(number.negative);
        EXPECT_EQ(number.digits, "");
        EXPECT_EQ(number.point, 0);
    }
}

TEST(ShortestDecimal, PointCountsTheDigitsBeforeIt)
{
    EXPECT_EQ(ShortestDecimal(1e30F).point, 31);
    EXPECT_EQ(ShortestDecimal(14.25F).point, 2);
    EXPECT_EQ(ShortestDecimal(0.0052F).point, -2);
}

TEST(ExactDecimal, HasAllDigitsOfTheFloat)
{
    EXPECT_EQ(ExactDecimal(0.1F).digits, "100000001490116119384765625");
    EXPECT_EQ(ExactDecimal(0.1F).point, 0);
}

TEST(ExactDecimal, HoldsTheLongestFloats)
{
    EXPECT_EQ(ExactDecimal(1.17549421e-38F).digits.size(), 112U) << "the longest of all";
    EXPECT_EQ(ExactDecimal(std::numeric_limits<float>::denorm_min()).digits.size(), 105U);
    EXPECT_EQ(ExactDecimal(std::numeric_limits<float>::max()).digits, "34028234663852885981170418348451692544");
}

TEST(Decimal, ThereIsNoneForInfinityAndNoNumber)
{
    for (const float value : {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        EXPECT_THROW((void)ShortestDecimal(value), ArithmeticError);
        EXPECT_THROW((void)ExactDecimal(value), ArithmeticError);
    }
}

TEST(RoundToPlaces, CountsPlacesLeftOfThePointToo)
{
    Decimal number{false, "1365", 4};
    RoundToPlaces(number, -1);
    EXPECT_EQ(LayOut(number, {}, "."), "1370");
    RoundToPlaces(number, -3);
    EXPECT_EQ(LayOut(number, {}, "."), "1000");
}

TEST(RoundToPlaces, DropsTheSignOfAVanishingNumber)
{
    Decimal number{true, "4", -1};
    RoundToPlaces(number, 1);
    EXPECT_FALSE(number.negative);
    EXPECT_EQ(LayOut(number, {}, "."), "0");
}

} // namespace
} // namespace quillon::engine
