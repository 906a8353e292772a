#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <string_view>

namespace quillon::engine {

/// One row of the table that turns decibels into powers.
struct DBRow
{
    /// Row index * 0.1. No number while the row is not filled, so that no lookup finds it.
    float dB = std::numeric_limits<float>::quiet_NaN();
    float gainCoefficient = 0; ///< 10^(dB / 10) to four digits, but for three rows, as given
    float lossCoefficient = 0; ///< 1 / gainCoefficient to four decimals

    [[nodiscard]] bool operator==(const DBRow&) const = default;
};

inline constexpr int kDBRowCount = 200;
using DBTable = std::array<DBRow, kDBRowCount>;

/// Builds the table from its coefficient texts.
[[nodiscard]] DBTable BuildDBTable();

/// The row that a bisection looks at: halfway between two others, halves to even.
[[nodiscard]] constexpr int MiddleRow(int low, int high) noexcept
{
    const int sum = low + high;
    const int half = sum / 2;
    return half + (sum & half & 1);
}

/// Finds the row of a dB value by bisection; the match is exact.
/// @param dB        rounded to tenths.
/// @param eachStep  called once per step of the search.
/// @return the row, or nothing below 0, from 20.0 on and between the steps.
template <class EachStep>
[[nodiscard]] std::optional<DBRow> FindDBRow(const DBTable& table, float dB, const EachStep& eachStep)
{
    int low = 0;
    int high = kDBRowCount - 1;
    while (low <= high) {
        eachStep();
        const int middle = MiddleRow(low, high);
        const DBRow& row = table[static_cast<std::size_t>(middle)];
        if (row.dB == dB) {
            return row;
        }
        // Both are set at each step: no processor foresees which way a search goes.
        const bool isBelow = dB < row.dB;
        high = isBelow ? middle - 1 : high;
        low = isBelow ? low : middle + 1;
    }
    return std::nullopt;
}

/// Catalogue gain (tenths of a dB) as dBd, rounded to tenths: 30 in "dBd" gives 3.0, in "dBi" 0.9.
/// @param gainType  its first three characters count, and their case; any unit but "dBi" leaves the gain as it is.
/// @throws ArithmeticError when the gain is not finite.
[[nodiscard]] float GainToDBd(float gain, std::string_view gainType);

} // namespace quillon::engine
