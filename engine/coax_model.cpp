#include "engine/coax_model.h"

#include "engine/arithmetic_error.h"
#include "engine/text_compare.h"

#include <cmath>
#include <cstddef>
#include <optional>

namespace quillon::engine {

namespace {

constexpr std::size_t kBinCount = 10;

/// A range of frequencies, MHz, whose bounds belong to no segment, cut into bins.
struct Segment
{
    float begin;
    std::array<float, kBinCount> binBegins;
    float end;
};

// clang-format off
constexpr std::array<Segment, 9> kSegments{{
    {0.0F, {0.001F, 0.101F, 0.201F, 0.301F, 0.401F, 0.501F, 0.601F, 0.701F, 0.801F, 0.901F}, 1.001F},
    {1.001F, {1.001F, 1.901F, 2.801F, 3.701F, 4.601F, 5.501F, 6.401F, 7.301F, 8.201F, 9.101F}, 10.001F},
    {10.001F, {10.001F, 14.001F, 18.001F, 22.001F, 26.001F, 30.001F, 34.001F, 38.001F, 42.001F, 46.001F}, 50.001F},
    {50.001F, {50.001F, 55.001F, 60.001F, 65.001F, 70.001F, 75.001F, 80.001F, 85.001F, 90.001F, 95.001F}, 100.001F},
    {100.001F,
     {100.001F, 110.001F, 120.001F, 130.001F, 140.001F, 150.001F, 160.001F, 170.001F, 180.001F, 190.001F}, 200.001F},
    {200.001F,
     {200.001F, 220.001F, 240.001F, 260.001F, 280.001F, 300.001F, 320.001F, 340.001F, 360.001F, 380.001F}, 400.001F},
    {400.001F,
     {400.001F, 430.001F, 460.001F, 490.001F, 520.001F, 550.001F, 580.001F, 610.001F, 640.001F, 670.001F}, 700.001F},
    {700.001F,
     {700.001F, 720.001F, 740.001F, 760.001F, 780.001F, 800.001F, 820.001F, 840.001F, 860.001F, 880.001F}, 900.001F},
    {900.001F,
     {900.001F, 910.001F, 920.001F, 930.001F, 940.001F, 950.001F, 960.001F, 970.001F, 980.001F, 990.001F}, 1000.001F},
}};
// clang-format on

/// The only segment whose losses are interpolated: 10 to 50 MHz.
constexpr std::size_t kInterpolatedSegment = 2;

/// As given: the bin from 160.001 MHz reaches into the next one.
constexpr std::size_t kOverlappingSegment = 4;
constexpr std::size_t kOverlappingBin = 6;
constexpr float kOverlappingBinEnd = 170.501F;

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

std::optional<std::size_t> FindSegment(float frequency) noexcept
{
    for (std::size_t i = 0; i < kSegments.size(); ++i) {
        if (frequency > kSegments[i].begin && frequency < kSegments[i].end) {
            return i;
        }
    }
    return std::nullopt;
}

float BinEnd(std::size_t segment, std::size_t bin) noexcept
{
    if (segment == kOverlappingSegment && bin == kOverlappingBin) {
        return kOverlappingBinEnd;
    }
    return bin + 1 < kBinCount ? kSegments[segment].binBegins[bin + 1] : kSegments[segment].end;
}

std::optional<std::size_t> FindBin(std::size_t segment, float frequency) noexcept
{
    for (std::size_t bin = 0; bin < kBinCount; ++bin) {
        const float begin = kSegments[segment].binBegins[bin];
        const bool isAboveBegin = bin == 0 ? frequency >= begin : frequency > begin;
        if (isAboveBegin && frequency < BinEnd(segment, bin)) {
            return bin;
        }
    }
    return std::nullopt;
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
    const auto segment = FindSegment(frequency);
    if (!segment) {
        return 0;
    }
    const auto bin = FindBin(*segment, frequency);
    if (!bin) {
        return 0;
    }
    const float base = *segment == 0 ? 0.01F : coaxSpec[*segment - 1];
    const double step = *segment == kInterpolatedSegment ? (coaxSpec[2] - coaxSpec[1]) * 0.1 : 0.0;
    return StoreAsFloat(base + 0.01 + static_cast<double>(*bin + 1) * step);
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
