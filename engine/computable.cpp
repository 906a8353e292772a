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

AntennaSystems WithAntenna(const SystemData& data)
{
    AntennaSystems systems;
    systems.Data[SystemId::One] = data;
    // An antenna only adds figures: what overflows without one overflows with one.
    systems.Data[SystemId::One].UseAntennaList = kTrue;
    systems.Results[SystemId::One].AntennaGainDBd = data.AntennaGain;
    systems.State[SystemId::One].SetFlag(kComputeFlag, kTrue);
    return systems;
}

} // namespace

bool CanCompute(const SystemData& data)
{
    AntennaSystems systems = WithAntenna(data);
    NoDisplay display;
    NoHooks hooks;
    Calculations calculations(systems, display, hooks);
    calculations.BuildDBTable();
    calculations.BuildVSWRTable();
    try {
        calculations.RefreshData(1);
        return true;
    } catch (const ArithmeticError&) {
        return false;
    }
}

} // namespace quillon::engine
