#pragma once

#include <array>
#include <string_view>

namespace quillon::engine {

inline constexpr int kBandCount = 14;

/// Names of the amateur bands from the shortest wave to the longest: ".70 Meters" to "160 Meters".
[[nodiscard]] const std::array<std::string_view, kBandCount>& BandNames() noexcept;

/// A band's working frequency and the row of the frequency list it was found in.
struct BandFrequencyRow
{
    float frequency; ///< MHz
    int index;       ///< 13 - position: the frequency list runs the other way round
};

/// Working frequency of a spin position or band index: 0 gives 432.1 MHz, 13 gives 1.9 MHz.
/// @throws std::out_of_range outside 0 to 13.
[[nodiscard]] BandFrequencyRow BandFrequency(int position);

/// Working frequency of a band by name, rounded with "###0.000"; letter case does not count.
/// @return MHz, 0 for a name that is no band.
[[nodiscard]] float FrequencyForBand(std::string_view name);

} // namespace quillon::engine
