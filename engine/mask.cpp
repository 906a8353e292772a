#include "engine/mask.h"

#include "engine/number_text.h"

namespace quillon::engine {

namespace {

void AppendDigitsWithMask(std::string& text, float value, const Mask& mask, std::string_view separator)
{
    Decimal number = ShortestDecimal(value);
    RoundToPlaces(number, mask.Places());
    text += LayOut(number, mask.Layout(), separator);
}

} // namespace

std::string FormatWithMask(float value, std::string_view mask, std::string_view separator)
{
    std::string text;
    AppendWithMask(text, value, Mask(mask), separator);
    return text;
}

void AppendWithMask(std::string& text, float value, const Mask& mask, std::string_view separator)
{
    if (const ScaledNumber number = ScaleShortest(value, mask.Places())) {
        AppendScaled(text, number, mask.Layout(), separator);
    } else {
        AppendDigitsWithMask(text, value, mask, separator);
    }
}

float RoundDigitsWithMask(float value, const Mask& mask)
{
    std::string text;
    AppendDigitsWithMask(text, value, mask, ".");
    return NumberFromText(text);
}

float RoundWithMask(float value, std::string_view mask)
{
    return RoundWithMask(value, Mask(mask));
}

} // namespace quillon::engine
