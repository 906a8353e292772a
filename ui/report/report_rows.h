#pragma once

#include "engine/records.h"

#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace quillon::ui {

/// Rows of the report, the heading (0) and the empty ones (1, 4, 7, 12, 17) included.
inline constexpr int kReportRowCount = 23;

/// Where a row's value comes from; nothing for the coax loss, which has a text of its own.
using ReportValue =
    std::variant<std::monostate, engine::FixedText<25> engine::SystemData::*,
                 engine::FixedText<20> engine::SystemData::*, engine::FixedText<15> engine::SystemData::*,
                 float engine::SystemData::*, float engine::SystemResults::*>;

/// One row of values.
struct ReportRow
{
    int row; ///< place in the report's label arrays
    std::string_view caption;
    ReportValue value;
    std::string_view mask;   ///< empty: the shortest text of the number
    std::string_view suffix; ///< unit, directly behind the number
};

/// All rows that show a value, from top to bottom.
[[nodiscard]] std::span<const ReportRow> ReportRows() noexcept;

/// One system's value of a row, in UTF-8. Names keep the blanks that they are padded with.
/// @param separator  decimal separator of the rows that have a mask; the others show the point.
/// @throws engine::ArithmeticError when the value is not finite.
[[nodiscard]] std::string ReportText(const ReportRow& row, const engine::AntennaSystems& systems,
                                     engine::SystemId system, std::string_view separator = ".");

} // namespace quillon::ui
