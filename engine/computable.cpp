#include "engine/computable.h"

#include "engine/arithmetic_error.h"
#include "engine/calculations.h"

namespace quillon::engine {

namespace {

class NoDisplay : public ResultsDisplay
{
public:
    void ShowResult(ResultLabel /*label*/, SystemId /*system*/, std::string_view /*text*/) override {}

    void ShowFormula(ResultLabel /*label*/, SystemId /*system*/, std::string_view /*text*/) override {}

    void CompareSystems() override {}
};

class NoHooks : public EngineHooks
{
public:
    void Beep() override {}

    void LetPendingEventsRun() override {}
};

AntennaSystems WithAndWithoutAntenna(const SystemData& data)
{
    AntennaSystems systems;
    for (const SystemId system : kBothSystems) {
        systems.Data[system] = data;
        systems.Results[system].AntennaGainDBd = data.AntennaGain;
        systems.State[system].SetFlag(kComputeFlag, kTrue);
    }
    systems.Data[SystemId::One].UseAntennaList = kFalse;
    systems.Data[SystemId::Two].UseAntennaList = kTrue;
    return systems;
}

} // namespace

bool CanCompute(const SystemData& data)
{
    AntennaSystems systems = WithAndWithoutAntenna(data);
    NoDisplay display;
    NoHooks hooks;
    Calculations calculations(systems, display, hooks);
    calculations.BuildDBTable();
    calculations.BuildVSWRTable();
    try {
        calculations.RefreshData(1);
        calculations.RefreshData(2);
        return true;
    } catch (const ArithmeticError&) {
        return false;
    }
}

} // namespace quillon::engine
