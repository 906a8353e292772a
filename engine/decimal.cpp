#include "engine/decimal.h"

#include "engine/arithmetic_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace quillon::engine {

namespace {

/// The longest exact text of a float has 112 digits, one of them before the point.
constexpr int kExactPlaces = 111;

using Buffer = std::array<char, 128>;

void StripZerosAtEnd(Decimal& number)
{
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    if (number.digits.empty()) {
        number = {};
    }
}

/// Takes a text of the form "-d.ddde+xx" apart.
Decimal FromScientific(std::string_view text)
{
    Decimal number;
    number.negative = text.starts_with('-');
    const std::size_t exponentMark = text.find('e');
    for (const char character : text.substr(0, exponentMark)) {
        if (character >= '0' && character <= '9') {
            number.digits.push_back(character);
        }
    }
    std::string_view exponent = text.substr(exponentMark + 1);
    if (exponent.starts_with('+')) {
        exponent.remove_prefix(1);
    }
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), number.point);
    ++number.point;
    StripZerosAtEnd(number);
    return number;
}

char DigitAt(const Decimal& number, int place)
{
    const int index = number.point + place;
    const bool isHeld = index >= 0 && index < static_cast<int>(number.digits.size());
    return isHeld ? number.digits[static_cast<std::size_t>(index)] : '0';
}

void AddOneAtEnd(Decimal& number)
{
    number.digits.erase(number.digits.find_last_not_of('9') + 1);
    if (number.digits.empty()) {
        number.digits.push_back('1');
        ++number.point;
    } else {
        ++number.digits.back();
    }
}

} // namespace

Decimal ShortestDecimal(float value)
{
    Buffer buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), Checked(value), std::chars_format::scientific);
    return FromScientific({buffer.data(), written.ptr});
}

Decimal ExactDecimal(float value)
{
    Buffer buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), Checked(value),
                                       std::chars_format::scientific, kExactPlaces);
    return FromScientific({buffer.data(), written.ptr});
}

void RoundToPlaces(Decimal& number, int places)
{
    const auto kept = static_cast<std::size_t>(std::max(number.point + places, 0));
    const bool roundsUp = DigitAt(number, places) >= '5';
    number.digits.erase(std::min(kept, number.digits.size()));
    if (roundsUp) {
        AddOneAtEnd(number);
    }
    StripZerosAtEnd(number);
}

std::string LayOut(const Decimal& number, const DecimalLayout& layout, std::string_view separator)
{
    std::string text = number.negative ? "-" : "";
    for (int place = -std::max(number.point, layout.wholeDigits); place < 0; ++place) {
        text.push_back(DigitAt(number, place));
    }
    const int places = std::max(static_cast<int>(number.digits.size()) - number.point, layout.places);
    if (places > 0 || layout.alwaysPoint) {
        text.append(separator);
    }
    for (int place = 0; place < places; ++place) {
        text.push_back(DigitAt(number, place));
    }
    return text;
}

} // namespace quillon::engine
