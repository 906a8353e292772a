#pragma once

#include "engine/records.h"

namespace quillon {

/// Whether closing the program would leave a configured pair unsaved: both systems have an antenna and a coax, and they
/// do not stand in the saved-systems file as they are.
[[nodiscard]] bool HasUnsavedPair(const engine::AntennaSystems& systems);

} // namespace quillon
