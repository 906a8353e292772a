#include "engine/scaled_number.h"

#include "engine/mask.h"
#include "engine/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace quillon::engine {
namespace {

/// The text of a number by its digits, which is what the quick way has to give.
std::string ByDigits(Decimal number, int places, const DecimalLayout& layout)
{
    RoundToPlaces(number, places);
    return LayOut(number, layout, ".");
}

std::string Quick(const ScaledNumber& number, const DecimalLayout& layout)
{
    std::string text;
    AppendScaled(text, number, layout, ".");
    return text;
}

/// Compares both ways for a number, in each form that it has a quick way to.
/// @return in how many.
int CompareWays(float value)
{
    int quick = 0;
    if (const ScaledNumber number = ScaleToSevenDigits(value)) {
        const Decimal exact = ExactDecimal(value);
        EXPECT_EQ(Quick(number, {}), ByDigits(exact, 7 - exact.point, {})) << std::bit_cast<std::uint32_t>(value);
        ++quick;
    }
    for (const char* pattern : {"####", "##.0", "##0.00", "#####.##0", "0.0000", "000.0##"}) {
        const Mask mask(pattern);
        if (const ScaledNumber number = ScaleShortest(value, mask.Places())) {
            const std::string text = ByDigits(ShortestDecimal(value), mask.Places(), mask.Layout());
            EXPECT_EQ(Quick(number, mask.Layout()), text) << pattern << ' ' << std::bit_cast<std::uint32_t>(value);
            const float rounded = NumberFromText(text);
            EXPECT_EQ(std::bit_cast<std::uint32_t>(ToFloat(number)), std::bit_cast<std::uint32_t>(rounded)) << text;
            ++quick;
        }
    }
    return quick;
}

TEST(ScaledNumber, QuickWayIsTheWayByDigitsForAnyBits)
{
    // NOLINTNEXTLINE(bugprone-random-generator-seed,cert-msc51-cpp): the same numbers at each run are wanted.
    std::mt19937 chance(1);
    int quick = 0;
    for (int count = 0; count < 20000; ++count) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(chance()));
        quick += std::isfinite(value) ? CompareWays(value) : 0;
    }
    EXPECT_GT(quick, 20000);
}

TEST(ScaledNumber, QuickWayIsTheWayByDigitsAroundHalvesAndPowersOfTen)
{
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    int quick = 0;
    for (const double scale : {1e-4, 1e-3, 1e-2, 1e-1, 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7}) {
        for (int halves = 1; halves < 300; ++halves) {
            const auto value = static_cast<float>(scale * halves / 2);
            quick += CompareWays(value);
            quick += CompareWays(std::nextafter(-value, kInfinite));
            quick += CompareWays(std::nextafter(value, kInfinite));
        }
    }
    EXPECT_GT(quick, 40000);
}

TEST(ScaledNumber, ThereIsAQuickWayForEverydayNumbers)
{
    for (const float value : {0.0F, 0.00652F, 1.31F, -3.29F, 74.13F, 1500.0F, 41943.04F}) {
        EXPECT_TRUE(ScaleShortest(value, 2)) << value;
        EXPECT_TRUE(ScaleToSevenDigits(value)) << value;
    }
}

TEST(ScaledNumber, ThereIsNoneWhereItIsNotCertain)
{
    EXPECT_FALSE(ScaleShortest(0.35F, 1)) << "the float lies below the half that its digits are";
    EXPECT_FALSE(ScaleShortest(2.5F, 0)) << "a half";
    EXPECT_FALSE(ScaleShortest(9e6F, 0));
    EXPECT_FALSE(ScaleShortest(1.0F, 11));
    EXPECT_FALSE(ScaleToSevenDigits(1e6F));
    EXPECT_FALSE(ScaleToSevenDigits(0.0009F));
    for (const float value : {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        EXPECT_FALSE(ScaleShortest(value, 2));
        EXPECT_FALSE(ScaleToSevenDigits(value));
    }
}

TEST(AppendScaled, WritesBehindWhatIsThereAndTakesAnySeparator)
{
    std::string text = "x";
    AppendScaled(text, {-12345, 2}, {}, "<>");
    EXPECT_EQ(text, "x-123<>45");
}

TEST(AppendScaled, WritesCountsOnBothSidesOfAPowerOfTen)
{
    EXPECT_EQ(Quick({9, 0}, {}), "9");
    EXPECT_EQ(Quick({10, 0}, {}), "10");
    EXPECT_EQ(Quick({9999999, 0}, {}), "9999999");
    EXPECT_EQ(Quick({10000000, 0}, {}), "10000000");
}

TEST(AppendScaled, WritesTheLongestCount)
{
    EXPECT_EQ(Quick({16777216, 0}, {}), "16777216");
    EXPECT_EQ(Quick({-16777216, 8}, {}), "-0.16777216");
}

} // namespace
} // namespace quillon::engine
