#pragma once

#include "engine/system_id.h"

#include <cstdint>
#include <string_view>

namespace quillon::engine {

/// The value labels of the results panel; each exists once per system.
enum class ResultLabel : std::uint8_t {
    VSWRPowerLoss,
    VSWRAttenuation,
    CoaxDBLoss,
    CoaxPowerLoss,
    AntennaGain,
    AntennaPowerGain,
    SystemGain,
    FeedPointPower,
    ERP,
};
inline constexpr int kResultLabelCount = 9;

/// Shows what a computation gives. Called only after a computation has succeeded as a whole.
class ResultsDisplay
{
public:
    virtual ~ResultsDisplay() = default;

    virtual void ShowResult(ResultLabel label, SystemId system, std::string_view text) = 0;
    /// The arithmetic behind a result, shown as the label's tool tip.
    virtual void ShowFormula(ResultLabel label, SystemId system, std::string_view text) = 0;
    /// Compares both systems' results row by row: the last step of each computation.
    virtual void CompareSystems() = 0;
};

/// What the computation asks of its surroundings while it runs.
class EngineHooks
{
public:
    virtual ~EngineHooks() = default;

    virtual void Beep() = 0;
    /// Called once per step of a search in the dB table.
    virtual void LetPendingEventsRun() = 0;
};

} // namespace quillon::engine
