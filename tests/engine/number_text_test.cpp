#include "engine/number_text.h"

#include "engine/arithmetic_error.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::engine {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

struct TextRow
{
    const char* name;
    float value;
    const char* plain;
    const char* shortest;
};

class TextOfNumber : public ::testing::TestWithParam<TextRow>
{
};

TEST_P(TextOfNumber, PlainHasSevenDigits)
{
    EXPECT_EQ(PlainText(GetParam().value), GetParam().plain);
}

TEST_P(TextOfNumber, ShortestReadsBack)
{
    EXPECT_EQ(ShortestText(GetParam().value), GetParam().shortest);
    EXPECT_EQ(NumberFromText(GetParam().shortest), GetParam().value);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, TextOfNumber, ::testing::Values(
    TextRow{"whole", 100.0F, "100", "100"},
    TextRow{"one place", 14.2F, "14.2", "14.2"},
    TextRow{"leading zero", 0.5F, "0.5", "0.5"},
    TextRow{"zero", 0.0F, "0", "0"},
    TextRow{"minus zero has no sign", -0.0F, "0", "0"},
    TextRow{"negative", -3.29F, "-3.29", "-3.29"},
    TextRow{"negative below one", -0.1F, "-0.1", "-0.1"},
    TextRow{"the two forms differ", 97.72F * 1.1F, "107.492", "107.492004"},
    TextRow{"eight digits", 16777.217F, "16777.22", "16777.217"},
    TextRow{"nines carry to the left", 129999.97F, "130000", "129999.97"},
    TextRow{"tie in the eighth digit goes away from zero, from even", 1048576.5F, "1048577", "1048576.5"},
    TextRow{"tie in the eighth digit goes away from zero, from odd", 1048577.5F, "1048578", "1048577.5"},
    TextRow{"negative tie goes away from zero", -1048576.5F, "-1048577", "-1048576.5"},
    TextRow{"tie beyond seven whole digits", 16777216.0F, "16777220", "16777216"},
    TextRow{"tie in a whole number's last digit", 10000005.0F, "10000010", "10000005"},
    TextRow{"no tie when the float lies below it, 0.12345675", 0.12345675F, "0.1234567", "0.12345675"},
    TextRow{"no trailing zeros", 234.39906F, "234.3991", "234.39906"},
    TextRow{"rounding leaves trailing zeros that go", 160.26904F, "160.269", "160.26904"},
    TextRow{"large without exponent", 1e30F, "1000000000000000000000000000000", "1000000000000000000000000000000"},
    TextRow{"small without exponent", 1e-20F, "0.00000000000000000001", "0.00000000000000000001"},
    TextRow{"largest", kLargest, "340282300000000000000000000000000000000",
            "340282350000000000000000000000000000000"},
    TextRow{"power of two above all whole floats", 4294967296.0F, "4294967000", "4294967300"}), support::RowName());

// clang-format on

TEST(PlainText, UsesTheSeparatorGiven)
{
    EXPECT_EQ(PlainText(-1.5F, ","), "-1,5");
    EXPECT_EQ(PlainText(15.0F, ","), "15");
}

TEST(ShortestText, UsesTheSeparatorGiven)
{
    EXPECT_EQ(ShortestText(-1.5F, ","), "-1,5");
}

TEST(TextOfNumber, ThereIsNoneForInfinityAndNoNumber)
{
    for (const float value : {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        EXPECT_THROW((void)PlainText(value), ArithmeticError);
        EXPECT_THROW((void)ShortestText(value), ArithmeticError);
    }
}

struct ReadRow
{
    const char* name;
    const char* text;
    float value;
};

class NumberFromTextRow : public ::testing::TestWithParam<ReadRow>
{
};

TEST_P(NumberFromTextRow, IsRead)
{
    EXPECT_EQ(NumberFromText(GetParam().text), GetParam().value);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Numbers, NumberFromTextRow, ::testing::Values(
    ReadRow{"whole", "100", 100.0F},
    ReadRow{"places", "14.250", 14.25F},
    ReadRow{"no whole part", ".3", 0.3F},
    ReadRow{"no places after the point", "3.", 3.0F},
    ReadRow{"minus", "-0.5", -0.5F},
    ReadRow{"plus", "+7.1", 7.1F},
    ReadRow{"minus before a point", "-.3", -0.3F},
    ReadRow{"blanks and tabs before it", " \t 3.7", 3.7F},
    ReadRow{"exponent", "1.5e3", 1500.0F},
    ReadRow{"capital exponent", "15E-1", 1.5F},
    ReadRow{"digits beyond a float round once", "0.100000001490116119384765625001", 0.1F}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Stops, NumberFromTextRow, ::testing::Values(
    ReadRow{"at a unit", "3.7 dB", 3.7F},
    ReadRow{"at a second point", "1.2.3", 1.2F},
    ReadRow{"at a comma", "1,5", 1.0F},
    ReadRow{"at an exponent without digits", "2e", 2.0F},
    ReadRow{"at a letter", "12abc", 12.0F}), support::RowName());

INSTANTIATE_TEST_SUITE_P(NoNumbers, NumberFromTextRow, ::testing::Values(
    ReadRow{"empty", "", 0.0F},
    ReadRow{"blanks", "   ", 0.0F},
    ReadRow{"word", "abc", 0.0F},
    ReadRow{"point alone", ".", 0.0F},
    ReadRow{"sign alone", "-", 0.0F},
    ReadRow{"two signs", "--1", 0.0F},
    ReadRow{"minus after plus", "+-1", 0.0F},
    ReadRow{"two points", "..5", 0.0F},
    ReadRow{"letter before the digits", "x1", 0.0F},
    ReadRow{"point before a letter", ".x1", 0.0F},
    ReadRow{"infinity", "inf", 0.0F},
    ReadRow{"no number by name", "nan", 0.0F},
    ReadRow{"negative infinity", "-infinity", 0.0F}), support::RowName());

INSTANTIATE_TEST_SUITE_P(OutOfRange, NumberFromTextRow, ::testing::Values(
    ReadRow{"too large by exponent", "1e39", kLargest},
    ReadRow{"too large and negative", "-1e39", -kLargest},
    ReadRow{"too large with a plus in the exponent", "1E+400", kLargest},
    ReadRow{"too large by digits", "1000000000000000000000000000000000000000", kLargest},
    ReadRow{"too large by digits, before a number that is not its exponent",
            "1000000000000000000000000000000000000000-99", kLargest},
    ReadRow{"too large though it starts with zeros", "0.001e60", kLargest},
    ReadRow{"too large with an endless exponent", "1e99999999999999999999", kLargest},
    ReadRow{"too small by exponent", "1e-60", 0.0F},
    ReadRow{"too small by places", "0.0000000000000000000000000000000000000000000000000001", 0.0F},
    ReadRow{"too small though it starts with digits", "123.4e-400", 0.0F},
    ReadRow{"too small with an endless exponent", "1e-99999999999999999999", 0.0F},
    ReadRow{"zero with an exponent", "0e999", 0.0F}), support::RowName());

// clang-format on

TEST(ReadNumber, TellsZeroFromATextThatStartsWithNoNumber)
{
    EXPECT_EQ(ReadNumber("0"), 0.0F);
    EXPECT_EQ(ReadNumber(" -7.5 dBd"), -7.5F);
    EXPECT_EQ(ReadNumber(""), std::nullopt);
    EXPECT_EQ(ReadNumber("dBd"), std::nullopt);
    EXPECT_EQ(ReadNumber("-"), std::nullopt);
}

TEST(NumberFromText, ReadsNoFurtherThanItsText)
{
    const std::string_view text("12345");
    EXPECT_EQ(NumberFromText(text.substr(0, 2)), 12.0F);
}

struct IntegerRow
{
    const char* name;
    double value;
    int integer;
};

class ToIntegerRow : public ::testing::TestWithParam<IntegerRow>
{
};

TEST_P(ToIntegerRow, IsNearest)
{
    EXPECT_EQ(ToInteger(GetParam().value), GetParam().integer);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, ToIntegerRow, ::testing::Values(
    IntegerRow{"half below goes to even", 0.5, 0},
    IntegerRow{"half above goes to even", 1.5, 2},
    IntegerRow{"half of a negative goes to even", -2.5, -2},
    IntegerRow{"nearest", 2.51, 3},
    IntegerRow{"largest", 32767.0, 32767},
    IntegerRow{"judged after rounding, largest", 32767.4, 32767},
    IntegerRow{"smallest", -32768.0, -32768},
    IntegerRow{"judged after rounding, smallest half", -32768.5, -32768}), support::RowName());

// clang-format on

TEST(ToInteger, ThrowsForWhat16BitsCannotHold)
{
    for (const double value : {32767.5, 32768.0, -32768.6, 1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW((void)ToInteger(value), ArithmeticError) << value;
    }
}

} // namespace
} // namespace quillon::engine
