#pragma once

#include "engine/records.h"

#include <array>
#include <cstddef>

namespace quillon::bench {

/// The inputs of one recalculation.
struct Sample
{
    float xmitPower;     ///< W
    float vswr;          ///< a step of the table
    float coaxLength;    ///< ft
    float coaxLoss;      ///< dB per 100 ft
    float connectorLoss; ///< dB
    float antennaGain;   ///< dBd
};

/// Unit of every sample's antenna gain.
inline constexpr const char* kGainType = "dBi";

inline constexpr std::size_t kSampleCount = 1024;
using Samples = std::array<Sample, kSampleCount>;

/// Inputs as a session has them, the same ones at each run, so many that no processor learns the way of each.
[[nodiscard]] Samples MakeSamples();

/// Sets the fields of System One's records that a sample has.
void Enter(const Sample& sample, engine::AntennaSystems& systems);

} // namespace quillon::bench
