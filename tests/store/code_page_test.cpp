#include "store/code_page.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

namespace quillon::store {
namespace {

using namespace std::string_literals;

struct Row
{
    const char* name;
    std::string bytes;
    std::string utf8;
};

class CodePageRow : public ::testing::TestWithParam<Row>
{
};

TEST_P(CodePageRow, ConvertsBothWays)
{
    EXPECT_EQ(ToUtf8(GetParam().bytes), GetParam().utf8);
    EXPECT_EQ(FromUtf8(GetParam().utf8), GetParam().bytes);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, CodePageRow, ::testing::Values(
    Row{"empty", "", ""},
    Row{"ASCII", "Az 09~", "Az 09~"},
    Row{"NUL and controls", "\0\x1F\x7F"s, "\0\x1F\x7F"s},
    Row{"no-break space", "\xA0", "\u00A0"},
    Row{"Latin letters", "M\xFChle \xC9t\xE9 \xFF", "Mühle Été ÿ"},
    Row{"row 80 to 87 less 81", "\x80\x82\x83\x84\x85\x86\x87", "€‚ƒ„…†‡"},
    Row{"row 88 to 8E less 8D", "\x88\x89\x8A\x8B\x8C\x8E", "ˆ‰Š‹ŒŽ"},
    Row{"row 91 to 97", "\x91\x92\x93\x94\x95\x96\x97", "‘’“”•–—"},
    Row{"row 98 to 9F less 9D", "\x98\x99\x9A\x9B\x9C\x9E\x9F", "˜™š›œžŸ"},
    Row{"undefined bytes pass through", "\x81\x8D\x8F\x90\x9D",
        "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"}), support::RowName());

// clang-format on

TEST(CodePage, GivesEveryByteBack)
{
    std::string all;
    for (int code = 0; code < 256; ++code) {
        all.push_back(static_cast<char>(code));
    }
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(CodePage, BytesFromA0OnAreTheCharactersOfTheirCode)
{
    for (int code = 0xA0; code < 0xC0; ++code) {
        EXPECT_EQ(ToUtf8(std::string(1, static_cast<char>(code))), std::string("\xC2") + static_cast<char>(code))
            << code;
    }
    for (int code = 0xC0; code <= 0xFF; ++code) {
        EXPECT_EQ(ToUtf8(std::string(1, static_cast<char>(code))), std::string("\xC3") + static_cast<char>(code - 0x40))
            << code;
    }
}

struct RefusedRow
{
    const char* name;
    std::string utf8;
};

class RefusedByCodePage : public ::testing::TestWithParam<RefusedRow>
{
};

TEST_P(RefusedByCodePage, GivesNothing)
{
    EXPECT_EQ(FromUtf8("a" + GetParam().utf8), std::nullopt);
    EXPECT_EQ(FromUtf8(GetParam().utf8 + "b"), std::nullopt);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, RefusedByCodePage, ::testing::Values(
    RefusedRow{"character of two bytes", "Ω"},
    RefusedRow{"character of three bytes", "日"},
    RefusedRow{"character of four bytes", "😀"},
    RefusedRow{"control character of a byte that is defined otherwise", "\xC2\x80"},
    RefusedRow{"continuation byte alone", "\x80"},
    RefusedRow{"last continuation byte alone", "\xBF"},
    RefusedRow{"character cut after its first byte", "\xC3"},
    RefusedRow{"character cut after its second byte", "\xE2\x82"},
    RefusedRow{"first byte followed by a letter", "\xC3" "a"},
    RefusedRow{"overlong two bytes", "\xC1\xA1"},
    RefusedRow{"overlong three bytes", "\xE0\x83\xBC"},
    RefusedRow{"half of a surrogate pair", "\xED\xA0\x80"},
    RefusedRow{"byte that never occurs", "\xFF\xBF\xBF"}), support::RowName());

// clang-format on

/// A byte and its capital; equal for what is no small letter.
struct CapitalRow
{
    const char* name;
    char byte;
    char capital;
};

class Capital : public ::testing::TestWithParam<CapitalRow>
{
};

TEST_P(Capital, OfAByteIsTheLettersOfTheCodePage)
{
    EXPECT_EQ(UpperCase(GetParam().byte), GetParam().capital);
    EXPECT_EQ(UpperCase(GetParam().capital), GetParam().capital);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bytes, Capital, ::testing::Values(
    CapitalRow{"first letter", 'a', 'A'},
    CapitalRow{"last letter", 'z', 'Z'},
    CapitalRow{"before the letters", '`', '`'},
    CapitalRow{"behind the letters", '{', '{'},
    CapitalRow{"digit", '7', '7'},
    CapitalRow{"s with caron", '\x9A', '\x8A'},
    CapitalRow{"oe", '\x9C', '\x8C'},
    CapitalRow{"z with caron", '\x9E', '\x8E'},
    CapitalRow{"trade mark between them", '\x99', '\x99'},
    CapitalRow{"sharp s, which has none", '\xDF', '\xDF'},
    CapitalRow{"first with an accent", '\xE0', '\xC0'},
    CapitalRow{"u with two dots", '\xFC', '\xDC'},
    CapitalRow{"division sign", '\xF7', '\xF7'},
    CapitalRow{"last with an accent", '\xFE', '\xDE'},
    CapitalRow{"y with two dots", '\xFF', '\x9F'}), support::RowName());
// clang-format on

} // namespace
} // namespace quillon::store
