#include "engine/scaled_number.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdlib>

namespace quillon::engine {

namespace {

/// How many digits a count has; none for zero.
int DigitCount(std::uint32_t count) noexcept
{
    constexpr auto kLeastCounts =
        std::to_array<std::uint32_t>({1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000});
    // log10(2) is 1233 / 4096: one digit may be missing.
    const auto digits = static_cast<std::uint32_t>(std::bit_width(count)) * 1233 >> 12U;
    return static_cast<int>(digits + static_cast<std::uint32_t>(count >= kLeastCounts[digits]));
}

/// Writes the last digits of a count to end before a place of a text.
/// @return the place where they start; what is left of the count stays in it.
char* PutDigits(std::uint32_t& count, int digits, char* end) noexcept
{
    for (; digits > 0; --digits) {
        *--end = static_cast<char>('0' + count % 10);
        count /= 10;
    }
    return end;
}

} // namespace

void AppendScaled(std::string& text, ScaledNumber number, const DecimalLayout& layout, std::string_view separator)
{
    auto count = static_cast<std::uint32_t>(std::abs(number.count));
    int places = number.places;
    for (; places > layout.places && count % 10 == 0; --places) {
        count /= 10;
    }
    const bool negative = number.count < 0;
    const int wholeDigits = std::max(DigitCount(count) - places, layout.wholeDigits);
    const std::string_view point = places > 0 || layout.alwaysPoint ? separator : std::string_view();
    text.resize(text.size() + static_cast<std::size_t>(int{negative} + wholeDigits + places) + point.size());

    char* start = PutDigits(count, places, text.data() + text.size());
    for (std::size_t left = point.size(); left > 0; --left) {
        *--start = point[left - 1];
    }
    start = PutDigits(count, wholeDigits, start);
    if (negative) {
        *--start = '-';
    }
}

} // namespace quillon::engine
