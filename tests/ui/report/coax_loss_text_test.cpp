#include "ui/report/coax_loss_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillon::ui {
namespace {

using engine::SystemId;

engine::AntennaSystems Systems()
{
    engine::AntennaSystems systems;
    systems.Data[SystemId::One].CoaxLoss = 0.665F;
    systems.Data[SystemId::Two].CoaxLoss = 12.5F;
    return systems;
}

TEST(CoaxLossText, HasTwoPlacesAndRoundsTiesAway)
{
    EXPECT_EQ(CoaxLossText(Systems(), 1), "0.67");
    EXPECT_EQ(CoaxLossText(Systems(), 2), "12.50");
}

TEST(CoaxLossText, OfNoLossIsZeroAndNotEmpty)
{
    EXPECT_EQ(CoaxLossText(engine::SystemData()), "0.00");
}

TEST(CoaxLossText, UsesTheSeparatorItIsGiven)
{
    EXPECT_EQ(CoaxLossText(Systems(), 2, ","), "12,50");
}

TEST(CoaxLossText, KnowsNoSystemsButOneAndTwo)
{
    EXPECT_THROW((void)CoaxLossText(Systems(), 0), std::out_of_range);
    EXPECT_THROW((void)CoaxLossText(Systems(), 3), std::out_of_range);
}

} // namespace
} // namespace quillon::ui
