#pragma once

#include "engine/decimal.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillon::engine {

/// A number with few digits as a whole count of its last place: count / 10^places. Small enough for one register, which
/// an optional of it is not.
struct ScaledNumber
{
    std::int32_t count = 0;   ///< from -2^24 to 2^24
    std::int32_t places = -1; ///< below 0 when there is no number

    [[nodiscard]] explicit operator bool() const noexcept { return places >= 0; }
};

/// A float times one of these is exact in a double: 24 bits, and at most 24 more for the power's odd part. Each is a
/// float, too.
inline constexpr std::array kPowersOfTen{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};

// The quick way to the texts of numbers of everyday size. Its results are those of the digit-by-digit way of Decimal;
// where it cannot be certain of that it gives none.

/// The shortest digits of a float, rounded half away from zero to a number of places from 0 on.
[[nodiscard]] inline ScaledNumber ScaleShortest(float value, int places) noexcept
{
    // From here on a float's neighbours are further apart than two counts.
    constexpr double kMostCount = 0x1p23;
    if (static_cast<std::size_t>(places) >= kPowersOfTen.size()) {
        return {};
    }
    const double scaled = std::abs(double{value}) * kPowersOfTen[static_cast<std::size_t>(places)];
    if (!(scaled < kMostCount)) {
        return {};
    }
    const auto whole = static_cast<std::int32_t>(scaled);
    const double aboveHalf = scaled - whole - 0.5;
    // The shortest digits lie at most half the distance of two floats away: a half in between may be on either side.
    if (std::abs(aboveHalf) <= scaled * 0x1p-24) {
        return {};
    }
    const std::int32_t count = whole + static_cast<std::int32_t>(aboveHalf > 0);
    return {value < 0 ? -count : count, places};
}

/// The float itself, rounded half away from zero to seven significant digits.
[[nodiscard]] inline ScaledNumber ScaleToSevenDigits(float value) noexcept
{
    const double magnitude = std::abs(double{value});
    if (magnitude == 0) {
        return {0, 0};
    }
    if (!(magnitude > 1e-3 && magnitude < 1e6)) {
        return {};
    }
    // log10(2) is 1233 / 4096: what comes of the float's power of two is the power of ten above the number, or that
    // times ten.
    constexpr int kBias = 127;
    const int powerOfTwo = static_cast<int>((std::bit_cast<std::uint32_t>(value) >> 23U) & 0xFFU) - kBias;
    auto places = static_cast<std::size_t>(5 - ((powerOfTwo * 1233) >> 12));
    places += static_cast<std::size_t>(magnitude * kPowersOfTen[places] < 1e6);
    const double scaled = magnitude * kPowersOfTen[places];
    const auto whole = static_cast<std::int32_t>(scaled);
    const std::int32_t count = whole + static_cast<std::int32_t>(scaled - whole >= 0.5);
    return {value < 0 ? -count : count, static_cast<std::int32_t>(places)};
}

/// The float nearest to the number: both parts of the quotient are floats.
[[nodiscard]] inline float ToFloat(const ScaledNumber& number) noexcept
{
    return static_cast<float>(number.count) / static_cast<float>(kPowersOfTen[static_cast<std::size_t>(number.places)]);
}

/// Writes a number as LayOut writes a Decimal.
void AppendScaled(std::string& text, ScaledNumber number, const DecimalLayout& layout, std::string_view separator);

} // namespace quillon::engine
