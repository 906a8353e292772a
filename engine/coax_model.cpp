#include "engine/coax_model.h"

#include "engine/arithmetic_error.h"
#include "engine/text_compare.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quillon::engine {

namespace {

/// A range of frequencies, MHz, cut into bins.
struct Segment
{
    std::array<float, 10> binBegins;
    float end;
};

// clang-format off
constexpr std::array<Segment, 9> kSegments{{
    {{0.001F, 0.101F, 0.201F, 0.301F, 0.401F, 0.501F, 0.601F, 0.701F, 0.801F, 0.901F}, 1.001F},
    {{1.001F, 1.901F, 2.801F, 3.701F, 4.601F, 5.501F, 6.401F, 7.301F, 8.201F, 9.101F}, 10.001F},
    {{10.001F, 14.001F, 18.001F, 22.001F, 26.001F, 30.001F, 34.001F, 38.001F, 42.001F, 46.001F}, 50.001F},
    {{50.001F, 55.001F, 60.001F, 65.001F, 70.001F, 75.001F, 80.001F, 85.001F, 90.001F, 95.001F}, 100.001F},
    {{100.001F, 110.001F, 120.001F, 130.001F, 140.001F, 150.001F, 160.001F, 170.001F, 180.001F, 190.001F}, 200.001F},
    {{200.001F, 220.001F, 240.001F, 260.001F, 280.001F, 300.001F, 320.001F, 340.001F, 360.001F, 380.001F}, 400.001F},
    {{400.001F, 430.001F, 460.001F, 490.001F, 520.001F, 550.001F, 580.001F, 610.001F, 640.001F, 670.001F}, 700.001F},
    {{700.001F, 720.001F, 740.001F, 760.001F, 780.001F, 800.001F, 820.001F, 840.001F, 860.001F, 880.001F}, 900.001F},
    {{900.001F, 910.001F, 920.001F, 930.001F, 940.001F, 950.001F, 960.001F, 970.001F, 980.001F, 990.001F}, 1000.001F},
}};
// clang-format on

/// The only segment whose losses are interpolated: 10 to 50 MHz.
constexpr std::size_t kInterpolatedSegment = 2;

/// The only bounds that belong to a bin, as given: the lowest, and one in the bin from 160.001 MHz, which reaches into
/// the next one up to 170.501.
constexpr std::array kHeldBounds{0.001F, 170.001F};

/// Losses of one connector, dB, in a range of frequencies, MHz. Only the first range holds its lower bound, as given.
struct ConnectorBand
{
    float begin;
    float end;
    float loss;
};

constexpr auto kConnectorBands = std::to_array<ConnectorBand>({
    {0.001F, 1.001F, 0.00521F},
    {1.001F, 10.001F, 0.00565F},
    {10.001F, 20.001F, 0.00652F},
    {20.001F, 30.001F, 0.00782F},
    {30.001F, 50.001F, 0.00957F},
    {50.001F, 100.001F, 0.01131F},
    {100.001F, 200.001F, 0.01523F},
    {200.001F, 300.001F, 0.02177F},
    {300.001F, 400.001F, 0.03051F},
    {400.001F, 500.001F, 0.04365F},
    {500.001F, 1000.001F, 0.06564F},
    {1000.001F, 1250.001F, 0.07889F},
    {1250.001F, 1500.001F, 0.12334F},
    {1500.001F, 1750.001F, 0.17277F},
    {1750.001F, 2000.001F, 0.45757F},
});

/// The number, from 1 on, of the bin that holds a frequency of a segment; 0 when none does.
std::ptrdiff_t BinNumber(const Segment& segment, float frequency) noexcept
{
    if (std::ranges::binary_search(segment.binBegins, frequency) &&
        !std::ranges::binary_search(kHeldBounds, frequency)) {
        return 0;
    }
    return std::ranges::upper_bound(segment.binBegins, frequency) - segment.binBegins.begin();
}

} // namespace

float CoaxLossByK(float k1, float k2, float frequency, float coaxLength)
{
    const double skinLoss = k1 * std::sqrt(static_cast<double>(frequency));
    const float dielectricLoss = k2 * frequency;
    return StoreAsFloat((skinLoss + dielectricLoss) * coaxLength / 100);
}

float CoaxLossBySpec(const std::array<float, 9>& coaxSpec, float frequency)
{
    const auto* const segment = std::ranges::upper_bound(kSegments, frequency, {}, &Segment::end);
    if (segment == kSegments.end()) {
        return 0;
    }
    const auto bin = BinNumber(*segment, frequency);
    if (bin == 0) {
        return 0;
    }
    const auto index = static_cast<std::size_t>(segment - kSegments.begin());
    const float base = index == 0 ? 0.01F : coaxSpec[index - 1];
    const double step = index == kInterpolatedSegment ? (coaxSpec[2] - coaxSpec[1]) * 0.1 : 0.0;
    return StoreAsFloat(base + 0.01 + static_cast<double>(bin) * step);
}

float ConnectorLossPerConnector(float frequency) noexcept
{
    for (const ConnectorBand& band : kConnectorBands) {
        const bool isFirst = &band == &kConnectorBands.front();
        const bool isAboveBegin = isFirst ? frequency >= band.begin : frequency > band.begin;
        if (isAboveBegin && frequency < band.end) {
            return band.loss;
        }
    }
    return 0;
}

float CoaxLossOf(const SystemData& data, const std::array<float, 9>& coaxSpec)
{
    if (EqualIgnoringCase(data.CoaxBrand.Padded(), kKFactorMaker)) {
        return CoaxLossByK(coaxSpec[1], coaxSpec[2], data.Frequency, data.CoaxLength);
    }
    return CoaxLossBySpec(coaxSpec, data.Frequency);
}

} // namespace quillon::engine
