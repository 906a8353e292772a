#include "ui/help/help_history.h"

#include <gtest/gtest.h>

namespace quillon::ui {
namespace {

TEST(HelpHistory, HasNoStepsAtFirst)
{
    HelpHistory history;
    EXPECT_FALSE(history.HasBack());
    EXPECT_FALSE(history.HasForward());
    EXPECT_EQ(history.Back(1), std::nullopt);
    EXPECT_EQ(history.Forward(1), std::nullopt);
    EXPECT_FALSE(history.HasForward()) << "a step that was not taken";
}

TEST(HelpHistory, GoesBackTheWayItCame)
{
    HelpHistory history;
    history.Leave(10);
    history.Leave(20);
    EXPECT_EQ(history.Back(30), 20);
    EXPECT_EQ(history.Back(20), 10);
    EXPECT_FALSE(history.HasBack());
    EXPECT_EQ(history.Forward(10), 20);
    EXPECT_EQ(history.Forward(20), 30);
    EXPECT_FALSE(history.HasForward());
}

TEST(HelpHistory, AnotherWayForgetsTheOldOne)
{
    HelpHistory history;
    history.Leave(10);
    EXPECT_EQ(history.Back(20), 10);
    history.Leave(10);
    EXPECT_FALSE(history.HasForward());
}

} // namespace
} // namespace quillon::ui
