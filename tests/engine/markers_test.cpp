#include "engine/markers.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

namespace quillon::engine {
namespace {

struct MarkerCase
{
    const char* name;
    std::size_t row;
    float SystemResults::*result;
    bool higherIsBetter;
    bool onlyWhenPositive;
    float shownStep; ///< the last place that is shown
};

class Marker : public ::testing::TestWithParam<MarkerCase>
{
protected:
    /// Compares two values, with every other result equal and positive.
    PerSystem<bool> Compare(float one, float two)
    {
        PerSystem<SystemResults> results;
        results[SystemId::One].*GetParam().result = one;
        results[SystemId::Two].*GetParam().result = two;
        UpdateMarkers(results, markers);
        return markers.at(GetParam().row);
    }

    void Preset(bool one, bool two) { markers.at(GetParam().row) = {one, two}; }

    Markers markers;
};

const PerSystem<bool> kNeither(false, false);
const PerSystem<bool> kOne(true, false);
const PerSystem<bool> kTwo(false, true);
const PerSystem<bool> kBoth(true, true);

TEST_P(Marker, StandsAtTheBetterSide)
{
    EXPECT_EQ(Compare(2.0F, 1.0F), GetParam().higherIsBetter ? kOne : kTwo);
    EXPECT_EQ(Compare(1.0F, 2.0F), GetParam().higherIsBetter ? kTwo : kOne);
}

TEST_P(Marker, StandsAtBothSidesWhenEqual)
{
    EXPECT_EQ(Compare(1.5F, 1.5F), kBoth);
}

TEST_P(Marker, ValuesAreEqualWhenTheyAreShownAlike)
{
    EXPECT_EQ(Compare(1.0F, 1.0F + 0.4F * GetParam().shownStep), kBoth);
    EXPECT_EQ(Compare(1.0F, 1.0F + 0.6F * GetParam().shownStep), GetParam().higherIsBetter ? kTwo : kOne);
}

TEST_P(Marker, ZeroOnEitherSideIsComparedOnlyInRowsThatAlwaysAre)
{
    Preset(true, false);
    EXPECT_EQ(Compare(0.0F, 1.0F), GetParam().onlyWhenPositive ? kOne : (GetParam().higherIsBetter ? kTwo : kOne));
    Preset(false, true);
    EXPECT_EQ(Compare(1.0F, 0.0F), GetParam().onlyWhenPositive ? kTwo : (GetParam().higherIsBetter ? kOne : kTwo));
}

TEST_P(Marker, EqualZerosAreComparedOnlyInRowsThatAlwaysAre)
{
    EXPECT_EQ(Compare(0.0F, 0.0F), GetParam().onlyWhenPositive ? kNeither : kBoth);
}

TEST_P(Marker, WhatIsShownAsZeroCountsAsZero)
{
    EXPECT_EQ(Compare(1.0F, 0.4F * GetParam().shownStep), GetParam().onlyWhenPositive ? kNeither
                                                          : GetParam().higherIsBetter ? kOne
                                                                                      : kTwo);
}

TEST_P(Marker, NegativeValuesAreComparedOnlyInRowsThatAlwaysAre)
{
    EXPECT_EQ(Compare(-1.0F, -2.0F), GetParam().onlyWhenPositive ? kNeither : GetParam().higherIsBetter ? kOne : kTwo);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, Marker, ::testing::Values(
    MarkerCase{"ERP", 0, &SystemResults::ERP, true, true, 0.01F},
    MarkerCase{"antenna power gain", 1, &SystemResults::AntennaPowerGain, true, true, 0.01F},
    MarkerCase{"feed-point power", 2, &SystemResults::FeedPointPower, true, true, 0.01F},
    MarkerCase{"system gain", 3, &SystemResults::SystemGain, true, false, 0.01F},
    MarkerCase{"antenna gain", 4, &SystemResults::AntennaGainDBd, true, true, 0.01F},
    MarkerCase{"mismatch in dB", 5, &SystemResults::VSWRAttenuation, false, true, 0.0001F},
    MarkerCase{"mismatch in watts", 6, &SystemResults::VSWRPowerLoss, false, false, 0.01F},
    MarkerCase{"coax loss in dB", 7, &SystemResults::CoaxDBLoss, false, true, 0.01F},
    MarkerCase{"coax loss in watts", 8, &SystemResults::CoaxPowerLoss, false, true, 0.01F}), support::RowName());

// clang-format on

TEST(Markers, StartEmpty)
{
    for (const PerSystem<bool>& marker : Markers()) {
        EXPECT_EQ(marker, kNeither);
    }
}

TEST(Markers, AllRowsAreUpdatedAtOnce)
{
    PerSystem<SystemResults> results;
    results[SystemId::One] = {5.0F, 234.4F, 3.68F, 1.31F, 25.87F, 0.0F, 0.01F, 0.01304F, 74.13F, 0.0F, 160.269F};
    results[SystemId::Two] = {5.0F, 288.5F, 4.58F, 0.41F, 8.76F, 0.0F, 0.01F, 0.01304F, 91.24F, 0.0F, 197.26F};
    Markers markers;
    UpdateMarkers(results, markers);

    const Markers expected{kTwo, kTwo, kTwo, kTwo, kBoth, kBoth, kBoth, kTwo, kTwo};
    EXPECT_EQ(markers, expected);
}

TEST(Markers, ERPKeepsItsMarkersWhileTheOtherSystemHasNone)
{
    PerSystem<SystemResults> results;
    results[SystemId::One].ERP = 234.4F;
    Markers markers;
    markers[0] = kBoth;
    UpdateMarkers(results, markers);
    EXPECT_EQ(markers[0], kBoth);
}

TEST(Markers, SystemGainOfMinus1IsBetterThanMinus2)
{
    PerSystem<SystemResults> results;
    results[SystemId::One].SystemGain = -1.0F;
    results[SystemId::Two].SystemGain = -2.0F;
    Markers markers;
    UpdateMarkers(results, markers);
    EXPECT_EQ(markers[3], kOne);
}

} // namespace
} // namespace quillon::engine
