#pragma once

#include "engine/records.h"

#include <array>
#include <string_view>

namespace quillon::engine {

/// Frequencies in MHz at which the coax files give losses; "Loss" and one of these texts is a key's name.
inline constexpr std::array<std::string_view, 9> LossFrequencies{"1",   "10",  "50",  "100", "200",
                                                                 "400", "700", "900", "1000"};

/// Maker whose cables are described by two K factors instead of nine losses.
inline constexpr std::string_view kKFactorMaker = "TIMES MICROWAVE";

/// Loss of a cable described by K factors: (k1 * sqrt(F) + k2 * F) * length / 100, dB. The length enters here and once
/// more when the system's loss is computed, as given.
/// @param frequency   MHz
/// @param coaxLength  ft
/// @throws ArithmeticError on overflow or for a negative frequency.
[[nodiscard]] float CoaxLossByK(float k1, float k2, float frequency, float coaxLength);

/// Loss per 100 ft of a cable described by nine losses, dB. Flat in every segment but 10 to 50 MHz, as given.
/// @param coaxSpec   the cable's losses at LossFrequencies
/// @param frequency  MHz
/// @return 0 for a frequency in no segment or bin: below 0.001, from 1000.001 on, and on most bounds.
/// @throws ArithmeticError on overflow.
[[nodiscard]] float CoaxLossBySpec(const std::array<float, 9>& coaxSpec, float frequency);

/// Loss of one connector, dB; 0 for a frequency in no band of the table: all bounds but the first belong to none.
[[nodiscard]] float ConnectorLossPerConnector(float frequency) noexcept;

/// Loss per 100 ft of the loaded cable at the system's frequency, by the model that its maker's cables take. The
/// maker's name fills the record's field to its last character; its case does not count.
/// @param coaxSpec  the cable's figures: nine losses, or K1 and K2 in places 1 and 2.
/// @throws ArithmeticError on overflow.
[[nodiscard]] float CoaxLossOf(const SystemData& data, const std::array<float, 9>& coaxSpec);

} // namespace quillon::engine
