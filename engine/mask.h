#pragma once

#include "engine/decimal.h"
#include "engine/scaled_number.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillon::engine {

/// A display mask, taken apart: "0" is a digit always written, "#" one written only when significant.
class Mask
{
public:
    /// @param pattern  say "##0.00". Taken apart by the compiler where it is a constant.
    explicit constexpr Mask(std::string_view pattern)
    {
        const std::size_t point = std::min(pattern.find('.'), pattern.size());
        const std::string_view whole = pattern.substr(0, point);
        const std::string_view fraction = pattern.substr(std::min(point + 1, pattern.size()));
        m_layout.wholeDigits = static_cast<int>(whole.size() - std::min(whole.find('0'), whole.size()));
        m_layout.places = static_cast<int>(fraction.rfind('0') + 1);
        m_layout.alwaysPoint = point < pattern.size();
        m_places = static_cast<int>(fraction.size());
    }

    /// Places after the point that a number is rounded to.
    [[nodiscard]] constexpr int Places() const noexcept { return m_places; }

    [[nodiscard]] constexpr const DecimalLayout& Layout() const noexcept { return m_layout; }

private:
    DecimalLayout m_layout;
    int m_places = 0;
};

/// Lays a number out by a display mask.
/// The shortest decimal text of the float is rounded half away from zero at the mask's last place: 0.35 with "0.0"
/// gives "0.4", 0.3 with "##.0" gives ".3", 0 with "####" gives the empty text. Zero carries no minus sign.
/// @param separator  what stands between the whole part and the fraction.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] std::string FormatWithMask(float value, std::string_view mask, std::string_view separator = ".");

/// The same, written to the end of a text.
void AppendWithMask(std::string& text, float value, const Mask& mask, std::string_view separator);

/// Rounds a value by its digits; RoundWithMask asks for it when there is no quicker way.
[[nodiscard]] float RoundDigitsWithMask(float value, const Mask& mask);

/// Rounds a value as its mask shows it: the number read back from the masked text. An empty text reads back as 0.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] float RoundWithMask(float value, std::string_view mask);

[[nodiscard]] inline float RoundWithMask(float value, const Mask& mask)
{
    const ScaledNumber number = ScaleShortest(value, mask.Places());
    return number ? ToFloat(number) : RoundDigitsWithMask(value, mask);
}

} // namespace quillon::engine
