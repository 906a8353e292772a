#include "store/section_index.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::store {
namespace {

std::vector<std::string> Names(std::string_view text)
{
    SectionIndex index;
    std::vector<std::string> names;
    for (std::size_t place = 0; index.Has(text, place); ++place) {
        names.emplace_back(index.Name(text, place));
    }
    return names;
}

std::string Body(std::string_view text, std::string_view name)
{
    const std::optional<SectionSpan> span = SectionIndex().Find(text, name);
    return span ? std::string(text.substr(span->body, span->end - span->body)) : "none";
}

TEST(SectionIndex, FindsHeadersAtTheBeginOfALineOnly)
{
    EXPECT_EQ(Names("[a]\n \t[b]\r\nk=[c]\n;[d]\n x [e]\r[f]"), (std::vector<std::string>{"a", "b", "f"}));
}

TEST(SectionIndex, PassesOverBracketsThatAreNotClosedInTheirLine)
{
    EXPECT_EQ(Names("[a\n]\n[b]\n[c"), (std::vector<std::string>{"b"}));
}

TEST(SectionIndex, ReadsAHeaderWithBracketsAsOne)
{
    EXPECT_EQ(Names("[a[b]c]\n[[d]]"), (std::vector<std::string>{"a[b]c", "[d]"}));
}

TEST(SectionIndex, EndsASectionAtTheNextHeaderLine)
{
    constexpr std::string_view kText = "top\n[a]\n1\n\n  [b]\n2";
    EXPECT_EQ(Body(kText, "a"), "1\n\n");
    EXPECT_EQ(Body(kText, "b"), "2");
    EXPECT_EQ(Body(kText, "c"), "none");
}

TEST(SectionIndex, GivesTheLinesBeforeTheFirstHeaderToTheEmptyName)
{
    EXPECT_EQ(Body("top\n[]\n1\n[a]\n2", ""), "top\n");
    EXPECT_EQ(Body("top", ""), "top");
    EXPECT_EQ(Body("[a]", ""), "");
}

TEST(SectionIndex, GivesTheFirstOfSeveralSectionsOfAName)
{
    EXPECT_EQ(Body("[a]\n1\n[A]\n2\n", "A"), "1\n");
}

/// Behind some number of sections a table takes the place of the walk: both have to answer alike.
class SectionIndexSize : public ::testing::TestWithParam<int>
{
};

TEST_P(SectionIndexSize, FindsEverySectionByNameInAnyCase)
{
    std::string text;
    for (int number = 0; number < GetParam(); ++number) {
        const std::string name = "Sec" + std::to_string(number);
        text.append("[").append(name).append("]\n").append(std::to_string(number)).append("\n");
        text.append("[").append(name).append("]\nsecond\n");
    }
    SectionIndex index;
    for (int number = 0; number < GetParam(); ++number) {
        const auto span = index.Find(text, "sEC" + std::to_string(number));
        ASSERT_TRUE(span) << number;
        EXPECT_EQ(text.substr(span->body, span->end - span->body), std::to_string(number) + "\n");
    }
    EXPECT_FALSE(index.Find(text, "Sec-1"));
    EXPECT_FALSE(index.Find(text, "Sec"));
}

INSTANTIATE_TEST_SUITE_P(FewAndMany, SectionIndexSize, ::testing::Values(1, 16, 17, 64, 65, 5000),
                         ::testing::PrintToStringParamName());

TEST(SectionIndex, FindsTheFirstOfManyAfterOthers)
{
    std::string text;
    for (int number = 0; number < 50; ++number) {
        text.append("[").append(std::to_string(number)).append("]\n");
    }
    SectionIndex index;
    for (const char* name : {"7", "9", "0"}) {
        EXPECT_TRUE(index.Find(text, name)) << name;
    }
}

TEST(SectionIndex, FindsEachOfManyShortNames)
{
    std::string text;
    for (int number = 0; number < 5000; ++number) {
        text.append("[").append(std::to_string(number)).append("]\n");
    }
    SectionIndex index;
    for (int number = 0; number < 5000; ++number) {
        ASSERT_TRUE(index.Find(text, std::to_string(number))) << number;
    }
}

TEST(SectionIndex, FindsNamesAmongManyThatDifferInCaseOnly)
{
    std::string text;
    for (int number = 0; number < 100; ++number) {
        text += number % 2 == 0 ? "[same]\neven\n" : "[SAME]\nodd\n";
    }
    EXPECT_EQ(Body(text, "Same"), "even\n");
}

} // namespace
} // namespace quillon::store
