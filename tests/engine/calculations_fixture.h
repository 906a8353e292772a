#pragma once

#include "engine/calculations.h"
#include "tests/support/recording_display.h"
#include "tests/support/recording_hooks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon::engine {

/// Both systems enabled and alike: 100 W into 100 ft with 1.31 dB of loss and two connectors, VSWR 1.1, 5.0 dBd.
class CalculationsTest : public ::testing::Test
{
protected:
    CalculationsTest()
    {
        calculations.BuildDBTable();
        calculations.BuildVSWRTable();
        for (const SystemId system : kBothSystems) {
            SystemData& data = systems.Data[system];
            data.XmitPower = 100.0F;
            data.VSWR = 1.1F;
            data.CoaxLength = 100.0F;
            data.CoaxLoss = 1.31F;
            data.UseAntennaList = kTrue;
            systems.Results[system].ConnectorLoss = 0.01304F;
            SetAntenna(system, 5.0F, "dBd");
            systems.State[system].SetFlag(kComputeFlag, kTrue);
        }
    }

    void SetAntenna(SystemId system, float gain, const char* gainType)
    {
        systems.Data[system].AntennaGain = gain;
        systems.Data[system].GainType = gainType;
        systems.Results[system].AntennaGainDBd = gain;
    }

    [[nodiscard]] SystemData& One() { return systems.Data[SystemId::One]; }

    [[nodiscard]] SystemResults& ResultsOfOne() { return systems.Results[SystemId::One]; }

    AntennaSystems systems;
    support::RecordingDisplay display;
    support::RecordingHooks hooks;
    Calculations calculations{systems, display, hooks};
};

using Lines = std::vector<std::string>;

} // namespace quillon::engine
