#pragma once

#include "engine/results_display.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon::support {

/// Name of a result label as it stands in a recorder's lines.
[[nodiscard]] inline std::string_view LabelName(engine::ResultLabel label)
{
    static constexpr std::array<std::string_view, engine::kResultLabelCount> kNames{
        "VSWRPowerLoss", "VSWRAttenuation", "CoaxDBLoss", "CoaxPowerLoss", "AntennaGain", "AntennaPowerGain",
        "SystemGain",    "FeedPointPower",  "ERP"};
    return kNames.at(static_cast<std::size_t>(label));
}

/// Keeps what it is given to show: as lines in order ("ERP(1): 234.40", "ERP(1) formula: ...", "CompareSystems") and
/// by label.
class RecordingDisplay : public engine::ResultsDisplay
{
public:
    void ShowResult(engine::ResultLabel label, engine::SystemId system, std::string_view text) override
    {
        m_lines.push_back(Address(label, system) + ": " + std::string(text));
        m_results[{label, system}] = text;
    }

    void ShowFormula(engine::ResultLabel label, engine::SystemId system, std::string_view text) override
    {
        m_lines.push_back(Address(label, system) + " formula: " + std::string(text));
        m_formulas[{label, system}] = text;
    }

    void CompareSystems() override { m_lines.emplace_back("CompareSystems"); }

    [[nodiscard]] const std::vector<std::string>& Lines() const noexcept { return m_lines; }

    /// @return the text shown last; empty when there was none.
    [[nodiscard]] std::string Result(engine::ResultLabel label, engine::SystemId system) const
    {
        return Find(m_results, label, system);
    }

    /// @return the formula shown last; empty when there was none.
    [[nodiscard]] std::string Formula(engine::ResultLabel label, engine::SystemId system) const
    {
        return Find(m_formulas, label, system);
    }

    void Clear() { *this = {}; }

private:
    using Texts = std::map<std::pair<engine::ResultLabel, engine::SystemId>, std::string>;

    static std::string Address(engine::ResultLabel label, engine::SystemId system)
    {
        return std::string(LabelName(label)) + "(" + std::to_string(engine::Number(system)) + ")";
    }

    static std::string Find(const Texts& texts, engine::ResultLabel label, engine::SystemId system)
    {
        const auto found = texts.find({label, system});
        return found == texts.end() ? std::string() : found->second;
    }

    std::vector<std::string> m_lines;
    Texts m_results;
    Texts m_formulas;
};

} // namespace quillon::support
