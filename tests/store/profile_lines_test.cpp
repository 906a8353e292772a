#include "store/profile_lines.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::store {
namespace {

using namespace std::string_view_literals;

struct EndRow
{
    const char* name;
    std::string_view text;
    std::size_t begin;
    std::size_t end;
    std::size_t next;
};

class LineAtRow : public ::testing::TestWithParam<EndRow>
{
};

TEST_P(LineAtRow, FindsEndAndNextLine)
{
    const EndRow& row = GetParam();
    const LineSpan line = LineAt(row.text, row.begin);
    EXPECT_EQ(line.begin, row.begin);
    EXPECT_EQ(line.end, row.end);
    EXPECT_EQ(line.next, row.next);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Ends, LineAtRow, ::testing::Values(
    EndRow{"CR LF is one line end", "ab\r\ncd", 0, 2, 4},
    EndRow{"LF", "ab\ncd", 0, 2, 3},
    EndRow{"CR", "ab\rcd", 0, 2, 3},
    EndRow{"LF CR are two line ends", "ab\n\rcd", 0, 2, 3},
    EndRow{"CR at the very end", "ab\r", 0, 2, 3},
    EndRow{"missing line end", "ab\ncd", 3, 5, 5},
    EndRow{"empty text", "", 0, 0, 0},
    EndRow{"empty line", "\n\n", 1, 1, 2},
    EndRow{"NUL does not end a line", "a\0b\nc"sv, 0, 3, 4}), support::RowName());

// clang-format on

TEST(LineAt, FindsTheFirstOfTwoEndsInALineOfAnyLength)
{
    for (const std::string end : {"\n", "\r", "\r\n"}) {
        for (std::size_t length = 0; length < 1000; ++length) {
            const std::string text = "[a]" + std::string(length, '[') + end + "b\rc\n" + std::string(1000, 'd');
            const LineSpan line = LineAt(text, 3);
            ASSERT_EQ(line.end, 3 + length);
            ASSERT_EQ(line.next, 3 + length + end.size());
            ASSERT_EQ(LineAt(text, line.next + 4).end, text.size());
        }
    }
}

struct LineRow
{
    const char* name;
    std::string_view line;
    LineKind kind;
    std::string_view text;
    std::string_view value;
};

class ParseLineRow : public ::testing::TestWithParam<LineRow>
{
};

TEST_P(ParseLineRow, TellsWhatTheLineSays)
{
    const LineRow& row = GetParam();
    const ParsedLine line = ParseLine(row.line);
    EXPECT_EQ(line.kind, row.kind);
    EXPECT_EQ(line.name, row.text);
    EXPECT_EQ(line.value, row.value);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Kinds, ParseLineRow, ::testing::Values(
    LineRow{"nothing", "", LineKind::Blank, "", ""},
    LineRow{"blanks and tabs only", " \t ", LineKind::Blank, "", ""},
    LineRow{"comment", ";a=1", LineKind::Comment, "", ""},
    LineRow{"indented comment", " \t;[s]", LineKind::Comment, "", ""},
    LineRow{"hash starts no comment", "#a=1", LineKind::Entry, "#a", "1"},
    LineRow{"semicolon further on is text", "a=1 ; b", LineKind::Entry, "a", "1 ; b"},
    LineRow{"header", "[s]", LineKind::Header, "s", ""},
    LineRow{"indented header", "\t [s] ", LineKind::Header, "s", ""},
    LineRow{"blanks inside the brackets drop", "[ s t\t]", LineKind::Header, "s t", ""},
    LineRow{"header runs to the last bracket", "[a]b] c", LineKind::Header, "a]b", ""},
    LineRow{"header with an equals sign", "[a=b]", LineKind::Header, "a=b", ""},
    LineRow{"header with text behind it", "[k]=v", LineKind::Header, "k", ""},
    LineRow{"header without name", "[]", LineKind::Header, "", ""},
    LineRow{"bracket that is not closed starts no section", "[s", LineKind::Other, "", ""},
    LineRow{"bracket that is not closed, with equals sign", "[s=1", LineKind::Entry, "[s", "1"},
    LineRow{"no equals sign is no entry", "abc", LineKind::Other, "", ""},
    LineRow{"entry", "a=1", LineKind::Entry, "a", "1"},
    LineRow{"blanks around key and value drop, inner ones stay", "\ta b \t= 1  2 ", LineKind::Entry, "a b", "1  2"},
    LineRow{"first equals sign splits", "a==b=c", LineKind::Entry, "a", "=b=c"},
    LineRow{"empty key", "=v", LineKind::Entry, "", "v"},
    LineRow{"empty value", "a= ", LineKind::Entry, "a", ""},
    LineRow{"quotes stay in the line", "a=\"b\"", LineKind::Entry, "a", "\"b\""}), support::RowName());

// clang-format on

struct QuoteRow
{
    const char* name;
    std::string_view value;
    std::string_view text;
};

class WithoutQuotesRow : public ::testing::TestWithParam<QuoteRow>
{
};

TEST_P(WithoutQuotesRow, DropsOneOuterPair)
{
    EXPECT_EQ(WithoutQuotes(GetParam().value), GetParam().text);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Quotes, WithoutQuotesRow, ::testing::Values(
    QuoteRow{"double", "\"a\"", "a"},
    QuoteRow{"single", "'a'", "a"},
    QuoteRow{"blanks inside stay", "\" a \"", " a "},
    QuoteRow{"only the outer pair", "\"\"a\"\"", "\"a\""},
    QuoteRow{"two quoted words", "\"a\" \"b\"", "a\" \"b"},
    QuoteRow{"empty pair", "\"\"", ""},
    QuoteRow{"one mark alone stays", "\"", "\""},
    QuoteRow{"open", "\"a", "\"a"},
    QuoteRow{"unequal marks stay", "\"a'", "\"a'"},
    QuoteRow{"inner marks stay", "a\"b\"", "a\"b\""},
    QuoteRow{"empty", "", ""}), support::RowName());

// clang-format on

TEST(WithoutBlanks, GivesTheEndOfATextOfBlanks)
{
    constexpr std::string_view kBlanks = " \t ";
    EXPECT_TRUE(WithoutBlanks(kBlanks).empty());
    EXPECT_EQ(WithoutBlanks(kBlanks).data(), kBlanks.data() + kBlanks.size());
}

TEST(EqualNames, IgnoresTheCaseOfASCIILettersOnly)
{
    EXPECT_TRUE(EqualNames("Gain20", "gAIN20"));
    EXPECT_TRUE(EqualNames("[Z]", "[z]"));
    EXPECT_FALSE(EqualNames("\xC9", "\xE9"));
    EXPECT_FALSE(EqualNames("@", "`"));
    EXPECT_FALSE(EqualNames("a", "ab"));
}

} // namespace
} // namespace quillon::store
