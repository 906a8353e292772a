#include "bench/recalculation/samples.h"

#include <random>

namespace quillon::bench {

Samples MakeSamples()
{
    // NOLINTNEXTLINE(bugprone-random-generator-seed,cert-msc51-cpp): the same inputs at each run are wanted.
    std::mt19937 chance(20261122);
    const auto upTo = [&chance](unsigned count) { return static_cast<float>(chance() % count); };
    Samples samples{};
    for (Sample& sample : samples) {
        sample.xmitPower = 1 + upTo(1500);
        sample.vswr = (10 + upTo(30)) / 10;
        sample.coaxLength = (100 + upTo(4900)) / 10;
        sample.coaxLoss = (200 + upTo(5000)) / 1000;
        sample.connectorLoss = 0.00652F * (1 + upTo(8));
        sample.antennaGain = upTo(200) / 10;
    }
    return samples;
}

void Enter(const Sample& sample, engine::AntennaSystems& systems)
{
    engine::SystemData& data = systems.Data[engine::SystemId::One];
    engine::SystemResults& results = systems.Results[engine::SystemId::One];
    data.XmitPower = sample.xmitPower;
    data.VSWR = sample.vswr;
    data.CoaxLength = sample.coaxLength;
    data.CoaxLoss = sample.coaxLoss;
    data.AntennaGain = sample.antennaGain;
    results.ConnectorLoss = sample.connectorLoss;
    results.AntennaGainDBd = sample.antennaGain;
}

} // namespace quillon::bench
