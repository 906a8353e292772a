#include "tests/ui/report/report_systems.h"

namespace quillon::ui {

using engine::SystemId;

namespace {

void FillFirst(engine::SystemData& data, engine::SystemResults& results)
{
    data.AntennaBrand = "Acme";
    data.AntennaModel = "Tribander 3";
    data.AntennaGain = 5.85F;
    data.UseAntennaList = engine::kTrue;
    data.CoaxBrand = "Boxwood";
    data.CoaxModel = "BX-400";
    data.CoaxLoss = 0.47F;
    data.CoaxLength = 100;
    data.UseCoaxList = engine::kTrue;
    data.Frequency = 14.25F;
    data.XmitPower = 100;
    data.VSWR = 1.1F;
    results.ERP = 342.625F;
    results.AntennaPowerGain = 253.0625F;
    results.FeedPointPower = 89.5625F;
    results.CoaxDBLoss = 0.47F;
    results.CoaxPowerLoss = 10.25F;
    results.VSWRPowerLoss = 0.25F;
    results.VSWRAttenuation = 0.01F;
}

void FillSecond(engine::SystemData& data, engine::SystemResults& results)
{
    data.AntennaBrand = "Zenith";
    data.AntennaModel = "Dipole";
    data.AntennaGain = 2.15F;
    data.UseAntennaList = engine::kTrue;
    data.CoaxBrand = "Copperline";
    data.CoaxModel = "CL 213";
    data.CoaxLoss = 0.62F;
    data.CoaxLength = 75.5F;
    data.UseCoaxList = engine::kTrue;
    data.Frequency = 7.23F;
    data.XmitPower = 5;
    data.VSWR = 1.5F;
    results.ERP = 8.5F;
    results.AntennaPowerGain = 4.125F;
    results.FeedPointPower = 4.375F;
    results.CoaxDBLoss = 0.4681F;
    results.CoaxPowerLoss = 0.5F;
    results.VSWRPowerLoss = 54.125F;
    results.VSWRAttenuation = 0.1773F;
}

} // namespace

engine::AntennaSystems DifferentSystems()
{
    engine::AntennaSystems systems;
    FillFirst(systems.Data[SystemId::One], systems.Results[SystemId::One]);
    FillSecond(systems.Data[SystemId::Two], systems.Results[SystemId::Two]);
    return systems;
}

engine::AntennaSystems EqualSystems()
{
    engine::AntennaSystems systems;
    for (const SystemId system : engine::kBothSystems) {
        FillFirst(systems.Data[system], systems.Results[system]);
    }
    return systems;
}

} // namespace quillon::ui
