#pragma once

#include "engine/records.h"

namespace quillon::engine {

/// Whether a system's results can be computed from these inputs, with its antenna and without: no figure overflows.
/// For inputs from a file, before they become a record.
[[nodiscard]] bool CanCompute(const SystemData& data);

} // namespace quillon::engine
