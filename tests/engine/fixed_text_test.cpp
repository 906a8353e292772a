#include "engine/fixed_text.h"

#include <gtest/gtest.h>

namespace quillon::engine {
namespace {

TEST(FixedText, StartsBlank)
{
    const FixedText<5> text;
    EXPECT_EQ(text.Padded(), "     ");
    EXPECT_EQ(text.Trimmed(), "");
}

TEST(FixedText, LongerTextsAreCutToTheWidth)
{
    FixedText<15> text;
    text = "TIMES MICROWAVE SYSTEMS";
    EXPECT_EQ(text.Padded(), "TIMES MICROWAVE");
    EXPECT_EQ(text.Trimmed(), "TIMES MICROWAVE");
}

TEST(FixedText, ShorterTextsArePaddedAndReadBackTrimmed)
{
    FixedText<8> text;
    text = "RG-8X";
    EXPECT_EQ(text.Padded(), "RG-8X   ");
    EXPECT_EQ(text.Trimmed(), "RG-8X");
}

TEST(FixedText, ATextOfTheWidthStandsAsItIs)
{
    FixedText<5> text;
    text = "RG-8X";
    EXPECT_EQ(text.Padded(), "RG-8X");
}

TEST(FixedText, AShorterTextLeavesNothingOfALongerOne)
{
    FixedText<8> text;
    text = "LMR-400";
    text = "RG-8";
    EXPECT_EQ(text.Padded(), "RG-8    ");
}

TEST(FixedText, TrimmingTakesTheBlanksAroundOnly)
{
    FixedText<10> text;
    text = "  a b";
    EXPECT_EQ(text.Trimmed(), "a b");
}

TEST(FixedText, EqualWhenAllCharactersAre)
{
    FixedText<5> one;
    FixedText<5> two;
    one = "RG-8";
    two = "RG-8 ";
    EXPECT_EQ(one, two);
    two = "RG-9";
    EXPECT_NE(one, two);
}

} // namespace
} // namespace quillon::engine
