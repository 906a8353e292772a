#pragma once

#include <array>
#include <limits>
#include <optional>

namespace quillon::engine {

/// What a mismatch of one table step does to the power in the feed line.
struct VSWRRow
{
    /// Standing-wave ratio, 1.0 to 3.9 in steps of 0.1. No number while the row is not filled, so that no lookup finds
    /// it.
    float vswr = std::numeric_limits<float>::quiet_NaN();
    float factor = 0; ///< power ratio left after the mismatch, 0 to 1
    float lossDB = 0; ///< mismatch loss, dB, above 0

    [[nodiscard]] bool operator==(const VSWRRow&) const = default;
};

inline constexpr int kVSWRRowCount = 30;
using VSWRTable = std::array<VSWRRow, kVSWRRowCount>;

/// Builds the table.
[[nodiscard]] VSWRTable BuildVSWRTable();

/// Finds the table row of a standing-wave ratio. The lookup is exact: no interpolation, no nearest step.
/// @return the row, or nothing when vswr is off the table. That is not an error: the feed point
///         then gets 0 W and the mismatch figures on show stay.
[[nodiscard]] std::optional<VSWRRow> FindVSWRRow(const VSWRTable& table, float vswr) noexcept;

} // namespace quillon::engine
