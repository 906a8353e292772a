#pragma once

#include <string>
#include <string_view>

namespace quillon::engine {

/// Lays a number out by a display mask: "0" is a digit always written, "#" one written only when significant.
/// The shortest decimal text of the float is rounded half away from zero at the mask's last place: 0.35 with "0.0"
/// gives "0.4", 0.3 with "##.0" gives ".3", 0 with "####" gives the empty text. Zero carries no minus sign.
/// @param separator  what stands between the whole part and the fraction.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] std::string FormatWithMask(float value, std::string_view mask, std::string_view separator = ".");

/// Rounds a value as its mask shows it: the number read back from the masked text. An empty text reads back as 0.
[[nodiscard]] float RoundWithMask(float value, std::string_view mask);

} // namespace quillon::engine
