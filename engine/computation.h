#pragma once

#include "engine/mask.h"
#include "engine/power_formula.h"
#include "engine/records.h"
#include "engine/results_display.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillon::engine {

/// What one operation on a system has worked out so far: its results, and the numbers of all texts to be shown. Nothing
/// of it is seen outside before it is committed, and the texts are not written before that.
class Computation
{
public:
    /// @param number  1 or 2. @throws std::out_of_range for any other.
    Computation(const AntennaSystems& systems, int number);

    /// @param mask  must outlive this object. @throws ArithmeticError when the number is not finite.
    void ShowResult(ResultLabel label, float number, const Mask& mask);
    /// Shows the system's gain and its arithmetic. @throws ArithmeticError when a number of it is not finite.
    void ShowSystemGain();
    /// @param formula  must outlive this object.
    void ShowFormula(ResultLabel label, std::string_view formula);
    void ShowFormula(PowerKind kind, const PowerStep& step);

    void CompareSystems() noexcept { m_comparesSystems = true; }

    /// Stores the results and shows the texts, in the order in which they came.
    /// @param text  what they are written with.
    void Commit(AntennaSystems& systems, ResultsDisplay& display, NumberWriter& text) const;

    const SystemId system;
    const SystemData& data;
    SystemResults results;
    const bool isComputed; ///< by the system's flag

private:
    enum class Form : std::uint8_t { Number, Masked, Words, SystemGainFormula, PowerFormula };

    /// A text before it is written: each form uses what it needs.
    struct Shown
    {
        ResultLabel label;
        Form form;
        PowerKind kind;
        std::array<float, 4> numbers;
        const Mask* mask;
        std::string_view words;

        void Write(NumberWriter& text) const;
    };

    [[nodiscard]] Shown& Add(ResultLabel label, Form form);

    /// Nine results and five formulas.
    std::array<Shown, 14> m_shown;
    std::size_t m_count = 0;
    bool m_comparesSystems = false;
};

} // namespace quillon::engine
