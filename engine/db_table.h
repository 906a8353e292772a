#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>

namespace quillon::engine {

/// One row of the table that turns decibels into powers.
struct DBRow {
    float dB;              ///< row index * 0.1
    float gainCoefficient; ///< 10^(dB / 10) to four digits, but for three rows, as given
    float lossCoefficient; ///< 1 / gainCoefficient to four decimals
};

inline constexpr int kDBRowCount = 200;
using DBTable = std::array<DBRow, kDBRowCount>;

/// Builds the table from its coefficient texts.
[[nodiscard]] DBTable BuildDBTable();

/// Finds the row of a dB value by bisection; the match is exact.
/// @param eachStep  called once per step of the search.
[[nodiscard]] std::optional<DBRow> FindDBRow(const DBTable& table, float dB, const std::function<void()>& eachStep);

/// Catalogue gain (tenths of a dB) as dBd, rounded to tenths: 30 in "dBd" gives 3.0, in "dBi" 0.9.
/// @param gainType  its first three characters count, and their case.
[[nodiscard]] float GainToDBd(float gain, std::string_view gainType);

} // namespace quillon::engine
