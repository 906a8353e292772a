#include "engine/markers.h"

#include "engine/mask.h"

#include <cstddef>
#include <string_view>

namespace quillon::engine {

namespace {

enum class Better { Higher, Lower };
enum class Compared { Always, WhenPositive };

struct MarkerRow
{
    float SystemResults::*result;
    std::string_view mask;
    Better better;
    Compared compared;
};

constexpr std::array<MarkerRow, kMarkerCount> kMarkerRows{{
    {&SystemResults::ERP, "#####0.00", Better::Higher, Compared::WhenPositive},
    {&SystemResults::AntennaPowerGain, "####0.00", Better::Higher, Compared::WhenPositive},
    {&SystemResults::FeedPointPower, "####0.00", Better::Higher, Compared::WhenPositive},
    {&SystemResults::SystemGain, "##0.00", Better::Higher, Compared::Always},
    {&SystemResults::AntennaGainDBd, "#0.00", Better::Higher, Compared::WhenPositive},
    {&SystemResults::VSWRAttenuation, "0.0000", Better::Lower, Compared::WhenPositive},
    {&SystemResults::VSWRPowerLoss, "####0.00", Better::Lower, Compared::Always},
    {&SystemResults::CoaxDBLoss, "##0.00", Better::Lower, Compared::WhenPositive},
    {&SystemResults::CoaxPowerLoss, "####0.00", Better::Lower, Compared::WhenPositive},
}};

void UpdateMarker(const MarkerRow& row, const PerSystem<SystemResults>& results, PerSystem<bool>& marker)
{
    const float one = RoundWithMask(results[SystemId::One].*row.result, row.mask);
    const float two = RoundWithMask(results[SystemId::Two].*row.result, row.mask);
    if (row.compared == Compared::WhenPositive && (one <= 0 || two <= 0)) {
        return;
    }
    const bool higherIsBetter = row.better == Better::Higher;
    marker[SystemId::One] = higherIsBetter ? one >= two : one <= two;
    marker[SystemId::Two] = higherIsBetter ? two >= one : two <= one;
}

} // namespace

void UpdateMarkers(const PerSystem<SystemResults>& results, Markers& markers)
{
    for (std::size_t row = 0; row < kMarkerRows.size(); ++row) {
        UpdateMarker(kMarkerRows[row], results, markers[row]);
    }
}

} // namespace quillon::engine
