#include "tests/ui/main/window_fixture.h"

namespace quillon::ui {
namespace {

/// 100 W at 14.25 MHz through 100 ft of RG-8X, 2 connectors, VSWR 1.1, into 7.1 dBi. Worked out by hand:
/// 1.0 + 0.01 + 2 * 0.15 = 1.31 dB; 1.3 dB passes 0.7413; 5.0 dB makes 3.162 of 1. In 32 bits 74.13 * 3.162
/// is 234.39905.
class WorkedExample : public EachSystem
{
protected:
    void SetUp() override
    {
        EachSystem::SetUp();
        ChooseCoax("CABLEWORKS", "RG-8X");
        ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    }

    std::string MismatchPower() const { return "lblVSWRReturnLoss(" + std::to_string(Number() + 2) + ")"; }
};

TEST_P(WorkedExample, ShowsAllNineResults)
{
    EXPECT_EQ(Text(MismatchPower()), "0.00");
    EXPECT_EQ(Text(Own("lblVSWRReturnLoss")), "0.0100");
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "1.31");
    EXPECT_EQ(Text(Own("lblCoaxPowerLoss")), "25.87");
    EXPECT_EQ(Text(Own("lblAntennaGain")), "5.00");
    EXPECT_EQ(Text(Own("lblAntennaWGain")), "160.27");
    EXPECT_EQ(Text(Own("lblSystemGain")), "3.68");
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "74.13");
    EXPECT_EQ(Text(Own("lblERP")), "234.40");
}

TEST_P(WorkedExample, TellsItsArithmetic)
{
    EXPECT_EQ(ToolTip(Own("lblAntennaGain")), "Antenna Gain Figure is in dBi so 2.14 dB subtracted");
    EXPECT_EQ(ToolTip(Own("lblSystemGain")), "5 + ((1.31 + 0.01304) * -1) = 3.68");
    EXPECT_EQ(ToolTip(Own("lblCoaxPowerLoss")), "100 - (100 * 0.7413) = 25.87");
    EXPECT_EQ(ToolTip(Own("lblAntennaWGain")), "(74.13 * 3.162) - 74.13 = 160.269");
}

TEST_P(WorkedExample, TellsTheERPsArithmeticAtTheFeedPointPowerAsGiven)
{
    EXPECT_EQ(ToolTip(Own("lblFeedPointPower")), "(74.13 * 3.162) = 234.399");
    EXPECT_EQ(ToolTip(Own("lblERP")), "");
}

TEST_P(WorkedExample, TellsNoArithmeticElsewhere)
{
    EXPECT_EQ(ToolTip(MismatchPower()), "");
    EXPECT_EQ(ToolTip(Own("lblVSWRReturnLoss")), "");
    EXPECT_EQ(ToolTip(Own("lblCoaxDBLoss")), "");
}

TEST_P(WorkedExample, SpeaksItsResults)
{
    const std::string system = "System " + std::to_string(Number());
    EXPECT_EQ(AccessibleName(Own("lblERP")), "Antenna System ERP, " + system + ": 234.40 W");
    EXPECT_EQ(AccessibleName(Own("lblSystemGain")), "Antenna System Gain in dB, " + system + ": 3.68 dB");
    EXPECT_EQ(AccessibleName(Own("lblCoaxDBLoss")), "Coax Loss in dB, " + system + ": 1.31 dB");
}

TEST_P(WorkedExample, FollowsTheVSWR)
{
    Spin(Pair("vsVSWR", 1)).setValue(5); // 1.5 passes 0.9744
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "72.23");
    EXPECT_EQ(Text(MismatchPower()), "1.90");
    EXPECT_EQ(Text(Own("lblVSWRReturnLoss")), "0.1173");
    EXPECT_EQ(Text(Own("lblAntennaWGain")), "156.17");
    EXPECT_EQ(Text(Own("lblERP")), "228.40");
    EXPECT_EQ(Text(Own("lblSystemGain")), "3.68");
}

TEST_P(WorkedExample, FollowsPowerLengthAndConnectors)
{
    Paste(Own("txtOutputPower"), "240");
    Paste(Spelled("txtSystem%CoaxLength"), "50");
    Paste(Spelled("txtSystem%NumConnectors"), "10");
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "0.66");     // 0.655, halves away from zero
    EXPECT_EQ(Text(Own("lblCoaxPowerLoss")), "35.74"); // 0.7 dB passes 1 / 1.175 = 0.8511
    EXPECT_EQ(Text(Own("lblSystemGain")), "4.28");     // 5 - 0.655 - 0.0652
}

TEST_P(WorkedExample, LeavesTheERPOfASystemWithoutAntennaAlone)
{
    const std::string other = "(" + std::to_string(engine::Number(Other(System()))) + ")";
    Paste("txtOutputPower" + other, "50");
    EXPECT_EQ(Text("lblERP" + other), "0.00");
    EXPECT_EQ(Text("lblFeedPointPower" + other), "50.00");
    EXPECT_EQ(ToolTip("lblFeedPointPower" + other), "");
}

INSTANTIATE_TEST_SUITE_P(Results, WorkedExample, BothSystems(), SystemName());

using SecondExample = EachSystem;

/// 100 W at 14.25 MHz through 50 ft of a K-factor cable at VSWR 1.5 into 3 dBd.
TEST_P(SecondExample, ShowsAllNineResults)
{
    Paste(Spelled("txtSystem%CoaxLength"), "50");
    ChooseCoax("TIMES MICROWAVE", "LMR-A");
    Spin(Pair("vsVSWR", 1)).setValue(5);
    ChooseAntenna("WIRECRAFT", "SEVENTEEN-LETTERS", "20 Meters");

    EXPECT_EQ(Text("lblVSWRReturnLoss(" + std::to_string(Number() + 2) + ")"), "2.50");
    EXPECT_EQ(Text(Own("lblVSWRReturnLoss")), "0.1173");
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "0.11");    // 0.2286325 / 2
    EXPECT_EQ(Text(Own("lblCoaxPowerLoss")), "2.25"); // 0.1 dB passes 0.9775
    EXPECT_EQ(Text(Own("lblAntennaGain")), "3.00");
    EXPECT_EQ(Text(Own("lblAntennaWGain")), "94.77");
    EXPECT_EQ(Text(Own("lblSystemGain")), "2.87");
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "95.25"); // 97.75 * 0.9744
    EXPECT_EQ(Text(Own("lblERP")), "190.02");
}

INSTANTIATE_TEST_SUITE_P(Results, SecondExample, BothSystems(), SystemName());

} // namespace
} // namespace quillon::ui
