#pragma once

#include "engine/records.h"
#include "engine/results_display.h"

#include <cstdint>

namespace quillon::engine {

class NumberWriter;

/// The powers that can be worked out from a dB value, by the numbers that they are asked for with.
enum class PowerKind : std::uint8_t { AntennaPowerGain = 1, SystemPower, CoaxPowerLoss, ERP };

/// Turns a kind's number into the kind.
/// @throws std::out_of_range for any number but 1 to 4.
[[nodiscard]] PowerKind ToPowerKind(int number);

/// What a power is worked out from.
struct PowerSource
{
    float dB;                 ///< rounded to tenths, never negative for the system power
    float power;              ///< W
    bool usesLossCoefficient; ///< the loss coefficient of the dB value is to be taken, not the gain coefficient
};

/// Takes the dB value and the power of a kind from a system's records.
[[nodiscard]] PowerSource SourceOf(PowerKind kind, const SystemData& data, const SystemResults& results);

/// The arithmetic of a power, in W.
struct PowerStep
{
    float power; ///< what it was worked out from
    float coefficient;
    float result;
};

/// Applies a coefficient to a power.
/// @throws ArithmeticError on overflow.
[[nodiscard]] PowerStep PowerFromCoefficient(PowerKind kind, float coefficient, float power);

/// Writes the arithmetic out: "(74.13 * 3.162) = 234.399".
void WritePowerFormula(NumberWriter& text, PowerKind kind, const PowerStep& step);

/// The label that carries a kind's formula. The ERP's goes with the feed-point power, as given.
[[nodiscard]] ResultLabel FormulaLabel(PowerKind kind) noexcept;

} // namespace quillon::engine
