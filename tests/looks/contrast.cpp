#include "tests/looks/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quillon::test {

namespace {

std::array<double, 256> LinearParts()
{
    std::array<double, 256> parts{};
    for (std::size_t value = 0; value < parts.size(); ++value) {
        const double part = static_cast<double>(value) / 255;
        parts.at(value) = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return parts;
}

double Luminance(QRgb color)
{
    static const std::array<double, 256> kLinear = LinearParts();
    const auto linear = [](int value) { return kLinear.at(static_cast<std::size_t>(value)); };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

} // namespace

double Contrast(QRgb one, QRgb other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QRgb Over(const QColor& color, QRgb behind)
{
    const auto mix = [share = static_cast<double>(color.alphaF())](int over, int under) {
        return qRound(under + (over - under) * share);
    };
    return qRgb(mix(color.red(), qRed(behind)), mix(color.green(), qGreen(behind)), mix(color.blue(), qBlue(behind)));
}

} // namespace quillon::test
