#include "engine/number_text.h"

#include "engine/arithmetic_error.h"
#include "engine/decimal.h"
#include "engine/scaled_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <system_error>

namespace quillon::engine {

namespace {

constexpr int kPlainDigits = 7;
constexpr std::string_view kDigits = "0123456789";

/// Keeps "inf", "nan" and a second sign from being read as numbers.
bool StartsWithNumber(std::string_view text) noexcept
{
    return text.find_first_of(kDigits) == (text.starts_with('.') ? 1U : 0U);
}

/// The exponent that a number's text ends with, cut to what its type holds; 0 when there is none.
std::int64_t ExponentOf(std::string_view number) noexcept
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::size_t start = std::min(number.find_first_not_of("eE+", mark), number.size());
    std::int64_t exponent = 0;
    const auto read = std::from_chars(number.data() + start, number.data() + number.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<std::int32_t>;
        return number[start] == '-' ? Limits::min() : Limits::max();
    }
    return exponent;
}

/// Tells the two ways of leaving a float's range apart.
/// @param number  the text of a number far from one that is not zero.
bool IsBelowOne(std::string_view number) noexcept
{
    const auto firstDigit = static_cast<std::int64_t>(number.find_first_of("123456789"));
    const auto wholeDigits = static_cast<std::int64_t>(std::min(number.find_first_not_of(kDigits), number.size()));
    return wholeDigits - firstDigit + ExponentOf(number) < 0;
}

void AppendDigits(std::string& text, float value, std::string_view separator)
{
    Decimal number = ExactDecimal(value);
    RoundToPlaces(number, kPlainDigits - number.point);
    text += LayOut(number, {}, separator);
}

} // namespace

std::string PlainText(float value, std::string_view separator)
{
    std::string text;
    AppendPlainText(text, value, separator);
    return text;
}

void AppendPlainText(std::string& text, float value, std::string_view separator)
{
    if (const ScaledNumber number = ScaleToSevenDigits(value)) {
        AppendScaled(text, number, {}, separator);
    } else {
        AppendDigits(text, value, separator);
    }
}

std::string ShortestText(float value, std::string_view separator)
{
    return LayOut(ShortestDecimal(value), {}, separator);
}

std::optional<float> ReadNumber(std::string_view text) noexcept
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (!StartsWithNumber(text)) {
        return std::nullopt;
    }
    float value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    // Out of range, it has left the 0 as it was.
    if (read.ec == std::errc::result_out_of_range && !IsBelowOne(std::string_view(text.begin(), read.ptr))) {
        value = std::numeric_limits<float>::max();
    }
    return negative ? -value : value;
}

float NumberFromText(std::string_view text) noexcept
{
    return ReadNumber(text).value_or(0.0F);
}

std::int16_t ToInteger(double value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = std::nearbyint(value);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
        throw ArithmeticError("a whole number does not fit 16 bits");
    }
    return static_cast<std::int16_t>(rounded);
}

} // namespace quillon::engine
