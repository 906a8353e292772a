#include "engine/power_formula.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"

#include <array>
#include <cstddef>
#include <stdexcept>

namespace quillon::engine {

namespace {

constexpr std::string_view kPowerMask = "#0.00";

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
    source.dB = RoundWithMask(source.dB, "##0.0");
    return source;
}

PowerResult PowerFromCoefficient(PowerKind kind, float coefficient, float power, std::string_view separator)
{
    const auto plain = [separator](float value) { return PlainText(value, separator); };
    const float product = Checked(coefficient * power);
    const std::string factors = plain(power) + " * " + plain(coefficient);
    switch (kind) {
    case PowerKind::AntennaPowerGain: {
        const float added = product - power;
        return {added, "(" + factors + ") - " + plain(power) + " = " + plain(added)};
    }
    case PowerKind::SystemPower: {
        const float reached = RoundWithMask(product, kPowerMask);
        return {reached, factors + " = " + plain(reached)};
    }
    case PowerKind::CoaxPowerLoss: {
        const float lost = RoundWithMask(power - product, kPowerMask);
        return {lost, plain(power) + " - (" + factors + ") = " + plain(lost)};
    }
    default:
        return {product, "(" + factors + ") = " + plain(product)};
    }
}

ResultLabel FormulaLabel(PowerKind kind) noexcept
{
    return kFormulaLabels[static_cast<std::size_t>(kind) - 1];
}

} // namespace quillon::engine
