#include "tests/engine/calculations_fixture.h"

#include <climits>
#include <stdexcept>

namespace quillon::engine {
namespace {

TEST_F(CalculationsTest, SystemTwoShowsInItsOwnLabelsAndLeavesSystemOneAlone)
{
    const SystemResults before = ResultsOfOne();
    systems.Data[SystemId::Two].XmitPower = 50.0F;
    calculations.RefreshData(2);

    EXPECT_EQ(ResultsOfOne(), before);
    EXPECT_EQ(systems.Results[SystemId::Two].FeedPointPower, 37.06F) << "50 - (50 - 37.065 rounded to 12.94)";
    for (const std::string& line : display.Lines()) {
        EXPECT_TRUE(line == "CompareSystems" || line.find("(2)") != std::string::npos) << line;
    }
}

TEST_F(CalculationsTest, TextsUseTheSeparatorGiven)
{
    Calculations withComma(systems, display, hooks, ",");
    withComma.BuildDBTable();
    withComma.BuildVSWRTable();
    withComma.RefreshData(1);

    EXPECT_EQ(display.Lines(),
              (Lines{"CoaxDBLoss(1): 1,31", "AntennaGain(1): 5,00",
                     "AntennaGain(1) formula: Antenna Gain Figure is in dBd so 0 dB subtracted", "SystemGain(1): 3,68",
                     "SystemGain(1) formula: 5 + ((1,31 + 0,01304) * -1) = 3,68",
                     "CoaxPowerLoss(1) formula: 100 - (100 * 0,7413) = 25,87", "CoaxPowerLoss(1): 25,87",
                     "FeedPointPower(1): 74,13", "VSWRAttenuation(1): 0,0100", "VSWRPowerLoss(1): 0,00",
                     "AntennaPowerGain(1) formula: (74,13 * 3,162) - 74,13 = 160,269", "AntennaPowerGain(1): 160,27",
                     "FeedPointPower(1) formula: (74,13 * 3,162) = 234,399", "ERP(1): 234,40", "CompareSystems"}));
    EXPECT_EQ(ResultsOfOne().ERP, 234.4F) << "the separator is for the eye only";
}

TEST_F(CalculationsTest, GainUnitIsNamedOnlyWhenItIsOneOfTheTwo)
{
    for (const char* gainType : {"", "dB", "DBI", "dBi ", "dBi free space", "dBdx"}) {
        SetAntenna(SystemId::One, 5.0F, gainType);
        calculations.RefreshData(1);
        EXPECT_EQ(display.Formula(ResultLabel::AntennaGain, SystemId::One), "") << '"' << gainType << '"';
    }
}

TEST_F(CalculationsTest, AntennaGainShowsTheInputAndSystemGainUsesTheResult)
{
    One().AntennaGain = 3.0F;
    ResultsOfOne().AntennaGainDBd = 5.0F;
    calculations.RefreshData(1);

    EXPECT_EQ(display.Result(ResultLabel::AntennaGain, SystemId::One), "3.00");
    EXPECT_EQ(ResultsOfOne().SystemGain, 3.68F);
    EXPECT_EQ(ResultsOfOne().AntennaPowerGain, 73.759346F) << "74.13 * 1.995 - 74.13";
    EXPECT_EQ(ResultsOfOne().AntennaGainDBd, 5.0F) << "an input of the computation, though kept with its results";
}

TEST_F(CalculationsTest, SystemGainTakesTheConnectorLossOfTheResults)
{
    One().ConnectorLoss = 9.0F;
    calculations.RefreshData(1);
    EXPECT_EQ(ResultsOfOne().SystemGain, 3.68F);
}

TEST_F(CalculationsTest, ReservedPlaceIsNeverWritten)
{
    ResultsOfOne().Reserved = 42.0F;
    calculations.RefreshData(1);
    EXPECT_EQ(ResultsOfOne().Reserved, 42.0F);
}

// Beeps and search steps

TEST_F(CalculationsTest, SystemOneIsHeardInTheOrderOfTheComputation)
{
    calculations.RefreshData(1);
    // Coax loss 1.3 takes 8 steps, gain 5.0 takes 2. The ERP beeps only after its formula.
    EXPECT_EQ(hooks.Record(), "B........B..B..B");
}

TEST_F(CalculationsTest, SystemTwoIsSilent)
{
    calculations.RefreshData(2);
    EXPECT_EQ(hooks.Record(), "............");
}

TEST_F(CalculationsTest, OffTheTableNothingIsHeardAfterTheSearch)
{
    SetAntenna(SystemId::One, 20.0F, "dBd");
    calculations.RefreshData(1);
    EXPECT_EQ(hooks.Record(), "B........B................");
}

TEST_F(CalculationsTest, EachKindIsHeardInItsOwnWay)
{
    calculations.ComputeCoaxDBLoss(1);
    ResultsOfOne().SystemGain = 5.0F;
    const Lines expected{"B..B", "B..", "B........", "..B"};
    for (int kind = 1; kind <= 4; ++kind) {
        hooks.Clear();
        calculations.PowerFromDB(kind, 1);
        EXPECT_EQ(hooks.Record(), expected.at(static_cast<std::size_t>(kind - 1))) << "kind " << kind;
    }
}

// Flag 3

TEST_F(CalculationsTest, WithoutFlag3OnlyTheCoaxLossIsComputed)
{
    systems.State[SystemId::One].SetFlag(kComputeFlag, kFalse);
    SystemResults expected = ResultsOfOne();
    expected.CoaxDBLoss = 1.31F;
    calculations.RefreshData(1);

    EXPECT_EQ(ResultsOfOne(), expected);
    EXPECT_EQ(display.Lines(), Lines{"CoaxDBLoss(1): 1.31"});
    EXPECT_EQ(hooks.Record(), "");
}

TEST_F(CalculationsTest, WithoutFlag3ShowSystemResultsDoesNothing)
{
    systems.State[SystemId::One].SetFlag(kComputeFlag, kFalse);
    const SystemResults before = ResultsOfOne();
    calculations.ShowSystemResults(1);

    EXPECT_EQ(ResultsOfOne(), before);
    EXPECT_TRUE(display.Lines().empty());
    EXPECT_EQ(hooks.Record(), "");
}

TEST_F(CalculationsTest, Flag3OfTheOtherSystemDoesNotCount)
{
    systems.State[SystemId::Two].SetFlag(kComputeFlag, kFalse);
    calculations.RefreshData(1);
    EXPECT_EQ(ResultsOfOne().ERP, 234.4F);
}

TEST_F(CalculationsTest, OtherFlagsDoNotCount)
{
    for (const int number : {1, 2, 4, 5, 6}) {
        systems.State[SystemId::One].SetFlag(number, kTrue);
    }
    systems.State[SystemId::One].SetFlag(kComputeFlag, kFalse);
    calculations.ShowSystemResults(1);
    EXPECT_TRUE(display.Lines().empty());
}

// The steps by themselves

TEST_F(CalculationsTest, ComputeCoaxDBLossStoresUnroundedAndShowsRounded)
{
    One().CoaxLength = 33.0F;
    One().CoaxLoss = 1.234F;
    calculations.ComputeCoaxDBLoss(1);
    EXPECT_EQ(ResultsOfOne().CoaxDBLoss, 0.40722F);
    EXPECT_EQ(display.Lines(), Lines{"CoaxDBLoss(1): 0.41"});
}

TEST_F(CalculationsTest, ShowSystemResultsTakesTheCoaxLossAsItStands)
{
    ResultsOfOne().CoaxDBLoss = 3.0F;
    calculations.ShowSystemResults(1);
    EXPECT_EQ(ResultsOfOne().CoaxPowerLoss, 49.87F) << "100 - 100 * 0.5013";
    EXPECT_EQ(display.Result(ResultLabel::CoaxDBLoss, SystemId::One), "");
}

TEST_F(CalculationsTest, PowerFromDBGivesAPowerAndShowsOnlyItsFormula)
{
    ResultsOfOne().FeedPointPower = 74.13F;
    const SystemResults before = ResultsOfOne();
    EXPECT_EQ(calculations.PowerFromDB(1, 1), 160.26904F);
    EXPECT_EQ(calculations.PowerFromDB(4, 1), 234.39905F);
    EXPECT_EQ(ResultsOfOne(), before);
    EXPECT_EQ(display.Lines(), (Lines{"AntennaPowerGain(1) formula: (74.13 * 3.162) - 74.13 = 160.269",
                                      "FeedPointPower(1) formula: (74.13 * 3.162) = 234.399"}));
}

TEST_F(CalculationsTest, ZeroDecibelsPassThePowerAsItIs)
{
    SetAntenna(SystemId::One, 0.0F, "dBd");
    ResultsOfOne().FeedPointPower = 74.13F;
    EXPECT_EQ(calculations.PowerFromDB(1, 1), 0.0F);
    EXPECT_EQ(calculations.PowerFromDB(4, 1), 74.13F);
}

TEST_F(CalculationsTest, RowsBesideThePowerOfTenAreUsedAsGiven)
{
    ResultsOfOne().FeedPointPower = 1.0F;
    SetAntenna(SystemId::One, 5.1F, "dBd");
    EXPECT_EQ(calculations.PowerFromDB(4, 1), 3.326F);
    SetAntenna(SystemId::One, 15.2F, "dBd");
    EXPECT_EQ(calculations.PowerFromDB(4, 1), 35.11F);
}

TEST_F(CalculationsTest, SystemPowerOfANegativeGainTakesTheLossCoefficient)
{
    ResultsOfOne().SystemGain = -3.0F;
    EXPECT_EQ(calculations.PowerFromDB(2, 1), 50.13F);
    EXPECT_EQ(display.Lines(), Lines{"SystemGain(1) formula: 100 * 0.5013 = 50.13"});
}

TEST_F(CalculationsTest, SystemPowerOfAPositiveGainTakesTheGainCoefficient)
{
    ResultsOfOne().SystemGain = 3.0F;
    EXPECT_EQ(calculations.PowerFromDB(2, 1), 199.5F);
}

TEST_F(CalculationsTest, ApplyVSWRGivesTheAcceptedPowerAndSetsTheMismatchFigures)
{
    One().VSWR = 1.5F;
    EXPECT_EQ(calculations.ApplyVSWR(100.0F, 1), 97.439995F);
    EXPECT_EQ(ResultsOfOne().VSWRAttenuation, 0.1173F);
    EXPECT_EQ(ResultsOfOne().VSWRPowerLoss, 2.56F);
    EXPECT_TRUE(display.Lines().empty());
}

TEST_F(CalculationsTest, MismatchLossInWattsIsRoundedToFourPlaces)
{
    One().VSWR = 1.2F;
    EXPECT_EQ(calculations.ApplyVSWR(1.5F, 1), 1.49955F);
    EXPECT_EQ(ResultsOfOne().VSWRPowerLoss, 0.0005F) << "0.00045";
}

TEST_F(CalculationsTest, ApplyVSWROffTheTableGivesNothingAndLeavesTheMismatchFigures)
{
    ResultsOfOne().VSWRAttenuation = 0.25F;
    ResultsOfOne().VSWRPowerLoss = 1.5F;
    for (const float vswr : {4.0F, 0.9F, 1.55F}) {
        One().VSWR = vswr;
        EXPECT_EQ(calculations.ApplyVSWR(100.0F, 1), 0.0F) << vswr;
    }
    EXPECT_EQ(ResultsOfOne().VSWRAttenuation, 0.25F);
    EXPECT_EQ(ResultsOfOne().VSWRPowerLoss, 1.5F);
}

// Tables and range errors

TEST_F(CalculationsTest, TablesHoldNothingBeforeTheyAreBuilt)
{
    Calculations unbuilt(systems, display, hooks);
    ResultsOfOne().FeedPointPower = 74.13F;
    SetAntenna(SystemId::One, 0.0F, "dBd");
    EXPECT_EQ(unbuilt.PowerFromDB(4, 1), 0.0F);
    EXPECT_EQ(unbuilt.ApplyVSWR(100.0F, 1), 0.0F);
    EXPECT_EQ(ResultsOfOne().VSWRAttenuation, 0.0F);
    EXPECT_TRUE(display.Lines().empty());
}

TEST_F(CalculationsTest, DBTableIsTheOneThatWasBuilt)
{
    EXPECT_EQ(calculations.dBTable(), BuildDBTable());
}

TEST_F(CalculationsTest, AnyOtherSystemNumberIsARangeError)
{
    for (const int system : {0, 3, -1, INT_MIN, INT_MAX}) {
        EXPECT_THROW(calculations.PowerFromDB(1, system), std::out_of_range) << system;
        EXPECT_THROW(calculations.ApplyVSWR(100.0F, system), std::out_of_range) << system;
        EXPECT_THROW(calculations.ComputeCoaxDBLoss(system), std::out_of_range) << system;
        EXPECT_THROW(calculations.ShowSystemResults(system), std::out_of_range) << system;
        EXPECT_THROW(calculations.RefreshData(system), std::out_of_range) << system;
    }
    EXPECT_TRUE(display.Lines().empty());
    EXPECT_EQ(hooks.Record(), "");
}

TEST_F(CalculationsTest, AnyOtherKindIsARangeErrorAndSilent)
{
    for (const int kind : {0, 5, -1}) {
        EXPECT_THROW(calculations.PowerFromDB(kind, 1), std::out_of_range) << kind;
    }
    EXPECT_EQ(hooks.Record(), "");
}

} // namespace
} // namespace quillon::engine
