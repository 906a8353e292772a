#include "tests/ui/main/window_fixture.h"

#include <algorithm>

namespace quillon::ui {
namespace {

class VSWRSpin : public EachSystem
{
protected:
    void Turn(int whole, int tenths)
    {
        Spin(Pair("vsVSWR", 0)).setValue(whole);
        Spin(Pair("vsVSWR", 1)).setValue(tenths);
    }

    void ExpectVSWR(const std::string& text, float ratio)
    {
        EXPECT_EQ(Text(Own("txtVSWR")), text);
        EXPECT_EQ(Data().VSWR, ratio);
    }
};

TEST_P(VSWRSpin, TenthsStepByOneTenth)
{
    ClickUp(Pair("vsVSWR", 1));
    ExpectVSWR("1.2", 1.2F);
    ClickDown(Pair("vsVSWR", 1), 2);
    ExpectVSWR("1.0", 1.0F);
}

TEST_P(VSWRSpin, WholePartStepsByOne)
{
    ClickUp(Pair("vsVSWR", 0));
    ExpectVSWR("2.1", 2.1F);
    ClickUp(Pair("vsVSWR", 0));
    ExpectVSWR("3.1", 3.1F);
    ClickDown(Pair("vsVSWR", 0));
    ExpectVSWR("2.1", 2.1F);
}

TEST_P(VSWRSpin, LowestIsOne)
{
    Turn(8, 10);
    ExpectVSWR("1.0", 1.0F);
}

TEST_P(VSWRSpin, HighestIsThreePointNine)
{
    Turn(6, 1);
    ExpectVSWR("3.9", 3.9F);
}

TEST_P(VSWRSpin, EveryPositionHitsATableRow)
{
    for (int whole = 6; whole <= 8; ++whole) {
        for (int tenths = 1; tenths <= 10; ++tenths) {
            Turn(whole, tenths);
            const int ratio = 100 - 10 * whole - tenths;
            EXPECT_EQ(Text(Own("txtVSWR")), std::to_string(ratio / 10) + "." + std::to_string(ratio % 10));
            EXPECT_GT(Results().FeedPointPower, 60.0F) << whole << " and " << tenths;
        }
    }
}

TEST_P(VSWRSpin, ComputesTheMismatch)
{
    Turn(8, 5);
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "97.44");
    EXPECT_EQ(Text(Own("lblVSWRReturnLoss")), "0.1173");
    EXPECT_EQ(Text("lblVSWRReturnLoss(" + std::to_string(Number() + 2) + ")"), "2.56");
}

TEST_P(VSWRSpin, ComputesItsSystemOnly)
{
    const engine::SystemResults other = systems.Results[Other(System())];
    ClickUp(Pair("vsVSWR", 1));
    EXPECT_EQ(systems.Results[Other(System())], other);
}

TEST_P(VSWRSpin, ComputesOnceATurn)
{
    ClickUp(Pair("vsVSWR", 1));
    // Only System One is heard: coax power loss once, antenna power gain twice.
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), System() == engine::SystemId::One ? 3 : 0);
}

TEST_P(VSWRSpin, BoxIsSetByTheArrowsOnly)
{
    EXPECT_TRUE(Box(Own("txtVSWR")).isReadOnly());
    Type(Own("txtVSWR"), "3");
    ExpectVSWR("1.1", 1.1F);
}

TEST_P(VSWRSpin, SuffixIsFixed)
{
    auto& suffix = Box("txtVSWRSuffix(" + std::to_string(Number() - 1) + ")");
    EXPECT_TRUE(suffix.isReadOnly());
    EXPECT_EQ(suffix.focusPolicy(), Qt::NoFocus);
    EXPECT_GT(suffix.x(), Box(Own("txtVSWR")).x());
    EXPECT_LT(suffix.x(), Spin(Pair("vsVSWR", 0)).x());
}

INSTANTIATE_TEST_SUITE_P(Turning, VSWRSpin, BothSystems(), SystemName());

} // namespace
} // namespace quillon::ui
