#include "ui/report/comparison_rules.h"

#include "engine/arithmetic_error.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace quillon::ui {
namespace {

const ComparisonRow& RowAt(int number)
{
    const auto rows = ComparisonRows();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [number](const ComparisonRow& row) { return row.row == number; });
    if (found == rows.end()) {
        throw std::out_of_range("no such row");
    }
    return *found;
}

/// Compares two texts by the rule of a row, as they would stand in its fields.
std::string Compare(int number, const std::string& one, const std::string& two, std::string_view separator = ".")
{
    const ComparisonRow& row = RowAt(number);
    ComparisonRecords records;
    if (row.field != nullptr) {
        records.SystemOneText.*row.field = one;
        records.SystemTwoText.*row.field = two;
    }
    return CompareRow(row, {records, {one, two}}, separator);
}

struct SentenceRow
{
    std::string name;
    int row;
    std::string one;
    std::string two;
    std::string sentence;
};

void PrintTo(const SentenceRow& row, std::ostream* out)
{
    *out << row.name;
}

class Sentence : public testing::TestWithParam<SentenceRow>
{
};

TEST_P(Sentence, OfTheRow)
{
    EXPECT_EQ(Compare(GetParam().row, GetParam().one, GetParam().two), GetParam().sentence);
}

TEST(ComparisonRows, AreComparedInOrderOfTheReport)
{
    std::vector<int> numbers;
    for (const ComparisonRow& row : ComparisonRows()) {
        numbers.push_back(row.row);
    }
    EXPECT_EQ(numbers, (std::vector<int>{2, 3, 5, 6, 8, 9, 10, 11, 13, 14, 15, 16, 18, 19, 20, 21, 22}));
}

TEST(ComparisonRows, OnlyThePowerRowLooksAtBothSystemsForEmptinessAsGiven)
{
    EXPECT_EQ(RowAt(19).secondTested, engine::SystemId::Two);
    EXPECT_EQ(RowAt(20).secondTested, engine::SystemId::One);
    EXPECT_EQ(RowAt(21).secondTested, engine::SystemId::One);
    EXPECT_EQ(RowAt(22).secondTested, engine::SystemId::One);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Sentence,
    testing::Values(SentenceRow{"2 equal", 2, "Acme", "Acme", "Antenna Brands Are Equal"},
                    SentenceRow{"2 equal but for case", 2, "Acme", "ACME", "Antenna Brands Are Equal"},
                    SentenceRow{"2 equal but for case beyond ASCII", 2, "M\xFChle \x9A", "M\xDCHLE \x8A",
                                "Antenna Brands Are Equal"},
                    SentenceRow{"2 differ", 2, "Acme", "Acne", "Antenna Brands Are Dissimilar"},
                    SentenceRow{"2 both empty are equal", 2, "", "", "Antenna Brands Are Equal"},
                    SentenceRow{"2 a leading blank counts", 2, " Acme", "Acme", "Antenna Brands Are Dissimilar"},
                    SentenceRow{"3 equal", 3, "x-1", "X-1", "Antenna Models Are Equal"},
                    SentenceRow{"3 differ", 3, "x-1", "x-10", "Antenna Models Are Dissimilar"},
                    SentenceRow{"5 equal with a small e, as given", 5, "Box", "box", "Coax Brands are equal"},
                    SentenceRow{"5 differ", 5, "Box", "Fox", "Coax Brands Are Dissimilar"},
                    SentenceRow{"6 equal with a small e, as given", 6, "RG-8", "rg-8", "Coax Types are equal"},
                    SentenceRow{"6 differ", 6, "RG-8", "RG-8X", "Coax Types Are Dissimilar"},
                    SentenceRow{"18 equal", 18, "14.25", "14.25", "Transmit Frequencies Are Equal"},
                    SentenceRow{"18 differ", 18, "14.25", "7.23", "Transmit Frequencies Are Dissimilar"},
                    SentenceRow{"18 texts and not numbers", 18, "7.2", "7.20", "Transmit Frequencies Are Dissimilar"}),
    support::RowName());

INSTANTIATE_TEST_SUITE_P(
    Positive, Sentence,
    testing::Values(SentenceRow{"8 one ahead", 8, "100.00", "80.00", "System 1 ERP is + 20.00 Watts"},
                    SentenceRow{"8 two ahead", 8, "80.00", "100.25", "System 2 ERP is + 20.25 Watts"},
                    SentenceRow{"8 equal", 8, "80.00", "80.00", "System ERP's Are Equal"},
                    SentenceRow{"8 zero in one", 8, "0.00", "80.00", "Calc Error"},
                    SentenceRow{"8 zero in two", 8, "80.00", "0.00", "Calc Error"},
                    SentenceRow{"8 zero in both", 8, "0.00", "0.00", "Calc Error"},
                    SentenceRow{"8 less than one", 8, "0.75", "0.50", "System 1 ERP is + 0.25 Watts"},
                    SentenceRow{"8 seven digits", 8, "1284326.00", "1.00", "System 1 ERP is + 1284325.00 Watts"},
                    SentenceRow{"9 one ahead", 9, "10.50", "4.25", "Ant 1 Power Gain is + 6.25 Watts"},
                    SentenceRow{"9 two ahead", 9, "4.25", "10.50", "Ant 2 Power Gain is + 6.25 Watts"},
                    SentenceRow{"9 equal", 9, "4.25", "4.25", "Antenna Power Gains Are Equal"},
                    SentenceRow{"9 negative is an error", 9, "-4.25", "4.25", "Calc Error"},
                    SentenceRow{"10 one ahead", 10, "5.5", "2.0", "Antenna 1 Gain is + 3.50 dB"},
                    SentenceRow{"10 two ahead", 10, "2.0", "5.5", "Antenna 2 Gain is + 3.50 dB"},
                    SentenceRow{"10 equal", 10, "2.0", "2.0", "Antenna dB Gains Are Equal"},
                    SentenceRow{"10 no gain in one is an error, as given", 10, "0.0", "2.0", "Calc Error"},
                    SentenceRow{"10 no gain in two is an error, as given", 10, "2.0", "0.0", "Calc Error"},
                    SentenceRow{"10 gain below 0 dB is an error, as given", 10, "2.0", "-0.1", "Calc Error"},
                    SentenceRow{"11 one ahead", 11, "90.00", "89.50", "Ant 1 Feedpoint Power is + 0.50 Watts"},
                    SentenceRow{"11 two ahead", 11, "89.50", "90.00", "Ant 2 Feedpoint Power is + 0.50 Watts"},
                    SentenceRow{"11 equal", 11, "90.00", "90.00", "Antenna Feedpoint Power's Are Equal"},
                    SentenceRow{"11 zero", 11, "90.00", "0.00", "Calc Error"},
                    SentenceRow{"15 one ahead", 15, "1.50", "1.25", "Coax 1 dB Loss is 0.25 dB Greater"},
                    SentenceRow{"15 two ahead", 15, "1.25", "1.50", "Coax 2 dB Loss is 0.25 dB Greater"},
                    SentenceRow{"15 equal", 15, "1.25", "1.25", "Coax dB Losses Are Equal"},
                    SentenceRow{"15 zero", 15, "0.00", "1.25", "Calc Error"},
                    SentenceRow{"16 one ahead", 16, "20.50", "10.25", "Coax 1 Power Loss is 10.25 Watts Greater"},
                    SentenceRow{"16 two ahead", 16, "10.25", "20.50", "Coax 2 Power Loss is 10.25 Watts Greater"},
                    SentenceRow{"16 equal speaks of dB, as given", 16, "10.25", "10.25", "Coax dB Losses Are Equal"},
                    SentenceRow{"16 zero", 16, "10.25", "0.00", "Calc Error"}),
    support::RowName());

INSTANTIATE_TEST_SUITE_P(
    BlankRule, Sentence,
    testing::Values(SentenceRow{"25 digits without a blank count as 0", 8, "1000000000000000000000000", "80.00",
                                "Calc Error"},
                    SentenceRow{"24 digits and a blank are read", 8, "100000000000000000000000", "80.00",
                                "System 1 ERP is + 100000000000000000000000.00 Watts"},
                    SentenceRow{"a field never assigned counts as 0", 15, std::string(25, '\0'), "80.00", "Calc Error"},
                    SentenceRow{"a length never assigned counts as 0", 14, std::string(25, '\0'), "80", "Calc Error"},
                    SentenceRow{"power has no blank rule", 19, "1000000000000000000000000", "000.00",
                                "System One Power is 1000000000000000000000000.00 W. Higher"}),
    support::RowName());

INSTANTIATE_TEST_SUITE_P(
    TextThenNumber, Sentence,
    testing::Values(SentenceRow{"19 equal", 19, "100.00", "100.00", "Power Values Are Equal"},
                    SentenceRow{"19 one ahead", 19, "100.00", "005.00", "System One Power is 95.00 W. Higher"},
                    SentenceRow{"19 two ahead", 19, "005.00", "1500.00", "System Two Power is 1495.00 W. Higher"},
                    SentenceRow{"19 zero is no error", 19, "000.00", "005.00", "System Two Power is 5.00 W. Higher"},
                    SentenceRow{"19 negative is no error", 19, "-005.00", "005.00",
                                "System Two Power is 10.00 W. Higher"},
                    SentenceRow{"19 texts differ and numbers do not: no sentence, as given", 19, "005.00", "5.00", ""},
                    SentenceRow{"20 equal", 20, "1.1", "1.1", "VSWR Values Are Equal"},
                    SentenceRow{"20 one ahead", 20, "1.5", "1.3", "System One VSWR is 0.20 Higher"},
                    SentenceRow{"20 two ahead", 20, "1.1", "3.9", "System Two VSWR is 2.80 Higher"},
                    SentenceRow{"20 texts differ and numbers do not: no sentence, as given", 20, "1.50", "1.5", ""},
                    SentenceRow{"21 equal", 21, "0.00", "0.00", "VSWR Watt Attenuation Values Are Equal"},
                    SentenceRow{"21 one ahead", 21, "4.75", "4.25", "Sys 1 VSWR Attenuation is + 0.50 Watts"},
                    SentenceRow{"21 two ahead", 21, "0.00", "54.13", "Sys 2 VSWR Attenuation is + 54.13 Watts"},
                    SentenceRow{"22 equal", 22, "0.0100", "0.0100", "VSWR dB Attenuation Values Are Equal"},
                    SentenceRow{"22 one ahead", 22, "0.1773", "0.0100", "Sys 1 VSWR Attenuation is + 0.17 dB"},
                    SentenceRow{"22 two ahead", 22, "0.0100", "0.9645", "Sys 2 VSWR Attenuation is + 0.95 dB"},
                    SentenceRow{"22 a difference below its mask shows as 0", 22, "0.0120", "0.0100",
                                "Sys 1 VSWR Attenuation is + 0.00 dB"}),
    support::RowName());

INSTANTIATE_TEST_SUITE_P(
    CoaxLoss, Sentence,
    testing::Values(
        SentenceRow{"13 equal with a point behind Ft, as given", 13, "0.47", "0.47", "Coax Loss / 100 Ft. is equal"},
        SentenceRow{"13 one ahead", 13, "0.75", "0.50", "System 1 Coax Loss / 100 Ft is 0.25 Greater"},
        SentenceRow{"13 two ahead", 13, "0.50", "10.75", "System 2 Coax Loss / 100 Ft is 10.25 Greater"},
        SentenceRow{"13 zero is no error", 13, "0.00", "0.50", "System 2 Coax Loss / 100 Ft is 0.50 Greater"},
        SentenceRow{"13 both zero are equal", 13, "0.00", "0.00", "Coax Loss / 100 Ft. is equal"},
        SentenceRow{"13 below zero is no error", 13, "-0.50", "0.50", "System 2 Coax Loss / 100 Ft is 1.00 Greater"},
        SentenceRow{"13 an empty text counts as 0", 13, "", "0.50", "System 2 Coax Loss / 100 Ft is 0.50 Greater"}),
    support::RowName());

INSTANTIATE_TEST_SUITE_P(
    CoaxLength, Sentence,
    testing::Values(SentenceRow{"14 equal", 14, "100", "100", "Coax Cable Lengths Are Equal"},
                    SentenceRow{"14 one ahead", 14, "100", "75", "System 1 Coax is 25 Feet Longer"},
                    SentenceRow{"14 two ahead", 14, "75", "3500", "System 2 Coax is 3425 Feet Longer"},
                    SentenceRow{"14 equal once rounded", 14, "50.4", "49.6", "Coax Cable Lengths Are Equal"},
                    SentenceRow{"14 halves round to even", 14, "50.5", "51.5", "System 2 Coax is 2 Feet Longer"},
                    SentenceRow{"14 half a foot rounds to none", 14, "0.5", "100", "Calc Error"},
                    SentenceRow{"14 more than half a foot is one", 14, "0.6", "1", "Coax Cable Lengths Are Equal"},
                    SentenceRow{"14 no length in two", 14, "100", "0", "Calc Error"},
                    SentenceRow{"14 negative", 14, "-100", "100", "Calc Error"},
                    SentenceRow{"14 the longest", 14, "32767", "1", "System 1 Coax is 32766 Feet Longer"},
                    SentenceRow{"14 the longest before rounding", 14, "32767.4", "1",
                                "System 1 Coax is 32766 Feet Longer"}),
    support::RowName());

TEST(CoaxLength, BeyondSixteenBitsIsAnOverflow)
{
    EXPECT_THROW((void)Compare(14, "32767.5", "100"), engine::ArithmeticError);
    EXPECT_THROW((void)Compare(14, "100", "40000"), engine::ArithmeticError);
    EXPECT_THROW((void)Compare(14, "-40000", "100"), engine::ArithmeticError);
}

TEST(Differences, ShowTheSeparatorWhileTheirFieldsKeepThePoint)
{
    EXPECT_EQ(Compare(8, "100.50", "80.00", ","), "System 1 ERP is + 20,50 Watts");
    EXPECT_EQ(Compare(13, "0.75", "0.50", ","), "System 1 Coax Loss / 100 Ft is 0,25 Greater");
    EXPECT_EQ(Compare(19, "100.00", "005.50", ","), "System One Power is 94,50 W. Higher");
    EXPECT_EQ(Compare(14, "50.6", "49", ","), "System 1 Coax is 2 Feet Longer");
}

TEST(NumericFields, ThatHoldNoNumberAreATypeError)
{
    for (const std::string text : {"12x", "x", "", "1,5", "1 2", "inf", "nan"}) {
        EXPECT_THROW((void)Compare(8, text, "1.00"), ComparisonTypeError) << text;
        EXPECT_THROW((void)Compare(14, "100", text), ComparisonTypeError) << text;
        EXPECT_THROW((void)Compare(20, text, "1.1"), ComparisonTypeError) << text;
    }
}

} // namespace
} // namespace quillon::ui
