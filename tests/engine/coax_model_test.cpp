#include "engine/coax_model.h"

#include "engine/arithmetic_error.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <vector>

namespace quillon::engine {
namespace {

constexpr float kLargest = std::numeric_limits<float>::max();

/// Losses at 1, 10, 50, 100, 200, 400, 700, 900 and 1000 MHz.
constexpr std::array<float, 9> kCable{0.5F, 1.1F, 2.1F, 3.25F, 4.75F, 7.0F, 9.25F, 10.5F, 11.25F};

/// A frequency given in kHz as the nearest float in MHz.
float Megahertz(int kilohertz)
{
    return static_cast<float>(kilohertz / 1000.0);
}

float Below(float value)
{
    return std::nextafter(value, 0.0F);
}

float Above(float value)
{
    return std::nextafter(value, kLargest);
}

struct SegmentRow
{
    const char* name;
    int firstKilohertz;
    int stepKilohertz;
    std::vector<float> losses; ///< of the ten bins; one for all of a flat segment's
    std::set<int> heldBounds;  ///< bounds, from 0, that belong to a bin
};

class CoaxSegment : public ::testing::TestWithParam<SegmentRow>
{
protected:
    static float Bound(int number) { return Megahertz(GetParam().firstKilohertz + number * GetParam().stepKilohertz); }

    static float Loss(std::size_t bin)
    {
        const std::vector<float>& losses = GetParam().losses;
        return losses.size() == 1 ? losses.front() : losses.at(bin);
    }
};

TEST_P(CoaxSegment, EachBinReachesFromBoundToBound)
{
    for (int bin = 0; bin < 10; ++bin) {
        const float loss = Loss(static_cast<std::size_t>(bin));
        EXPECT_EQ(CoaxLossBySpec(kCable, Above(Bound(bin))), loss) << "just above the lower bound of bin " << bin;
        EXPECT_EQ(CoaxLossBySpec(kCable, (Bound(bin) + Bound(bin + 1)) / 2), loss) << "within bin " << bin;
        EXPECT_EQ(CoaxLossBySpec(kCable, Below(Bound(bin + 1))), loss) << "just below the upper bound of bin " << bin;
    }
}

TEST_P(CoaxSegment, ABoundBelongsToNoBinExceptAsGiven)
{
    for (int bound = 0; bound <= 10; ++bound) {
        const float expected = GetParam().heldBounds.count(bound) == 1 ? Loss(0) : 0.0F;
        EXPECT_EQ(CoaxLossBySpec(kCable, Bound(bound)), expected) << "bound " << bound;
    }
}

// 1.7099999 is the float that 2.0999999 - 1.1 leads to in its bin.
INSTANTIATE_TEST_SUITE_P(
    Segments, CoaxSegment,
    ::testing::Values(SegmentRow{"below 1 MHz is 0.02 dB, with its lower bound", 1, 100, {0.02F}, {0}},
                      SegmentRow{"1 to 10 MHz is flat, as given", 1001, 900, {0.51F}, {}},
                      SegmentRow{"10 to 50 MHz is interpolated",
                                 10001,
                                 4000,
                                 {1.21F, 1.31F, 1.41F, 1.51F, 1.61F, 1.7099999F, 1.81F, 1.91F, 2.01F, 2.11F},
                                 {}},
                      SegmentRow{"50 to 100 MHz is flat, as given", 50001, 5000, {2.11F}, {}},
                      SegmentRow{"100 to 200 MHz is flat, 170.001 lies in the overlap", 100001, 10000, {3.26F}, {7}},
                      SegmentRow{"200 to 400 MHz is flat, as given", 200001, 20000, {4.76F}, {}},
                      SegmentRow{"400 to 700 MHz is flat, as given", 400001, 30000, {7.01F}, {}},
                      SegmentRow{"700 to 900 MHz is flat, as given", 700001, 20000, {9.26F}, {}},
                      SegmentRow{"900 to 1000 MHz is flat, as given", 900001, 10000, {10.51F}, {}}),
    support::RowName());

struct SpecRow
{
    const char* name;
    float frequency;
    float loss;
};

class CoaxLossAt : public ::testing::TestWithParam<SpecRow>
{
};

TEST_P(CoaxLossAt, IsGiven)
{
    EXPECT_EQ(CoaxLossBySpec(kCable, GetParam().frequency), GetParam().loss);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Frequencies, CoaxLossAt, ::testing::Values(
    SpecRow{"14.250 takes the second step of its segment and stays 1.31", 14.25F, 1.31F},
    SpecRow{"0.5 is 0.02", 0.5F, 0.02F},
    SpecRow{"144.200 takes the loss at 100 MHz", 144.2F, 3.26F},
    SpecRow{"170.002 falls into the bin from 160.001", 170.002F, 3.26F},
    SpecRow{"170.3 falls into the bin from 160.001", 170.3F, 3.26F},
    SpecRow{"the end of the overlap falls into the next bin", 170.501F, 3.26F},
    SpecRow{"0.0005 lies in no bin", 0.0005F, 0.0F},
    SpecRow{"0 lies in no segment", 0.0F, 0.0F},
    SpecRow{"negative lies in no segment", -14.25F, 0.0F},
    SpecRow{"1000 takes the loss at 900 MHz, not the last", 1000.0F, 10.51F},
    SpecRow{"1000.001 and above lie in no segment", 1000.001F, 0.0F},
    SpecRow{"2000 lies in no segment", 2000.0F, 0.0F},
    SpecRow{"no number lies in no segment", std::numeric_limits<float>::quiet_NaN(), 0.0F}), support::RowName());

// clang-format on

TEST(CoaxLossBySpec, LossAt200DoesNotReachInto144)
{
    std::array<float, 9> cable = kCable;
    cable[4] = 99.0F;
    EXPECT_EQ(CoaxLossBySpec(cable, 144.2F), 3.26F);
}

TEST(CoaxLossBySpec, TheFloatsOwnErrorGoesIntoTheSum)
{
    std::array<float, 9> cable = kCable;
    cable[7] = 10.6F;
    EXPECT_EQ(CoaxLossBySpec(cable, 950.0F), 10.610001F) << "10.6000003815 + 0.01, stored once";
}

TEST(CoaxLossBySpec, OverflowThrows)
{
    std::array<float, 9> cable = kCable;
    cable[1] = -kLargest;
    cable[2] = kLargest;
    EXPECT_THROW((void)CoaxLossBySpec(cable, 14.25F), ArithmeticError);
    EXPECT_EQ(CoaxLossBySpec(cable, 5.0F), 0.51F) << "only the interpolated segment takes the difference";
}

struct ConnectorRow
{
    const char* name;
    int beginKilohertz;
    int endKilohertz;
    float loss;
    float lossAtBegin;
};

class ConnectorBand : public ::testing::TestWithParam<ConnectorRow>
{
};

TEST_P(ConnectorBand, ReachesFromBoundToBound)
{
    const float begin = Megahertz(GetParam().beginKilohertz);
    const float end = Megahertz(GetParam().endKilohertz);
    EXPECT_EQ(ConnectorLossPerConnector(begin), GetParam().lossAtBegin);
    EXPECT_EQ(ConnectorLossPerConnector(Above(begin)), GetParam().loss);
    EXPECT_EQ(ConnectorLossPerConnector((begin + end) / 2), GetParam().loss);
    EXPECT_EQ(ConnectorLossPerConnector(Below(end)), GetParam().loss);
    EXPECT_EQ(ConnectorLossPerConnector(end), 0.0F);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bands, ConnectorBand, ::testing::Values(
    ConnectorRow{"band 0 holds its lower bound", 1, 1001, 0.00521F, 0.00521F},
    ConnectorRow{"band 1 and all further ones do not, as given", 1001, 10001, 0.00565F, 0.0F},
    ConnectorRow{"band 2", 10001, 20001, 0.00652F, 0.0F},
    ConnectorRow{"band 3", 20001, 30001, 0.00782F, 0.0F},
    ConnectorRow{"band 4", 30001, 50001, 0.00957F, 0.0F},
    ConnectorRow{"band 5", 50001, 100001, 0.01131F, 0.0F},
    ConnectorRow{"band 6", 100001, 200001, 0.01523F, 0.0F},
    ConnectorRow{"band 7", 200001, 300001, 0.02177F, 0.0F},
    ConnectorRow{"band 8", 300001, 400001, 0.03051F, 0.0F},
    ConnectorRow{"band 9", 400001, 500001, 0.04365F, 0.0F},
    ConnectorRow{"band 10", 500001, 1000001, 0.06564F, 0.0F},
    ConnectorRow{"band 11", 1000001, 1250001, 0.07889F, 0.0F},
    ConnectorRow{"band 12", 1250001, 1500001, 0.12334F, 0.0F},
    ConnectorRow{"band 13", 1500001, 1750001, 0.17277F, 0.0F},
    ConnectorRow{"band 14", 1750001, 2000001, 0.45757F, 0.0F}), support::RowName());

// clang-format on

TEST(ConnectorLossPerConnector, NothingOutsideAllBands)
{
    for (const float frequency : {0.0F, 0.0009F, -14.25F, 1.001F, 2000.001F, 2001.0F}) {
        EXPECT_EQ(ConnectorLossPerConnector(frequency), 0.0F) << frequency;
    }
}

TEST(CoaxLossByK, HundredFeetGiveThePlainLoss)
{
    EXPECT_EQ(CoaxLossByK(0.25F, 0.5F, 16.0F, 100.0F), 9.0F) << "0.25 * 4 + 0.5 * 16";
}

TEST(CoaxLossByK, LengthEntersHere)
{
    EXPECT_EQ(CoaxLossByK(0.25F, 0.5F, 16.0F, 50.0F), 4.5F);
    EXPECT_EQ(CoaxLossByK(0.25F, 0.5F, 16.0F, 0.0F), 0.0F);
}

TEST(CoaxLossByK, RootIsTakenInDoublesAndTheLossStoredOnce)
{
    // 0.1 * sqrt(14.25) + 0.002 * 14.25 = 0.4059917
    EXPECT_EQ(CoaxLossByK(0.1F, 0.002F, 14.25F, 100.0F), 0.40599173F);
    EXPECT_EQ(CoaxLossByK(0.1F, 0.002F, 14.25F, 50.0F), 0.20299587F);
}

TEST(CoaxLossByK, InvalidAndOverflowingStepsThrow)
{
    EXPECT_THROW((void)CoaxLossByK(0.1F, 0.002F, -14.25F, 100.0F), ArithmeticError) << "root of a negative number";
    EXPECT_THROW((void)CoaxLossByK(0.0F, kLargest, 14.25F, 0.0F), ArithmeticError) << "product of floats";
    EXPECT_THROW((void)CoaxLossByK(kLargest, 0.0F, 14.25F, 1000.0F), ArithmeticError) << "stored loss";
}

SystemData WithBrand(const char* brand)
{
    SystemData data;
    data.CoaxBrand = brand;
    data.Frequency = 14.25F;
    data.CoaxLength = 100.0F;
    return data;
}

/// Places 1 and 2 are K1 and K2 for one model, the losses at 10 and 50 MHz for the other.
constexpr std::array<float, 9> kFactors{0.0F, 0.1F, 0.002F};
constexpr float kLossByK = 0.40599173F;
constexpr float kLossBySpec = 0.0904F; ///< 0.1 + 0.01 + 2 * (0.002 - 0.1) * 0.1

TEST(CoaxLossOf, KFactorMakerIsComparedWithoutRegardToCase)
{
    EXPECT_EQ(CoaxLossOf(WithBrand("TIMES MICROWAVE"), kFactors), kLossByK);
    EXPECT_EQ(CoaxLossOf(WithBrand("Times Microwave"), kFactors), kLossByK);
}

TEST(CoaxLossOf, ALongerNameIsCutToTheKFactorMakerAsGiven)
{
    EXPECT_EQ(CoaxLossOf(WithBrand("TIMES MICROWAVE SYSTEMS"), kFactors), kLossByK);
}

TEST(CoaxLossOf, AllOtherMakersTakeTheNineLosses)
{
    for (const char* brand : {"", "TIMES", "TIMES MICROWAV", " TIMES MICROWAVE", "BELDEN"}) {
        EXPECT_EQ(CoaxLossOf(WithBrand(brand), kFactors), kLossBySpec) << brand;
    }
}

TEST(LossFrequencies, NineTextsInMegahertz)
{
    const std::array<std::string_view, 9> expected{"1", "10", "50", "100", "200", "400", "700", "900", "1000"};
    EXPECT_EQ(LossFrequencies, expected);
}

} // namespace
} // namespace quillon::engine
