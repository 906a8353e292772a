#include "ui/report/report_rows.h"

#include "tests/support/row_name.h"
#include "tests/ui/report/report_systems.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>

namespace quillon::ui {
namespace {

using engine::SystemId;

const ReportRow& RowAt(int number)
{
    const auto rows = ReportRows();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [number](const ReportRow& row) { return row.row == number; });
    if (found == rows.end()) {
        throw std::out_of_range("no such row");
    }
    return *found;
}

struct ValueRow
{
    std::string name;
    int row;
    std::string caption;
    std::string one;
    std::string two;
};

void PrintTo(const ValueRow& row, std::ostream* out)
{
    *out << row.name;
}

class EveryValue : public testing::TestWithParam<ValueRow>
{
};

TEST_P(EveryValue, HasItsCaptionMaskAndUnit)
{
    const engine::AntennaSystems systems = DifferentSystems();
    const ReportRow& row = RowAt(GetParam().row);
    EXPECT_EQ(row.caption, GetParam().caption);
    EXPECT_EQ(ReportText(row, systems, SystemId::One), GetParam().one);
    EXPECT_EQ(ReportText(row, systems, SystemId::Two), GetParam().two);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EveryValue,
    testing::Values(
        ValueRow{"2 whole width", 2, "Antenna Brand", "Acme                     ", "Zenith                   "},
        ValueRow{"3 whole width", 3, "Antenna Model", "Tribander 3              ", "Dipole                   "},
        ValueRow{"5 whole width", 5, "Coax Cable Brand", "Boxwood        ", "Copperline     "},
        ValueRow{"6 whole width", 6, "Coax Cable Type", "BX-400              ", "CL 213              "},
        ValueRow{"8 two places", 8, "Antenna System ERP", "342.63 Watts ERP", "8.50 Watts ERP"},
        ValueRow{"9 plain", 9, "Antenna Power Gain", "253.0625 Watts", "4.125 Watts"},
        ValueRow{"10 plain", 10, "Antenna Gain dBd", "5.85 dB", "2.15 dB"},
        ValueRow{"11 plain", 11, "Feedpoint Power", "89.5625 Watts", "4.375 Watts"},
        ValueRow{"13 without a unit", 13, "Coax Loss / 100 Ft", "0.47", "0.62"},
        ValueRow{"14 plain", 14, "Coax Cable Length", "100 Ft.", "75.5 Ft."},
        ValueRow{"15 plain", 15, "Coax Loss dB", "0.47 dB", "0.4681 dB"},
        ValueRow{"16 plain", 16, "Coax Power Loss", "10.25 Watts", "0.5 Watts"},
        ValueRow{"18 plain", 18, "Transmit Frequency", "14.25 MHz", "7.23 MHz"},
        ValueRow{"19 plain", 19, "Transmit Power", "100 Watts", "5 Watts"},
        ValueRow{"20 one place", 20, "SWR Value", "1.1", "1.5"},
        ValueRow{"21 shows the attenuation under W, as given", 21, "SWR Attenuation W", "0.0100", "0.1773"},
        ValueRow{"22 shows the watts under dB, as given", 22, "SWR Attenuation dB", "0.3", "54.1"}),
    support::RowName());

TEST(ReportValues, AreThereForSeventeenRows)
{
    EXPECT_EQ(ReportRows().size(), 17U);
}

TEST(ReportValues, FollowTheWorkedExamples)
{
    engine::AntennaSystems systems;
    systems.Results[SystemId::One].ERP = 1234.5F;
    systems.Data[SystemId::One].VSWR = 1.5F;
    systems.Data[SystemId::One].CoaxLength = 100;
    systems.Data[SystemId::One].Frequency = 14.2F;
    EXPECT_EQ(ReportText(RowAt(8), systems, SystemId::One), "1234.50 Watts ERP");
    EXPECT_EQ(ReportText(RowAt(20), systems, SystemId::One), "1.5");
    EXPECT_EQ(ReportText(RowAt(14), systems, SystemId::One), "100 Ft.");
    EXPECT_EQ(ReportText(RowAt(18), systems, SystemId::One), "14.2 MHz");
}

TEST(ReportValues, WithoutAMaskAreTheShortestTextThatReadsBack)
{
    engine::AntennaSystems systems;
    // One float's width above 107.492, so nine digits are needed.
    systems.Results[SystemId::Two].AntennaPowerGain = 97.72F * 1.1F;
    EXPECT_EQ(ReportText(RowAt(9), systems, SystemId::Two), "107.492004 Watts");
}

TEST(ReportValues, OfASystemWithoutValuesAreZeros)
{
    const engine::AntennaSystems systems;
    EXPECT_EQ(ReportText(RowAt(8), systems, SystemId::One), "0.00 Watts ERP");
    EXPECT_EQ(ReportText(RowAt(9), systems, SystemId::One), "0 Watts");
    EXPECT_EQ(ReportText(RowAt(13), systems, SystemId::One), "0.00");
    EXPECT_EQ(ReportText(RowAt(20), systems, SystemId::One), "0.0");
    EXPECT_EQ(ReportText(RowAt(21), systems, SystemId::One), "0.0000");
    EXPECT_EQ(ReportText(RowAt(22), systems, SystemId::One), "0.0");
}

TEST(ReportValues, BelowZeroKeepTheirSign)
{
    engine::AntennaSystems systems;
    systems.Data[SystemId::One].AntennaGain = -2.15F;
    EXPECT_EQ(ReportText(RowAt(10), systems, SystemId::One), "-2.15 dB");
}

TEST(ReportValues, WithAMaskShowTheSeparatorAndPlainOnesThePointAsGiven)
{
    const engine::AntennaSystems systems = DifferentSystems();
    EXPECT_EQ(ReportText(RowAt(8), systems, SystemId::One, ","), "342,63 Watts ERP");
    EXPECT_EQ(ReportText(RowAt(13), systems, SystemId::One, ","), "0,47");
    EXPECT_EQ(ReportText(RowAt(21), systems, SystemId::One, ","), "0,0100");
    EXPECT_EQ(ReportText(RowAt(18), systems, SystemId::One, ","), "14.25 MHz");
}

TEST(ReportNames, AreReadInTheCodePageOfTheFiles)
{
    engine::AntennaSystems systems;
    systems.Data[SystemId::One].CoaxBrand = "K\xF6nig";
    EXPECT_EQ(ReportText(RowAt(5), systems, SystemId::One), "König          ");
}

} // namespace
} // namespace quillon::ui
