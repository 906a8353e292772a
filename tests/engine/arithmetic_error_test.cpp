#include "engine/arithmetic_error.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::engine {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

TEST(Checked, PassesFiniteValuesOn)
{
    EXPECT_EQ(Checked(kLargest), kLargest);
    EXPECT_EQ(Checked(-1.5F), -1.5F);
}

TEST(Checked, ThrowsForInfinitiesAndNoNumber)
{
    EXPECT_THROW((void)Checked(std::numeric_limits<float>::infinity()), ArithmeticError);
    EXPECT_THROW((void)Checked(-std::numeric_limits<float>::infinity()), ArithmeticError);
    EXPECT_THROW((void)Checked(std::numeric_limits<float>::quiet_NaN()), ArithmeticError);
}

TEST(StoreAsFloat, RoundsOnceTo32Bits)
{
    EXPECT_EQ(StoreAsFloat(0.1), 0.1F);
    EXPECT_EQ(StoreAsFloat(16777217.0), 16777216.0F);
}

TEST(StoreAsFloat, ThrowsForWhatNoFloatHolds)
{
    EXPECT_THROW((void)StoreAsFloat(1e39), ArithmeticError);
    EXPECT_THROW((void)StoreAsFloat(-1e39), ArithmeticError);
    EXPECT_THROW((void)StoreAsFloat(std::numeric_limits<double>::quiet_NaN()), ArithmeticError);
}

} // namespace
} // namespace quillon::engine
