#include "engine/mask.h"

#include "engine/arithmetic_error.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quillon::engine {
namespace {

struct Row
{
    const char* name;
    float value;
    const char* mask;
    const char* text;
};

class FormatWithMaskRow : public ::testing::TestWithParam<Row>
{
};

TEST_P(FormatWithMaskRow, GivesTheText)
{
    const Row& row = GetParam();
    EXPECT_EQ(FormatWithMask(row.value, row.mask), row.text);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rounding, FormatWithMaskRow, ::testing::Values(
    Row{"half goes away from zero, judged on decimal digits", 0.35F, "0.0", "0.4"},
    Row{"half of a negative goes away from zero", -0.35F, "0.0", "-0.4"},
    Row{"float just below a half is a half in digits", 2.675F, "0.00", "2.68"},
    Row{"half to odd and even alike, 2.5", 2.5F, "####", "3"},
    Row{"half to odd and even alike, 3.5", 3.5F, "####", "4"},
    Row{"below half goes down", 2.4499998F, "0.0", "2.4"},
    Row{"no second rounding after 3.2749999", 3.2749999F, "##0.00", "3.27"},
    Row{"nines carry into a new digit", 9.96F, "0.0", "10.0"},
    Row{"nines carry through the point", 999.995F, "##0.00", "1000.00"},
    Row{"half of the last place becomes one", 0.005F, "##0.00", "0.01"},
    Row{"less than half of the last place vanishes", 0.0049F, "##0.00", "0.00"},
    Row{"far below the last place vanishes", 0.0009F, "0.0", "0.0"},
    Row{"far below the last place vanishes, nines too", 0.0999F, "####", ""},
    Row{"half becomes one where nothing was shown", 0.5F, "####", "1"}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Layout, FormatWithMaskRow, ::testing::Values(
    Row{"required digits fill up on the left", 5.0F, "##000.00", "005.00"},
    Row{"required digits do not cut", 12345.678F, "##000.00", "12345.68"},
    Row{"optional whole digits vanish, 0.3", 0.3F, "##.0", ".3"},
    Row{"optional whole digits vanish, 0", 0.0F, "##.0", ".0"},
    Row{"optional whole digits vanish, negative", -0.3F, "##.0", "-.3"},
    Row{"all optional, 0 is empty", 0.0F, "####", ""},
    Row{"all optional, a whole number", 1500.0F, "####", "1500"},
    Row{"all optional, more digits than the mask has", 123456.0F, "####", "123456"},
    Row{"required zero before the point", 0.0F, "##0.00", "0.00"},
    Row{"two required digits", 5.0F, "##00.0", "05.0"},
    Row{"required last place holds the ones before it, 14.25", 14.25F, "#####.##0", "14.250"},
    Row{"required last place holds the ones before it, 7", 7.0F, "#####.##0", "7.000"},
    Row{"required last place with nothing before the point", 0.0F, "#####.##0", ".000"},
    Row{"optional places vanish when zero", 1.5F, "0.0##", "1.5"},
    Row{"optional places show when significant", 1.125F, "0.0##", "1.125"},
    Row{"the point stays where all places vanish", 3.0F, "0.##", "3."},
    Row{"a point at the end stays", 3.0F, "0.", "3."},
    Row{"trailing zeros of a whole number stay", 1000.0F, "####0.00", "1000.00"}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Signs, FormatWithMaskRow, ::testing::Values(
    Row{"negative value", -3.29F, "##0.00", "-3.29"},
    Row{"rounded to zero has no sign", -0.004F, "##0.00", "0.00"},
    Row{"minus zero has no sign", -0.0F, "##0.00", "0.00"}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Extremes, FormatWithMaskRow, ::testing::Values(
    Row{"large value without exponent", 1e30F, "####0.00", "1000000000000000000000000000000.00"},
    Row{"largest float in its shortest digits", std::numeric_limits<float>::max(), "####",
        "340282350000000000000000000000000000000"},
    Row{"tiny value is zero", 1e-30F, "0.0000", "0.0000"},
    Row{"smallest float is zero", std::numeric_limits<float>::denorm_min(), "####", ""}), support::RowName());

INSTANTIATE_TEST_SUITE_P(MasksInUse, FormatWithMaskRow, ::testing::Values(
    Row{"ERP", 10241.33F, "#####0.00", "10241.33"},
    Row{"watts", 74.13F, "####0.00", "74.13"},
    Row{"system gain", 3.68F, "##0.00", "3.68"},
    Row{"antenna gain", 5.0F, "#0.00", "5.00"},
    Row{"mismatch dB", 0.03532F, "0.0000", "0.0353"},
    Row{"search value", 1.31F, "##0.0", "1.3"},
    Row{"dB column", 19.9F, "#0.000", "19.900"},
    Row{"loss column", 0.5012531F, "#0.0000", "0.5013"},
    Row{"gain in dBd", 0.85F, "#0.0", "0.9"},
    Row{"band frequency", 432.1F, "###0.000", "432.100"},
    Row{"standing-wave ratio from the spin controls", 8.9F, "##.00", "8.90"},
    Row{"frequency box", 432.1F, "#####.##0", "432.100"}), support::RowName());

// clang-format on

TEST(FormatWithMask, UsesTheSeparatorGiven)
{
    EXPECT_EQ(FormatWithMask(1234.5F, "####0.00", ","), "1234,50");
    EXPECT_EQ(FormatWithMask(0.3F, "##.0", ","), ",3");
    EXPECT_EQ(FormatWithMask(1.5F, "0.0", "\xD9\xAB"), "1\xD9\xAB"
                                                       "5")
        << "a separator may have several bytes";
}

TEST(FormatWithMask, ThrowsForWhatIsNoNumber)
{
    EXPECT_THROW((void)FormatWithMask(std::numeric_limits<float>::infinity(), "0.0"), ArithmeticError);
    EXPECT_THROW((void)FormatWithMask(std::numeric_limits<float>::quiet_NaN(), "0.0"), ArithmeticError);
}

TEST(RoundWithMask, ReadsTheMaskedTextBack)
{
    EXPECT_EQ(RoundWithMask(3.67696F, "##0.00"), 3.68F);
    EXPECT_EQ(RoundWithMask(0.3F, "##.0"), 0.3F);
    EXPECT_EQ(RoundWithMask(-1.42304F, "##0.00"), -1.42F);
    EXPECT_EQ(RoundWithMask(std::numeric_limits<float>::max(), "####"), std::numeric_limits<float>::max());
}

TEST(RoundWithMask, AnEmptyTextIsZero)
{
    EXPECT_EQ(RoundWithMask(0.2F, "####"), 0.0F);
}

TEST(RoundWithMask, ZeroCarriesNoSign)
{
    EXPECT_FALSE(std::signbit(RoundWithMask(-0.004F, "##0.00")));
}

TEST(RoundWithMask, ThrowsForWhatIsNoNumber)
{
    EXPECT_THROW((void)RoundWithMask(-std::numeric_limits<float>::infinity(), "0.0"), ArithmeticError);
}

} // namespace
} // namespace quillon::engine
