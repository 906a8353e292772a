#include "engine/spin_conversions.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"

#include <string_view>

namespace quillon::engine {

namespace {

SpinValue FromTop(float top, float position, std::string_view mask)
{
    const float value = Checked(top - position);
    return {RoundWithMask(value, mask), value};
}

/// The least output power, W.
float AtLeastOneWatt(float power) noexcept
{
    return power > 0 ? power : 1;
}

} // namespace

SpinValue SpinToCoaxLength(float position)
{
    return FromTop(3500, position, "##00.0");
}

SpinValue SpinToAntennaGain(float position)
{
    return FromTop(10, position, "##.0");
}

SpinValue SpinToVSWR(float position)
{
    return FromTop(10, position, "##.00");
}

SpinValue SpinToOutputPower(float position)
{
    const SpinValue power = FromTop(1500, position, "####");
    return {AtLeastOneWatt(power.value), AtLeastOneWatt(power.unrounded)};
}

std::int16_t SpinToConnectors(int position)
{
    return ToInteger(25.0 - position);
}

float RoundTenths(float value)
{
    return RoundWithMask(value, "##.0");
}

} // namespace quillon::engine
