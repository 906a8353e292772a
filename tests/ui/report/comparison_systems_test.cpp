#include "tests/ui/report/report_systems.h"
#include "ui/report/comparison_rules.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace quillon::ui {
namespace {

using engine::SystemId;

/// Sentences by row, from the records to the words.
std::map<int, std::string> Sentences(const engine::AntennaSystems& systems)
{
    ComparisonRecords records;
    FillComparisonTexts(systems, records);
    std::map<int, std::string> sentences;
    for (const ComparisonRow& row : ComparisonRows()) {
        sentences[row.row] = CompareRow(row, InputOf(systems, records));
    }
    return sentences;
}

TEST(IdenticalSystems, AreEqualInEveryRow)
{
    const std::map<int, std::string> expected{
        {2, "Antenna Brands Are Equal"},
        {3, "Antenna Models Are Equal"},
        {5, "Coax Brands are equal"},
        {6, "Coax Types are equal"},
        {8, "System ERP's Are Equal"},
        {9, "Antenna Power Gains Are Equal"},
        {10, "Antenna dB Gains Are Equal"},
        {11, "Antenna Feedpoint Power's Are Equal"},
        {13, "Coax Loss / 100 Ft. is equal"},
        {14, "Coax Cable Lengths Are Equal"},
        {15, "Coax dB Losses Are Equal"},
        {16, "Coax dB Losses Are Equal"},
        {18, "Transmit Frequencies Are Equal"},
        {19, "Power Values Are Equal"},
        {20, "VSWR Values Are Equal"},
        {21, "VSWR Watt Attenuation Values Are Equal"},
        {22, "VSWR dB Attenuation Values Are Equal"},
    };
    EXPECT_EQ(Sentences(EqualSystems()), expected);
}

TEST(DifferentSystems, AreComparedAtThePrecisionOfTheirMasks)
{
    const std::map<int, std::string> expected{
        {2, "Antenna Brands Are Dissimilar"},
        {3, "Antenna Models Are Dissimilar"},
        {5, "Coax Brands Are Dissimilar"},
        {6, "Coax Types Are Dissimilar"},
        {8, "System 1 ERP is + 334.13 Watts"},
        {9, "Ant 1 Power Gain is + 248.93 Watts"},
        {10, "Antenna 1 Gain is + 3.70 dB"},
        {11, "Ant 1 Feedpoint Power is + 85.18 Watts"},
        {13, "System 2 Coax Loss / 100 Ft is 0.15 Greater"},
        // 75.5 ft are 76 ft, to even.
        {14, "System 1 Coax is 24 Feet Longer"},
        {15, "Coax dB Losses Are Equal"},
        {16, "Coax 1 Power Loss is 9.75 Watts Greater"},
        {18, "Transmit Frequencies Are Dissimilar"},
        {19, "System One Power is 95.00 W. Higher"},
        {20, "System Two VSWR is 0.40 Higher"},
        // The power lost, though the values of the row show the attenuation, as given.
        {21, "Sys 2 VSWR Attenuation is + 53.88 Watts"},
        {22, "Sys 2 VSWR Attenuation is + 0.17 dB"},
    };
    EXPECT_EQ(Sentences(DifferentSystems()), expected);
}

TEST(ComparedSystems, CoaxLossesThatRoundAlikeAreEqual)
{
    engine::AntennaSystems systems = DifferentSystems();
    systems.Results[SystemId::One].CoaxDBLoss = 10.004F;
    systems.Results[SystemId::Two].CoaxDBLoss = 10.001F;
    EXPECT_EQ(Sentences(systems)[15], "Coax dB Losses Are Equal");
}

TEST(ComparedSystems, ATieOfAMaskRoundsAwayFromZero)
{
    engine::AntennaSystems systems = EqualSystems();
    systems.Data[SystemId::One].AntennaGain = 2.15F;
    systems.Data[SystemId::Two].AntennaGain = 2.1F;
    EXPECT_EQ(Sentences(systems)[10], "Antenna 1 Gain is + 0.10 dB");
}

TEST(ComparedSystems, AnErpBelowItsMaskIsAnError)
{
    engine::AntennaSystems systems = EqualSystems();
    systems.Results[SystemId::Two].ERP = 0.004F;
    EXPECT_EQ(Sentences(systems)[8], "Calc Error");
}

TEST(ComparedSystems, ALengthTooLongForItsFieldIsAnError)
{
    engine::AntennaSystems systems = EqualSystems();
    // Its shortest text has 30 characters, of which the field keeps 25, none of them a blank.
    systems.Data[SystemId::One].CoaxLength = 1.5e-27F;
    EXPECT_EQ(Sentences(systems)[14], "Calc Error");
}

TEST(ComparedSystems, TheCoaxLossIsTheInputPerHundredFeet)
{
    engine::AntennaSystems systems = EqualSystems();
    systems.Data[SystemId::One].CoaxLoss = 1.254F;
    systems.Data[SystemId::Two].CoaxLoss = 1.246F;
    EXPECT_EQ(Sentences(systems)[13], "Coax Loss / 100 Ft. is equal");
}

} // namespace
} // namespace quillon::ui
