#include "engine/system_id.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace quillon::engine {
namespace {

TEST(SystemId, NumbersAre1And2)
{
    EXPECT_EQ(ToSystemId(1), SystemId::One);
    EXPECT_EQ(ToSystemId(2), SystemId::Two);
    EXPECT_EQ(Number(SystemId::One), 1);
    EXPECT_EQ(Number(SystemId::Two), 2);
}

TEST(SystemId, AnyOtherNumberIsARangeError)
{
    for (const int number : {0, 3, -1, INT_MIN, INT_MAX}) {
        EXPECT_THROW((void)ToSystemId(number), std::out_of_range) << number;
    }
}

TEST(SystemId, EachIsComparedWithTheOther)
{
    EXPECT_EQ(Other(SystemId::One), SystemId::Two);
    EXPECT_EQ(Other(SystemId::Two), SystemId::One);
}

TEST(PerSystem, HoldsOneElementForEach)
{
    PerSystem<std::string> names("left", "right");
    names[SystemId::Two] += "most";

    const PerSystem<std::string>& read = names;
    EXPECT_EQ(read[SystemId::One], "left");
    EXPECT_EQ(read[SystemId::Two], "rightmost");
    EXPECT_EQ(names, PerSystem<std::string>("left", "rightmost"));
    EXPECT_EQ(PerSystem<int>(), PerSystem<int>(0, 0));
}

} // namespace
} // namespace quillon::engine
