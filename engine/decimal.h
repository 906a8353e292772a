#pragma once

#include <string>
#include <string_view>

namespace quillon::engine {

/// A number as decimal digits: 0.d1d2d3... * 10^point, without zeros at either end; zero has no digits and no sign.
struct Decimal
{
    bool negative = false;
    std::string digits;
    int point = 0; ///< digits left of the decimal point; 0 or less for numbers below 0.1
};

/// The fewest digits that read back as the same float.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] Decimal ShortestDecimal(float value);

/// All digits of the float, at most 112.
/// @throws ArithmeticError when value is not finite.
[[nodiscard]] Decimal ExactDecimal(float value);

/// Rounds half away from zero to a number of places after the decimal point; below 0 they count to its left.
void RoundToPlaces(Decimal& number, int places);

/// How many digits a text shows at least, and where.
struct DecimalLayout
{
    int wholeDigits = 1;      ///< least number of digits before the decimal point
    int places = 0;           ///< least number of digits after it
    bool alwaysPoint = false; ///< the separator stands also where no digit follows it
};

/// Writes a number positionally, with all of its digits.
[[nodiscard]] std::string LayOut(const Decimal& number, const DecimalLayout& layout, std::string_view separator);

} // namespace quillon::engine
