#include "engine/text_compare.h"

#include <gtest/gtest.h>

namespace quillon::engine {
namespace {

TEST(EqualIgnoringCase, LetterCaseDoesNotCount)
{
    EXPECT_TRUE(EqualIgnoringCase("azAZ 1.25", "AZaz 1.25"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(EqualIgnoringCase, OtherCharactersAndLengthsCount)
{
    EXPECT_FALSE(EqualIgnoringCase("20 Meters", "20 Meter"));
    EXPECT_FALSE(EqualIgnoringCase("20 Meter", "20 Meters"));
    EXPECT_FALSE(EqualIgnoringCase("a", "b"));
    EXPECT_FALSE(EqualIgnoringCase("@", "`")) << "the neighbours of A and a are no letters";
    EXPECT_FALSE(EqualIgnoringCase("[", "{")) << "the neighbours of Z and z are no letters";
}

} // namespace
} // namespace quillon::engine
