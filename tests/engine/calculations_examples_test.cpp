// Complete examples, worked out by hand and with decimal arithmetic apart from the program.

#include "tests/engine/calculations_fixture.h"

#include "engine/coax_model.h"

namespace quillon::engine {
namespace {

class CalculationExample : public CalculationsTest
{
protected:
    /// Refreshes System One and compares all that it shows, but for the closing comparison.
    void ExpectShown(Lines expected)
    {
        calculations.RefreshData(1);
        expected.emplace_back("CompareSystems");
        EXPECT_EQ(display.Lines(), expected);
    }
};

TEST_F(CalculationExample, CableAndAntennaAtTheStartingFigures)
{
    ExpectShown({"CoaxDBLoss(1): 1.31", "AntennaGain(1): 5.00",
                 "AntennaGain(1) formula: Antenna Gain Figure is in dBd so 0 dB subtracted", "SystemGain(1): 3.68",
                 "SystemGain(1) formula: 5 + ((1.31 + 0.01304) * -1) = 3.68",
                 "CoaxPowerLoss(1) formula: 100 - (100 * 0.7413) = 25.87", "CoaxPowerLoss(1): 25.87",
                 "FeedPointPower(1): 74.13", "VSWRAttenuation(1): 0.0100", "VSWRPowerLoss(1): 0.00",
                 "AntennaPowerGain(1) formula: (74.13 * 3.162) - 74.13 = 160.269", "AntennaPowerGain(1): 160.27",
                 "FeedPointPower(1) formula: (74.13 * 3.162) = 234.399", "ERP(1): 234.40"});

    const SystemResults expected{5.0F, 234.4F, 3.68F, 1.31F, 25.87F, 0.0F, 0.01F, 0.01304F, 74.13F, 0.0F, 160.26904F};
    EXPECT_EQ(ResultsOfOne(), expected);
}

TEST_F(CalculationExample, MismatchOnTheTableAndRoundingInEveryStep)
{
    One().XmitPower = 1234.5F;
    One().VSWR = 1.5F;
    One().CoaxLength = 75.0F;
    One().CoaxLoss = 3.7F;
    SetAntenna(SystemId::One, 12.1F, "dBi");
    ResultsOfOne().ConnectorLoss = 0.04569F;

    ExpectShown({"CoaxDBLoss(1): 2.78", "AntennaGain(1): 12.10",
                 "AntennaGain(1) formula: Antenna Gain Figure is in dBi so 2.14 dB subtracted", "SystemGain(1): 9.28",
                 "SystemGain(1) formula: 12.1 + ((2.775 + 0.04569) * -1) = 9.28",
                 "CoaxPowerLoss(1) formula: 1234.5 - (1234.5 * 0.5249) = 586.51", "CoaxPowerLoss(1): 586.51",
                 "FeedPointPower(1): 631.40", "VSWRAttenuation(1): 0.1173", "VSWRPowerLoss(1): 16.59",
                 "AntennaPowerGain(1) formula: (631.4014 * 16.22) - 631.4014 = 9609.93", "AntennaPowerGain(1): 9609.93",
                 "FeedPointPower(1) formula: (631.4014 * 16.22) = 10241.33", "ERP(1): 10241.33"});

    const SystemResults expected{12.1F,   10241.33F, 9.28F,     2.775F, 586.51F, 16.5886F,
                                 0.1173F, 0.04569F,  631.4014F, 0.0F,   9609.93F};
    EXPECT_EQ(ResultsOfOne(), expected);
}

TEST_F(CalculationExample, VSWROffTheTableLeavesNoPowerAndTheOldMismatchFigures)
{
    One().VSWR = 4.0F;
    ResultsOfOne().VSWRAttenuation = 0.25F;
    ResultsOfOne().VSWRPowerLoss = 1.5F;

    ExpectShown({"CoaxDBLoss(1): 1.31", "AntennaGain(1): 5.00",
                 "AntennaGain(1) formula: Antenna Gain Figure is in dBd so 0 dB subtracted", "SystemGain(1): 3.68",
                 "SystemGain(1) formula: 5 + ((1.31 + 0.01304) * -1) = 3.68",
                 "CoaxPowerLoss(1) formula: 100 - (100 * 0.7413) = 25.87", "CoaxPowerLoss(1): 25.87",
                 "FeedPointPower(1): 0.00", "VSWRAttenuation(1): 0.2500", "VSWRPowerLoss(1): 1.50",
                 "AntennaPowerGain(1) formula: (0 * 3.162) - 0 = 0", "AntennaPowerGain(1): 0.00",
                 "FeedPointPower(1) formula: (0 * 3.162) = 0", "ERP(1): 0.00"});
}

TEST_F(CalculationExample, Gain20IsOffTheTableAndShowsNoFormulaOfAPower)
{
    SetAntenna(SystemId::One, 20.0F, "dBd");

    ExpectShown({"CoaxDBLoss(1): 1.31", "AntennaGain(1): 20.00",
                 "AntennaGain(1) formula: Antenna Gain Figure is in dBd so 0 dB subtracted", "SystemGain(1): 18.68",
                 "SystemGain(1) formula: 20 + ((1.31 + 0.01304) * -1) = 18.68",
                 "CoaxPowerLoss(1) formula: 100 - (100 * 0.7413) = 25.87", "CoaxPowerLoss(1): 25.87",
                 "FeedPointPower(1): 74.13", "VSWRAttenuation(1): 0.0100", "VSWRPowerLoss(1): 0.00",
                 "AntennaPowerGain(1): 0.00", "ERP(1): 0.00"});
}

TEST_F(CalculationExample, GainIsRoundedToTenthsBeforeTheSearch)
{
    SetAntenna(SystemId::One, 19.95F, "dBd");
    calculations.RefreshData(1);
    EXPECT_EQ(ResultsOfOne().ERP, 0.0F) << "20.0 is off the table";

    SetAntenna(SystemId::One, 19.94F, "dBd");
    calculations.RefreshData(1);
    EXPECT_EQ(ResultsOfOne().ERP, 7243.98F) << "74.13 * 97.72";
    EXPECT_EQ(ResultsOfOne().AntennaPowerGain, 7169.8535F);
}

TEST_F(CalculationExample, Length0LosesNothingInTheCoax)
{
    One().CoaxLength = 0.0F;
    ResultsOfOne().ConnectorLoss = 0.0F;

    ExpectShown({"CoaxDBLoss(1): 0.00", "AntennaGain(1): 5.00",
                 "AntennaGain(1) formula: Antenna Gain Figure is in dBd so 0 dB subtracted", "SystemGain(1): 5",
                 "SystemGain(1) formula: 5 + ((0 + 0) * -1) = 5", "CoaxPowerLoss(1) formula: 100 - (100 * 1) = 0",
                 "CoaxPowerLoss(1): 0.00", "FeedPointPower(1): 100.00", "VSWRAttenuation(1): 0.0100",
                 "VSWRPowerLoss(1): 0.00", "AntennaPowerGain(1) formula: (100 * 3.162) - 100 = 216.2",
                 "AntennaPowerGain(1): 216.20", "FeedPointPower(1) formula: (100 * 3.162) = 316.2", "ERP(1): 316.20"});
}

TEST_F(CalculationExample, NegativeSystemGainIsStoredAndShownNegative)
{
    One().CoaxLength = 250.0F;
    SetAntenna(SystemId::One, 0.0F, "dBd");

    ExpectShown({"CoaxDBLoss(1): 3.27", "AntennaGain(1): 0.00",
                 "AntennaGain(1) formula: Antenna Gain Figure is in dBd so 0 dB subtracted", "SystemGain(1): -3.29",
                 "SystemGain(1) formula: 0 + ((3.275 + 0.01304) * -1) = -3.29",
                 "CoaxPowerLoss(1) formula: 100 - (100 * 0.4677) = 53.23", "CoaxPowerLoss(1): 53.23",
                 "FeedPointPower(1): 46.77", "VSWRAttenuation(1): 0.0100", "VSWRPowerLoss(1): 0.00",
                 "AntennaPowerGain(1) formula: (46.77 * 1) - 46.77 = 0", "AntennaPowerGain(1): 0.00",
                 "FeedPointPower(1) formula: (46.77 * 1) = 46.77", "ERP(1): 46.77"});

    EXPECT_EQ(ResultsOfOne().SystemGain, -3.29F);
    EXPECT_EQ(ResultsOfOne().CoaxDBLoss, 3.2749999F) << "2.5 * 1.31 as floats, stored unrounded";
}

TEST_F(CalculationExample, NegativeAntennaGainIsOffTheTable)
{
    SetAntenna(SystemId::One, -0.1F, "dBd");
    calculations.RefreshData(1);

    EXPECT_EQ(ResultsOfOne().SystemGain, -1.42F);
    EXPECT_EQ(ResultsOfOne().AntennaPowerGain, 0.0F);
    EXPECT_EQ(ResultsOfOne().ERP, 0.0F);
}

TEST_F(CalculationExample, CoaxOf20dBIsOffTheTableAndLosesNoPowerAsGiven)
{
    One().CoaxLength = 2000.0F;
    One().CoaxLoss = 1.0F;
    calculations.RefreshData(1);

    EXPECT_EQ(ResultsOfOne().CoaxPowerLoss, 0.0F);
    EXPECT_EQ(ResultsOfOne().FeedPointPower, 100.0F);
    EXPECT_EQ(ResultsOfOne().SystemGain, -15.01F);
    EXPECT_EQ(ResultsOfOne().ERP, 316.2F);
    EXPECT_EQ(display.Formula(ResultLabel::CoaxPowerLoss, SystemId::One), "");
}

TEST_F(CalculationExample, WithoutAnAntennaTheERPStaysAndIsNotShown)
{
    One().UseAntennaList = kFalse;
    ResultsOfOne().ERP = 77.5F;
    calculations.RefreshData(1);

    EXPECT_EQ(ResultsOfOne().ERP, 77.5F);
    EXPECT_EQ(display.Result(ResultLabel::ERP, SystemId::One), "");
    EXPECT_EQ(display.Formula(ResultLabel::FeedPointPower, SystemId::One), "");
    EXPECT_EQ(ResultsOfOne().AntennaPowerGain, 160.26904F) << "all else is computed";
    EXPECT_EQ(display.Lines().back(), "CompareSystems");
}

/// A cable of 0.1 * sqrt(F) + 0.002 * F dB per 100 ft: 0.40599173 dB at 14.25 MHz.
class KFactorExample : public CalculationsTest
{
protected:
    void Choose(float coaxLength)
    {
        systems.CoaxSpec = {0.0F, 0.1F, 0.002F};
        One().CoaxBrand = "TIMES MICROWAVE";
        One().Frequency = 14.25F;
        One().CoaxLength = coaxLength;
        One().CoaxLoss = CoaxLossOf(One(), systems.CoaxSpec);
        calculations.RefreshData(1);
    }
};

TEST_F(KFactorExample, HundredFeetLoseThePlainKFactorLoss)
{
    Choose(100.0F);
    EXPECT_EQ(ResultsOfOne().CoaxDBLoss, 0.40599173F);
    EXPECT_EQ(display.Result(ResultLabel::CoaxDBLoss, SystemId::One), "0.41");
    EXPECT_EQ(ResultsOfOne().CoaxPowerLoss, 8.76F) << "100 - 100 * 0.9124";
    EXPECT_EQ(ResultsOfOne().ERP, 288.5F) << "91.24 * 3.162";
    EXPECT_EQ(ResultsOfOne().SystemGain, 4.58F);
}

TEST_F(KFactorExample, FiftyFeetLoseAQuarterBecauseTheLengthEntersTwiceAsGiven)
{
    Choose(50.0F);
    EXPECT_EQ(ResultsOfOne().CoaxDBLoss, 0.10149793F);
    EXPECT_EQ(display.Result(ResultLabel::CoaxDBLoss, SystemId::One), "0.10");
    EXPECT_EQ(ResultsOfOne().CoaxPowerLoss, 2.25F) << "100 - 100 * 0.9775";
    EXPECT_EQ(ResultsOfOne().ERP, 309.09F) << "97.75 * 3.162 = 309.0855";
    EXPECT_EQ(display.Formula(ResultLabel::SystemGain, SystemId::One), "5 + ((0.1014979 + 0.01304) * -1) = 4.89");
}

} // namespace
} // namespace quillon::engine
