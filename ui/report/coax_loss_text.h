#pragma once

#include "engine/records.h"

#include <string>
#include <string_view>

namespace quillon::ui {

/// Coax loss of a system in dB per 100 ft, with two places, as the report shows and compares it.
/// @param separator  what stands between the whole part and the fraction.
[[nodiscard]] std::string CoaxLossText(const engine::SystemData& data, std::string_view separator = ".");

/// The same for a system by its number, 1 or 2.
/// @throws std::out_of_range for any other number.
[[nodiscard]] std::string CoaxLossText(const engine::AntennaSystems& systems, int system,
                                       std::string_view separator = ".");

} // namespace quillon::ui
