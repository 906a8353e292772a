#pragma once

#include "engine/records.h"

#include <array>

namespace quillon::engine {

inline constexpr int kMarkerCount = 9;

/// Filled markers by row: ERP, antenna power gain, feed-point power, system gain, antenna gain, mismatch dB,
/// mismatch W, coax dB, coax W.
using Markers = std::array<PerSystem<bool>, kMarkerCount>;

/// Compares both systems' results as they are shown and fills the better side's marker of each row, both when equal.
/// Rows that are compared only for positive values keep their markers while either value, as shown, is 0 or less.
void UpdateMarkers(const PerSystem<SystemResults>& results, Markers& markers);

} // namespace quillon::engine
