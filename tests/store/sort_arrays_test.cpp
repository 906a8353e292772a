#include "store/sort_arrays.h"

#include <gtest/gtest.h>

namespace quillon::store {
namespace {

using Texts = std::vector<std::string>;

Texts Sorted(Texts texts)
{
    SortArrays(texts);
    return texts;
}

TEST(SortArrays, PutsCapitalsBeforeSmallLetters)
{
    EXPECT_EQ(Sorted({"b", "A", "c", "a", "Z"}), (Texts{"A", "Z", "a", "b", "c"}));
}

TEST(SortArrays, ComparesCharacterCodesUpTo255)
{
    EXPECT_EQ(Sorted({"\xC4", "z", "\x80", "~"}), (Texts{"z", "~", "\x80", "\xC4"}));
}

TEST(SortArrays, PutsAPrefixFirstAndKeepsEqualTexts)
{
    EXPECT_EQ(Sorted({"ab", "a", "", "ab", "a b"}), (Texts{"", "a", "a b", "ab", "ab"}));
}

TEST(SortArrays, TakesNoneAndOne)
{
    EXPECT_EQ(Sorted({}), Texts());
    EXPECT_EQ(Sorted({"a"}), Texts{"a"});
}

} // namespace
} // namespace quillon::store
