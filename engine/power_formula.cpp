#include "engine/power_formula.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_writer.h"

#include <array>
#include <cstddef>
#include <stdexcept>

namespace quillon::engine {

namespace {

constexpr Mask kSearchMask("##0.0");
constexpr Mask kPowerMask("#0.00");

constexpr std::array kFormulaLabels{
    ResultLabel::AntennaPowerGain,
    ResultLabel::SystemGain,
    ResultLabel::CoaxPowerLoss,
    ResultLabel::FeedPointPower,
};

PowerSource SystemPowerSource(float gain, float power)
{
    const bool isLoss = gain < 0;
    return {isLoss ? -gain : gain, power, isLoss};
}

PowerSource UnroundedSourceOf(PowerKind kind, const SystemData& data, const SystemResults& results)
{
    switch (kind) {
    case PowerKind::SystemPower:
        return SystemPowerSource(results.SystemGain, data.XmitPower);
    case PowerKind::CoaxPowerLoss:
        return {results.CoaxDBLoss, data.XmitPower, true};
    default:
        return {data.AntennaGain, results.FeedPointPower, false};
    }
}

} // namespace

PowerKind ToPowerKind(int number)
{
    if (number < 1 || number > 4) {
        throw std::out_of_range("a power's kind is 1 to 4");
    }
    return static_cast<PowerKind>(number);
}

PowerSource SourceOf(PowerKind kind, const SystemData& data, const SystemResults& results)
{
    PowerSource source = UnroundedSourceOf(kind, data, results);
    source.dB = RoundWithMask(source.dB, kSearchMask);
    return source;
}

PowerStep PowerFromCoefficient(PowerKind kind, float coefficient, float power)
{
    const float product = Checked(coefficient * power);
    switch (kind) {
    case PowerKind::AntennaPowerGain:
        return {power, coefficient, Checked(product - power)};
    case PowerKind::SystemPower:
        return {power, coefficient, RoundWithMask(product, kPowerMask)};
    case PowerKind::CoaxPowerLoss:
        return {power, coefficient, RoundWithMask(power - product, kPowerMask)};
    default:
        return {power, coefficient, product};
    }
}

void WritePowerFormula(NumberWriter& text, PowerKind kind, const PowerStep& step)
{
    const auto& [power, coefficient, result] = step;
    switch (kind) {
    case PowerKind::AntennaPowerGain:
        text << "(" << power << " * " << coefficient << ") - " << power << " = " << result;
        return;
    case PowerKind::SystemPower:
        text << power << " * " << coefficient << " = " << result;
        return;
    case PowerKind::CoaxPowerLoss:
        text << power << " - (" << power << " * " << coefficient << ") = " << result;
        return;
    default:
        text << "(" << power << " * " << coefficient << ") = " << result;
    }
}

ResultLabel FormulaLabel(PowerKind kind) noexcept
{
    return kFormulaLabels[static_cast<std::size_t>(kind) - 1];
}

} // namespace quillon::engine
