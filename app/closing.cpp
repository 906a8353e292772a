#include "app/closing.h"

#include <algorithm>

namespace quillon {

bool HasUnsavedPair(const engine::AntennaSystems& systems)
{
    // As given, the flag of System One stands for the pair.
    const bool saved = systems.State[engine::SystemId::One].Flag(engine::kSavedFlag) != engine::kFalse;
    const bool configured = std::ranges::all_of(engine::kBothSystems, [&](engine::SystemId system) {
        const engine::SystemData& data = systems.Data[system];
        return data.UseAntennaList != engine::kFalse && data.UseCoaxList != engine::kFalse;
    });
    return configured && !saved;
}

} // namespace quillon
