#include "engine/bands.h"

#include "engine/mask.h"
#include "engine/text_compare.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace quillon::engine {

namespace {

constexpr std::array<std::string_view, kBandCount> kBandNames{
    ".70 Meters", "1.25 Meters", "2 Meters",  "6 Meters",  "10 Meters", "12 Meters", "15 Meters",
    "17 Meters",  "20 Meters",   "30 Meters", "40 Meters", "60 Meters", "80 Meters", "160 Meters",
};

/// MHz; runs against the order of the names.
constexpr std::array<float, kBandCount> kFrequencies{
    1.900F,  3.850F,  5.368F,  7.230F,  10.125F,  14.250F,  18.140F,
    21.225F, 24.950F, 28.500F, 50.125F, 144.200F, 222.100F, 432.100F,
};

} // namespace

const std::array<std::string_view, kBandCount>& BandNames() noexcept
{
    return kBandNames;
}

BandFrequencyRow BandFrequency(int position)
{
    if (position < 0 || position >= kBandCount) {
        throw std::out_of_range("a band's position is 0 to 13");
    }
    const int index = kBandCount - 1 - position;
    return {kFrequencies[static_cast<std::size_t>(index)], index};
}

float FrequencyForBand(std::string_view name)
{
    const auto* const found = std::find_if(kBandNames.begin(), kBandNames.end(),
                                           [name](std::string_view band) { return EqualIgnoringCase(band, name); });
    if (found == kBandNames.end()) {
        return 0;
    }
    return RoundWithMask(BandFrequency(static_cast<int>(found - kBandNames.begin())).frequency, "###0.000");
}

} // namespace quillon::engine
