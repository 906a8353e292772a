#include "engine/mask.h"

#include "engine/decimal.h"
#include "engine/number_text.h"

#include <algorithm>
#include <cstddef>

namespace quillon::engine {

std::string FormatWithMask(float value, std::string_view mask, std::string_view separator)
{
    const std::size_t point = std::min(mask.find('.'), mask.size());
    const std::string_view whole = mask.substr(0, point);
    const std::string_view fraction = mask.substr(std::min(point + 1, mask.size()));

    DecimalLayout layout;
    layout.wholeDigits = static_cast<int>(whole.size() - std::min(whole.find('0'), whole.size()));
    layout.places = static_cast<int>(fraction.rfind('0') + 1);
    layout.alwaysPoint = point < mask.size();

    Decimal number = ShortestDecimal(value);
    RoundToPlaces(number, static_cast<int>(fraction.size()));
    return LayOut(number, layout, separator);
}

float RoundWithMask(float value, std::string_view mask)
{
    return NumberFromText(FormatWithMask(value, mask));
}

} // namespace quillon::engine
