#pragma once

#include "engine/records.h"
#include "ui/report/comparison_text.h"

#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillon::ui {

/// A comparison text that has to be a number and is none.
class ComparisonTypeError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// How a row compares the two systems.
enum class ComparisonKind : std::uint8_t {
    Text,           ///< as texts
    Positive,       ///< as numbers above 0; anything else is a "Calc Error"
    CoaxLoss,       ///< as numbers of any size, taken from the coax loss texts
    CoaxLength,     ///< as whole numbers of feet from 1 to 32767
    TextThenNumber, ///< as texts, and where these differ as numbers
};

/// One row of the comparison.
struct ComparisonRow
{
    int row; ///< place in the report's label arrays
    ComparisonKind kind;
    ComparisonField ComparisonTexts::*field; ///< none for the coax loss
    std::string_view mask;                   ///< of the difference
    std::string_view equal;                  ///< the sentence of equal systems
    std::string_view one;                    ///< what stands before the difference when System One's value is greater
    std::string_view two;                    ///< the same for System Two; texts have one sentence for both
    std::string_view suffix;                 ///< what stands behind the difference
    engine::SystemId secondTested = engine::SystemId::Two; ///< whose field the second test for emptiness looks at
};

/// All rows, in the order in which they are compared.
[[nodiscard]] std::span<const ComparisonRow> ComparisonRows() noexcept;

/// What the rules compare.
struct ComparisonInput
{
    const ComparisonRecords& records;
    std::array<std::string, 2> coaxLoss; ///< both systems' coax loss texts, with a decimal point
};

[[nodiscard]] ComparisonInput InputOf(const engine::AntennaSystems& systems, const ComparisonRecords& records);

/// Says which system is ahead in a row and by how much.
/// @param separator  decimal separator of the difference shown.
/// @throws engine::ArithmeticError when a coax length does not fit 16 bits.
/// @throws ComparisonTypeError when a numeric field holds no number.
[[nodiscard]] std::string CompareRow(const ComparisonRow& row, const ComparisonInput& input,
                                     std::string_view separator = ".");

} // namespace quillon::ui
