#include "fuzz/number_model.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace quillon::fuzz {
namespace {

/// A number's digits on both sides of its point, of which either may be empty.
struct Digits
{
    bool isNegative = false;
    std::string whole;
    std::string fraction;
};

bool IsDigit(std::string_view text, std::size_t place)
{
    return place < text.size() && text[place] >= '0' && text[place] <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t place)
{
    while (IsDigit(text, place)) {
        ++place;
    }
    return place;
}

Digits FromExponential(std::string_view text)
{
    Digits digits;
    digits.isNegative = text.front() == '-';
    const std::size_t mark = text.find('e');
    std::string all;
    for (const char character : text.substr(0, mark)) {
        if (character >= '0' && character <= '9') {
            all += character;
        }
    }
    const int point = 1 + static_cast<int>(std::strtol(std::string(text.substr(mark + 1)).c_str(), nullptr, 10));
    if (point <= 0) {
        all.insert(0, static_cast<std::size_t>(-point), '0');
    } else if (all.size() < static_cast<std::size_t>(point)) {
        all.append(static_cast<std::size_t>(point) - all.size(), '0');
    }
    digits.whole = all.substr(0, static_cast<std::size_t>(std::max(point, 0)));
    digits.fraction = all.substr(digits.whole.size());
    return digits;
}

Digits Printed(float value, int precision)
{
    std::array<char, 160> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*e", precision, static_cast<double>(value));
    return FromExponential({buffer.data(), static_cast<std::size_t>(length)});
}

/// The same number of digits, one step further from zero.
std::string Raised(std::string text)
{
    std::size_t place = text.find('e') - 1;
    while (text[place] == '9' || text[place] == '.') {
        text[place] = text[place] == '.' ? '.' : '0';
        --place;
    }
    ++text[place];
    return text;
}

/// Above a power of two the floats lie twice as far apart as below: there the nearest of the texts with so many digits
/// may belong to the float below while the one further up still belongs to the power.
Digits Shortest(float value)
{
    std::array<char, 160> buffer{};
    for (int precision = 0;; ++precision) {
        const int length = std::snprintf(buffer.data(), buffer.size(), "%.*e", precision, static_cast<double>(value));
        const std::string text(buffer.data(), static_cast<std::size_t>(length));
        if (std::strtof(text.c_str(), nullptr) == value || precision == 9) {
            return FromExponential(text);
        }
        const bool isPowerOfTwo = (std::bit_cast<std::uint32_t>(value) & 0x7FFFFFU) == 0;
        if (isPowerOfTwo && text.find_first_of("12345678") < text.find('e') &&
            std::strtof(Raised(text).c_str(), nullptr) == value) {
            return FromExponential(Raised(text));
        }
    }
}

/// Rounds half away from zero, as on paper.
void Round(Digits& digits, std::size_t places)
{
    if (digits.fraction.size() <= places) {
        return;
    }
    const bool goesUp = digits.fraction[places] >= '5';
    digits.fraction.resize(places);
    std::string all = "0" + digits.whole + digits.fraction;
    if (goesUp) {
        std::size_t place = all.size() - 1;
        while (all[place] == '9') {
            all[place--] = '0';
        }
        ++all[place];
    }
    digits.whole = all.substr(0, all.size() - places);
    digits.fraction = all.substr(all.size() - places);
}

void Trim(Digits& digits)
{
    digits.whole.erase(0, std::min(digits.whole.find_first_not_of('0'), digits.whole.size()));
    digits.fraction.erase(digits.fraction.find_last_not_of('0') + 1);
    digits.isNegative = digits.isNegative && !(digits.whole.empty() && digits.fraction.empty());
}

std::string Written(Digits digits)
{
    Trim(digits);
    return std::string(digits.isNegative ? "-" : "") + (digits.whole.empty() ? "0" : digits.whole) +
           (digits.fraction.empty() ? "" : ".") + digits.fraction;
}

} // namespace

bool ReadByLibrary(std::string_view text, float& value)
{
    std::size_t begin = 0;
    while (begin < text.size() && (text[begin] == ' ' || text[begin] == '\t')) {
        ++begin;
    }
    const bool isSigned = begin < text.size() && (text[begin] == '-' || text[begin] == '+');
    std::size_t end = begin + (isSigned ? 1 : 0);
    const bool startsWithPoint = end < text.size() && text[end] == '.';
    if (!IsDigit(text, end + (startsWithPoint ? 1 : 0))) {
        return false;
    }
    end = SkipDigits(text, end);
    end = end < text.size() && text[end] == '.' ? SkipDigits(text, end + 1) : end;
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const bool hasSign = end + 1 < text.size() && (text[end + 1] == '-' || text[end + 1] == '+');
        const std::size_t digits = end + (hasSign ? 2 : 1);
        end = IsDigit(text, digits) ? SkipDigits(text, digits) : end;
    }
    constexpr float kLargest = std::numeric_limits<float>::max();
    value = std::clamp(std::strtof(std::string(text.substr(begin, end - begin)).c_str(), nullptr), -kLargest, kLargest);
    return true;
}

std::string ShortestByLibrary(float value)
{
    return Written(Shortest(value));
}

std::string PlainByLibrary(float value)
{
    Digits digits = Printed(value, 111);
    Trim(digits);
    constexpr std::size_t kMost = 7;
    if (digits.whole.size() > kMost) { // the point goes behind the seventh digit and comes back
        const std::size_t behind = digits.whole.size() - kMost;
        digits.fraction.insert(0, digits.whole.substr(kMost));
        digits.whole.resize(kMost);
        Round(digits, 0);
        digits.whole.append(behind, '0');
        return Written(digits);
    }
    const std::size_t zeros = digits.whole.empty() ? digits.fraction.find_first_not_of('0') : 0;
    Round(digits, kMost - digits.whole.size() + (zeros == std::string::npos ? 0 : zeros));
    return Written(digits);
}

std::string MaskedByLibrary(float value, std::string_view mask)
{
    const std::size_t point = std::min(mask.find('.'), mask.size());
    const std::string_view before = mask.substr(0, point);
    const std::string_view behind = mask.substr(std::min(point + 1, mask.size()));
    Digits digits = Shortest(value);
    Round(digits, behind.size());
    Trim(digits);
    const std::size_t whole = before.size() - std::min(before.find('0'), before.size());
    const std::size_t places = behind.rfind('0') == std::string_view::npos ? 0 : behind.rfind('0') + 1;
    digits.whole.insert(0, whole - std::min(whole, digits.whole.size()), '0');
    digits.fraction.append(places - std::min(places, digits.fraction.size()), '0');
    return std::string(digits.isNegative ? "-" : "") + digits.whole + (point < mask.size() ? "." : "") +
           digits.fraction;
}

} // namespace quillon::fuzz
