#include "store/profile_lines.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

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

enum class LineKind { Header, Entry, Neither };

struct LineRow
{
    const char* name;
    std::string_view line;
    LineKind kind;
    std::string_view text;
    std::string_view value;
};

class LineKindRow : public ::testing::TestWithParam<LineRow>
{
};

TEST_P(LineKindRow, TellsWhatTheLineSays)
{
    const LineRow& row = GetParam();
    const std::optional<HeaderLine> header = FindHeader(row.line, 0);
    ASSERT_EQ(header.has_value(), row.kind == LineKind::Header);
    if (header) { // and the line is none of a section, where entries are looked for
        EXPECT_EQ(header->name, row.text);
        EXPECT_EQ(header->end, row.line.size());
        return;
    }
    const std::optional<EntryLine> entry = FindEntry(row.line, 0);
    ASSERT_EQ(entry.has_value(), row.kind == LineKind::Entry);
    if (entry) {
        EXPECT_EQ(entry->name, row.text);
        EXPECT_EQ(WithoutBlanks(row.line.substr(entry->equals + 1)), row.value);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Kinds, LineKindRow, ::testing::Values(
    LineRow{"nothing", "", LineKind::Neither, "", ""},
    LineRow{"blanks and tabs only", " \t ", LineKind::Neither, "", ""},
    LineRow{"comment", ";a=1", LineKind::Neither, "", ""},
    LineRow{"indented comment", " \t;[s]", LineKind::Neither, "", ""},
    LineRow{"hash starts no comment", "#a=1", LineKind::Entry, "#a", "1"},
    LineRow{"semicolon further on is text", "a=1 ; b", LineKind::Entry, "a", "1 ; b"},
    LineRow{"header", "[s]", LineKind::Header, "s", ""},
    LineRow{"indented header", "\t [s] ", LineKind::Header, "s", ""},
    LineRow{"blanks inside the brackets drop", "[ s t\t]", LineKind::Header, "s t", ""},
    LineRow{"header runs to the last bracket", "[a]b] c", LineKind::Header, "a]b", ""},
    LineRow{"header with an equals sign", "[a=b]", LineKind::Header, "a=b", ""},
    LineRow{"header with text behind it", "[k]=v", LineKind::Header, "k", ""},
    LineRow{"header without name", "[]", LineKind::Header, "", ""},
    LineRow{"bracket that is not closed starts no section", "[s", LineKind::Neither, "", ""},
    LineRow{"bracket that is not closed, with equals sign", "[s=1", LineKind::Entry, "[s", "1"},
    LineRow{"no equals sign is no entry", "abc", LineKind::Neither, "", ""},
    LineRow{"entry", "a=1", LineKind::Entry, "a", "1"},
    LineRow{"blanks around key and value drop, inner ones stay", "\ta b \t= 1  2 ", LineKind::Entry, "a b", "1  2"},
    LineRow{"first equals sign splits", "a==b=c", LineKind::Entry, "a", "=b=c"},
    LineRow{"empty key", "=v", LineKind::Entry, "", "v"},
    LineRow{"empty value", "a= ", LineKind::Entry, "a", ""},
    LineRow{"quotes stay in the line", "a=\"b\"", LineKind::Entry, "a", "\"b\""}), support::RowName());

// clang-format on

/// The entries of a text, each with the begin of its line.
std::vector<std::pair<std::size_t, std::string>> EntriesOf(std::string_view text, std::size_t from)
{
    std::vector<std::pair<std::size_t, std::string>> entries;
    std::optional<EntryLine> entry = FindEntry(text, from);
    for (; entry; entry = FindEntry(text, entry->equals + 1)) {
        entries.emplace_back(entry->begin, entry->name);
    }
    return entries;
}

TEST(FindEntry, FindsEachEntryOnceBehindLineEndsOfAllKinds)
{
    using Entries = std::vector<std::pair<std::size_t, std::string>>;
    EXPECT_EQ(EntriesOf("a=b=c==\rb=\r\n c =\n\nd=e\n", 0), (Entries{{0, "a"}, {8, "b"}, {12, "c"}, {18, "d"}}));
    EXPECT_EQ(EntriesOf("a=\n=b\n==\n", 0), (Entries{{0, "a"}, {3, ""}, {6, ""}}));
}

TEST(FindEntry, PassesOverLinesThatAreNone)
{
    using Entries = std::vector<std::pair<std::size_t, std::string>>;
    EXPECT_EQ(EntriesOf("none\n;x=y=z\n \t;x=\n\nb=1\nnone", 0), (Entries{{19, "b"}}));
    EXPECT_EQ(EntriesOf("a=1\nb=2\n", 4), (Entries{{4, "b"}}));
    EXPECT_EQ(EntriesOf("none", 0), Entries{});
    EXPECT_EQ(EntriesOf("a=1\n", 4), Entries{});
}

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
