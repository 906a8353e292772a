#pragma once

#include <cstdint>

namespace quillon::engine {

/// A spin position turned into a value.
struct SpinValue
{
    float value;     ///< rounded with the routine's mask
    float unrounded; ///< before rounding
};

/// Feet: 3500 - position, rounded with "##00.0".
[[nodiscard]] SpinValue SpinToCoaxLength(float position);
/// dB: 10 - position, rounded with "##.0".
[[nodiscard]] SpinValue SpinToAntennaGain(float position);
/// Standing-wave ratio: 10 - position, rounded with "##.00".
[[nodiscard]] SpinValue SpinToVSWR(float position);
/// Watts: 1500 - position, rounded with "####"; 0 or less becomes 1, before rounding and after it.
[[nodiscard]] SpinValue SpinToOutputPower(float position);
/// Number of connectors: 25 - position. @throws ArithmeticError when that does not fit 16 bits.
[[nodiscard]] std::int16_t SpinToConnectors(int position);
/// The value itself, rounded with "##.0".
[[nodiscard]] float RoundTenths(float value);

} // namespace quillon::engine
