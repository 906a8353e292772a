#include "tests/ui/main/window_fixture.h"

namespace quillon::ui {
namespace {

struct BandRow
{
    const char* name;
    int position;
    const char* text;
    float megahertz;
};

using FrequencySpin = EachSystemRow<BandRow>;

TEST_P(FrequencySpin, ShowsTheBandFrequency)
{
    Spin(Own("vsFrequency")).setValue(Case().position);

    EXPECT_EQ(Text(Own("txtFrequency")), Case().text);
    EXPECT_EQ(Data().Frequency, Case().megahertz);
}

INSTANTIATE_TEST_SUITE_P(
    Positions, FrequencySpin,
    ::testing::Combine(BothSystems(),
                       ::testing::Values(BandRow{"0", 0, "432.100", 432.1F}, BandRow{"1", 1, "222.100", 222.1F},
                                         BandRow{"2", 2, "144.200", 144.2F}, BandRow{"3", 3, "50.125", 50.125F},
                                         BandRow{"4", 4, "28.500", 28.5F}, BandRow{"5", 5, "24.950", 24.95F},
                                         BandRow{"6", 6, "21.225", 21.225F}, BandRow{"7", 7, "18.140", 18.14F},
                                         BandRow{"8", 8, "14.250", 14.25F}, BandRow{"9", 9, "10.125", 10.125F},
                                         BandRow{"10", 10, "7.230", 7.23F}, BandRow{"11", 11, "5.368", 5.368F},
                                         BandRow{"12", 12, "3.850", 3.85F}, BandRow{"13", 13, "1.900", 1.9F})),
    SystemName());

using Frequency = EachSystem;

TEST_P(Frequency, UpperArrowGoesToTheNextHigherBand)
{
    ClickUp(Own("vsFrequency"));
    EXPECT_EQ(Text(Own("txtFrequency")), "18.140");
    ClickDown(Own("vsFrequency"), 2);
    EXPECT_EQ(Text(Own("txtFrequency")), "10.125");
}

TEST_P(Frequency, TurningTakesTheCoaxLossAlong)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    ASSERT_EQ(Data().CoaxLoss, 1.31F); // 1.0 + 0.01 + 2 * 0.15
    Spin(Own("vsFrequency")).setValue(13);
    EXPECT_EQ(Data().CoaxLoss, 0.31F); // 0.3 + 0.01
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "0.31");
    Spin(Own("vsFrequency")).setValue(2);
    EXPECT_EQ(Data().CoaxLoss, 3.71F); // 3.7 + 0.01
}

TEST_P(Frequency, TurningWithoutACoaxLeavesTheCoaxLoss)
{
    Spin(Own("vsFrequency")).setValue(13);
    EXPECT_EQ(Data().CoaxLoss, 0.0F);
    EXPECT_EQ(Data().UseCoaxList, engine::kFalse);
}

TEST_P(Frequency, TurningWithoutACoaxTypeLeavesTheCoaxLoss)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Choose(Spelled("cboSystem%Coax", 0), "TIMES MICROWAVE");
    Spin(Own("vsFrequency")).setValue(13);
    EXPECT_EQ(Data().CoaxLoss, 1.31F);
    EXPECT_EQ(Data().Frequency, 1.9F);
}

TEST_P(Frequency, TurningLeavesTheConnectorLossAsGiven)
{
    Spin(Own("vsFrequency")).setValue(0);
    EXPECT_EQ(Data().ConnectorLoss, 0.01304F);
    EXPECT_EQ(Results().ConnectorLoss, 0.01304F);
}

TEST_P(Frequency, TypingIsStoredAndLeavesBothLossesAsGiven)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Type(Own("txtFrequency"), "144.3");
    EXPECT_EQ(Data().Frequency, 144.3F);
    EXPECT_EQ(Data().CoaxLoss, 1.31F);
    EXPECT_EQ(Data().ConnectorLoss, 0.01304F);
}

TEST_P(Frequency, TypingComputesItsSystem)
{
    Paste(Own("txtFrequency"), "7.1");
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "100.00");
    EXPECT_EQ(systems.Results[Other(System())].FeedPointPower, 0.0F);
}

TEST_P(Frequency, TypingDoesNotMoveTheSpinControl)
{
    Type(Own("txtFrequency"), "432.1");
    EXPECT_EQ(Spin(Own("vsFrequency")).value(), 8);
    ClickUp(Own("vsFrequency"));
    EXPECT_EQ(Text(Own("txtFrequency")), "18.140");
}

TEST_P(Frequency, EmptyKeepsTheFrequencyAndComputes)
{
    Clear(Own("txtFrequency"));
    EXPECT_EQ(Data().Frequency, 14.25F);
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "100.00");
    EXPECT_FALSE(IsMarked(Own("txtFrequency")));
}

TEST_P(Frequency, FollowsTheBandUntilABrandIsChosenAgain)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");
    EXPECT_EQ(Text(Own("txtFrequency")), "21.225");
    EXPECT_TRUE(Box(Own("txtFrequency")).isReadOnly());
    EXPECT_FALSE(Spin(Own("vsFrequency")).isEnabled());

    Choose(Spelled("cboSystem%Antenna", 1), "ALL BANDS");
    EXPECT_TRUE(Box(Own("txtFrequency")).isReadOnly());
    EXPECT_FALSE(Spin(Own("vsFrequency")).isEnabled());

    Choose(Spelled("cboSystem%Antenna", 0), "HALO");
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
    EXPECT_TRUE(Spin(Own("vsFrequency")).isEnabled());
}

TEST_P(Frequency, CannotBeTypedWhileItFollowsTheBand)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");
    Type(Own("txtFrequency"), "7");
    EXPECT_EQ(Text(Own("txtFrequency")), "21.225");
    EXPECT_EQ(Data().Frequency, 21.225F);
}

TEST_P(Frequency, OfTheOtherSystemStaysFree)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");
    const std::string other = "(" + std::to_string(engine::Number(Other(System()))) + ")";
    EXPECT_FALSE(Box("txtFrequency" + other).isReadOnly());
    EXPECT_TRUE(Spin("vsFrequency" + other).isEnabled());
    EXPECT_EQ(Text("txtFrequency" + other), "14.250");
}

INSTANTIATE_TEST_SUITE_P(Input, Frequency, BothSystems(), SystemName());

} // namespace
} // namespace quillon::ui
