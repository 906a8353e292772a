#include "ui/report/comparison_text.h"

#include "tests/support/row_name.h"
#include "tests/ui/report/report_systems.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillon::ui {
namespace {

using engine::SystemData;
using engine::SystemId;
using Field = ComparisonField ComparisonTexts::*;

std::string Characters(const ComparisonField& field)
{
    return std::string(field.Padded());
}

std::string Padded(std::string text)
{
    text.resize(25, ' ');
    return text;
}

struct TextRow
{
    std::string name;
    Field field;
    std::string one;
    std::string two;
};

void PrintTo(const TextRow& row, std::ostream* out)
{
    *out << row.name;
}

class EveryField : public testing::TestWithParam<TextRow>
{
};

TEST_P(EveryField, IsFilledForBothSystems)
{
    ComparisonRecords records;
    FillComparisonTexts(DifferentSystems(), records);
    EXPECT_EQ(Characters(records.SystemOneText.*GetParam().field), Padded(GetParam().one));
    EXPECT_EQ(Characters(records.SystemTwoText.*GetParam().field), Padded(GetParam().two));
}

using Texts = ComparisonTexts;
INSTANTIATE_TEST_SUITE_P(
    Filled, EveryField,
    testing::Values(TextRow{"AntennaBrand", &Texts::AntennaBrand, "Acme", "Zenith"},
                    TextRow{"AntennaModel", &Texts::AntennaModel, "Tribander 3", "Dipole"},
                    TextRow{"CoaxBrand", &Texts::CoaxBrand, "Boxwood", "Copperline"},
                    TextRow{"CoaxModel", &Texts::CoaxModel, "BX-400", "CL 213"},
                    TextRow{"ERP with a tie up", &Texts::ERP, "342.63", "8.50"},
                    TextRow{"AntennaPowerGain with a tie up", &Texts::AntennaPowerGain, "253.06", "4.13"},
                    TextRow{"AntennaGain with ties up", &Texts::AntennaGain, "5.9", "2.2"},
                    TextRow{"FeedPointPower with a tie up", &Texts::FeedPointPower, "89.56", "4.38"},
                    TextRow{"CoaxLength plain", &Texts::CoaxLength, "100", "75.5"},
                    TextRow{"CoaxDBLoss", &Texts::CoaxDBLoss, "0.47", "0.47"},
                    TextRow{"CoaxPowerLoss", &Texts::CoaxPowerLoss, "10.25", "0.50"},
                    TextRow{"Frequency", &Texts::Frequency, "14.25", "7.23"},
                    TextRow{"XmitPower three digits at least, as given", &Texts::XmitPower, "100.00", "005.00"},
                    TextRow{"VSWR", &Texts::VSWR, "1.1", "1.5"},
                    TextRow{"VSWRPowerLoss with a tie up", &Texts::VSWRPowerLoss, "0.25", "54.13"},
                    TextRow{"VSWRAttenuation", &Texts::VSWRAttenuation, "0.0100", "0.1773"}),
    support::RowName());

TEST(ComparisonField, NeverAssignedHoldsNulCharacters)
{
    const ComparisonTexts texts;
    EXPECT_EQ(Characters(texts.AntennaBrand), std::string(25, '\0'));
    EXPECT_EQ(Characters(texts.ERP), std::string(25, '\0'));
    EXPECT_EQ(Characters(texts.VSWRAttenuation), std::string(25, '\0'));
}

TEST(ComparisonField, LongTextsAreCutToTwentyFiveCharacters)
{
    engine::AntennaSystems systems = DifferentSystems();
    systems.Results[SystemId::One].ERP = 1e30F;
    ComparisonRecords records;
    FillComparisonTexts(systems, records);
    EXPECT_EQ(Characters(records.SystemOneText.ERP), "1000000000000000000000000");
}

TEST(ComparisonField, NamesUseTheirWholeWidth)
{
    engine::AntennaSystems systems = DifferentSystems();
    SystemData& data = systems.Data[SystemId::Two];
    data.AntennaBrand = "abcdefghijklmnopqrstuvwxyz";
    data.CoaxBrand = "abcdefghijklmnopqrstuvwxyz";
    data.CoaxModel = "abcdefghijklmnopqrstuvwxyz";
    ComparisonRecords records;
    FillComparisonTexts(systems, records);
    EXPECT_EQ(Characters(records.SystemTwoText.AntennaBrand), "abcdefghijklmnopqrstuvwxy");
    EXPECT_EQ(Characters(records.SystemTwoText.CoaxBrand), Padded("abcdefghijklmno"));
    EXPECT_EQ(Characters(records.SystemTwoText.CoaxModel), Padded("abcdefghijklmnopqrst"));
}

struct FlagRow
{
    std::string name;
    engine::Boolean antenna;
    engine::Boolean coax;
    bool complete;
};

void PrintTo(const FlagRow& row, std::ostream* out)
{
    *out << row.name;
}

class ListFlags : public testing::TestWithParam<FlagRow>
{
};

TEST_P(ListFlags, DecideWhichSystemIsFilledAnew)
{
    for (const SystemId system : engine::kBothSystems) {
        engine::AntennaSystems systems = DifferentSystems();
        ComparisonRecords records;
        FillComparisonTexts(EqualSystems(), records);
        const ComparisonRecords before = records;

        systems.Data[system].UseAntennaList = GetParam().antenna;
        systems.Data[system].UseCoaxList = GetParam().coax;
        systems.Data[system].AntennaBrand = "Changed";
        systems.Results[system].ERP = 77;
        EXPECT_EQ(IsComplete(systems.Data[system]), GetParam().complete);
        FillComparisonTexts(systems, records);

        const bool isOne = system == SystemId::One;
        const ComparisonTexts& texts = isOne ? records.SystemOneText : records.SystemTwoText;
        const ComparisonTexts& old = isOne ? before.SystemOneText : before.SystemTwoText;
        if (GetParam().complete) {
            EXPECT_EQ(texts.AntennaBrand.Trimmed(), "Changed");
            EXPECT_EQ(texts.ERP.Trimmed(), "77.00");
        } else {
            EXPECT_EQ(texts, old);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, ListFlags,
                         testing::Values(FlagRow{"both", -1, -1, true}, FlagRow{"any value but 0 counts", 1, 2, true},
                                         FlagRow{"no antenna keeps the old texts", 0, -1, false},
                                         FlagRow{"no coax keeps the old texts", -1, 0, false},
                                         FlagRow{"neither keeps the old texts", 0, 0, false}),
                         support::RowName());

TEST(ListFlagsOfOneSystem, DoNotHoldTheOtherBack)
{
    engine::AntennaSystems systems = DifferentSystems();
    systems.Data[SystemId::One].UseCoaxList = engine::kFalse;
    ComparisonRecords records;
    FillComparisonTexts(systems, records);
    EXPECT_EQ(Characters(records.SystemOneText.ERP), std::string(25, '\0'));
    EXPECT_EQ(Characters(records.SystemTwoText.ERP), Padded("8.50"));
}

} // namespace
} // namespace quillon::ui
