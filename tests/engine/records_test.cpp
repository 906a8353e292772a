#include "engine/records.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <stdexcept>

namespace quillon::engine {
namespace {

TEST(SystemData, TextFieldsHaveTheirWidths)
{
    const SystemData data;
    EXPECT_EQ(data.AntennaBrand.Padded().size(), 25U);
    EXPECT_EQ(data.AntennaModel.Padded().size(), 25U);
    EXPECT_EQ(data.CoaxBrand.Padded().size(), 15U);
    EXPECT_EQ(data.CoaxModel.Padded().size(), 20U);
}

TEST(SystemData, BooleansAre0AndMinus1)
{
    EXPECT_EQ(kFalse, 0);
    EXPECT_EQ(kTrue, -1);
    EXPECT_EQ(SystemData().UseAntennaList, kFalse);
    EXPECT_EQ(SystemData().UseCoaxList, kFalse);
}

TEST(SystemResults, ElevenFloatsInTheirOrder)
{
    constexpr std::array kOffsets{offsetof(SystemResults, AntennaGainDBd),  offsetof(SystemResults, ERP),
                                  offsetof(SystemResults, SystemGain),      offsetof(SystemResults, CoaxDBLoss),
                                  offsetof(SystemResults, CoaxPowerLoss),   offsetof(SystemResults, VSWRPowerLoss),
                                  offsetof(SystemResults, VSWRAttenuation), offsetof(SystemResults, ConnectorLoss),
                                  offsetof(SystemResults, FeedPointPower),  offsetof(SystemResults, Reserved),
                                  offsetof(SystemResults, AntennaPowerGain)};
    for (std::size_t i = 0; i < kOffsets.size(); ++i) {
        EXPECT_EQ(kOffsets.at(i), i * sizeof(float)) << "place " << i;
    }
    EXPECT_EQ(sizeof(SystemResults), 11 * sizeof(float));
}

TEST(SystemState, SixFlagsStartFalse)
{
    const SystemState state;
    for (int number = 1; number <= 6; ++number) {
        EXPECT_EQ(state.Flag(number), kFalse) << number;
    }
}

TEST(SystemState, EachFlagStandsForItself)
{
    for (int set = 1; set <= 6; ++set) {
        SystemState state;
        state.SetFlag(set, kTrue);
        for (int number = 1; number <= 6; ++number) {
            EXPECT_EQ(state.Flag(number), number == set ? kTrue : kFalse) << set << " set, " << number << " read";
        }
    }
}

TEST(SystemState, AnyOtherFlagNumberIsARangeError)
{
    SystemState state;
    for (const int number : {0, 7, -1, INT_MIN, INT_MAX}) {
        EXPECT_THROW((void)state.Flag(number), std::out_of_range) << number;
        EXPECT_THROW(state.SetFlag(number, kTrue), std::out_of_range) << number;
    }
}

} // namespace
} // namespace quillon::engine
