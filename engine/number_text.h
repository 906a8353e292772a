#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon::engine {

/// Text of a number for formula texts: at most seven significant digits, no trailing zeros, no exponent,
/// "-" only when negative, "0.5" with its leading zero. A tie in the eighth digit rounds away from zero.
/// @param separator  what stands between the whole part and the fraction.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] std::string PlainText(float value, std::string_view separator = ".");

/// The same, written to the end of a text.
void AppendPlainText(std::string& text, float value, std::string_view separator);

/// Shortest text that reads back as the same float, without exponent: for files, reports and text boxes.
/// @param separator  what stands between the whole part and the fraction.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] std::string ShortestText(float value, std::string_view separator = ".");

/// Reads a number from a data file: decimal point whatever the locale, blanks and tabs before it skipped, stops at the
/// first character that cannot belong to a number. Too large a number is cut to the largest float, one too close to
/// zero is 0.
/// @return nothing for a text that starts with no number.
[[nodiscard]] std::optional<float> ReadNumber(std::string_view text) noexcept;

/// As ReadNumber, with 0 for a text that starts with no number.
[[nodiscard]] float NumberFromText(std::string_view text) noexcept;

/// Whole number nearest to a value, halves to even, judged against 16 bits after rounding.
/// @throws ArithmeticError outside -32768 to 32767 or when value is no number.
[[nodiscard]] std::int16_t ToInteger(double value);

} // namespace quillon::engine
