#include "engine/calculations.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"

#include <string_view>
#include <utility>
#include <vector>

namespace quillon::engine {

/// What one operation has worked out so far; nothing of it is seen outside before it is committed.
class Calculations::Draft
{
public:
    Draft(const AntennaSystems& systems, int number)
        : system(ToSystemId(number))
        , data(systems.Data[system])
        , results(systems.Results[system])
        , isComputed(systems.State[system].Flag(kComputeFlag) != kFalse)
    {
    }

    void ShowResult(ResultLabel label, std::string text) { m_texts.push_back({label, false, std::move(text)}); }

    void ShowFormula(ResultLabel label, std::string text) { m_texts.push_back({label, true, std::move(text)}); }

    void CompareSystems() noexcept { m_comparesSystems = true; }

    /// Stores the results and shows the texts, in the order in which they came.
    void Commit(AntennaSystems& systems, ResultsDisplay& display) const
    {
        systems.Results[system] = results;
        for (const ShownText& shown : m_texts) {
            if (shown.isFormula) {
                display.ShowFormula(shown.label, system, shown.text);
            } else {
                display.ShowResult(shown.label, system, shown.text);
            }
        }
        if (m_comparesSystems) {
            display.CompareSystems();
        }
    }

    const SystemId system;
    const SystemData& data;
    SystemResults results;
    const bool isComputed;

private:
    struct ShownText
    {
        ResultLabel label;
        bool isFormula;
        std::string text;
    };

    std::vector<ShownText> m_texts;
    bool m_comparesSystems = false;
};

Calculations::Calculations(AntennaSystems& systems, ResultsDisplay& display, EngineHooks& hooks, std::string separator)
    : m_systems(systems)
    , m_display(display)
    , m_hooks(hooks)
    , m_separator(std::move(separator))
{
}

void Calculations::BuildDBTable()
{
    m_dBTable = engine::BuildDBTable();
}

void Calculations::BuildVSWRTable()
{
    m_vswrTable = engine::BuildVSWRTable();
}

float Calculations::PowerFromDB(int kind, int system)
{
    Draft draft(m_systems, system);
    const float power = PowerFromDB(ToPowerKind(kind), draft);
    draft.Commit(m_systems, m_display);
    return power;
}

float Calculations::ApplyVSWR(float power, int system)
{
    Draft draft(m_systems, system);
    const float accepted = ApplyVSWR(power, draft);
    draft.Commit(m_systems, m_display);
    return accepted;
}

void Calculations::ComputeCoaxDBLoss(int system)
{
    Draft draft(m_systems, system);
    ComputeCoaxDBLoss(draft);
    draft.Commit(m_systems, m_display);
}

void Calculations::ShowSystemResults(int system)
{
    Draft draft(m_systems, system);
    ShowSystemResults(draft);
    draft.Commit(m_systems, m_display);
}

void Calculations::RefreshData(int system)
{
    Draft draft(m_systems, system);
    ComputeCoaxDBLoss(draft);
    ShowSystemResults(draft);
    draft.Commit(m_systems, m_display);
}

float Calculations::PowerFromDB(PowerKind kind, Draft& draft)
{
    // As given: only System One is heard, before the search for all kinds but the ERP, and again after the formula of
    // the antenna power gain and of the ERP.
    const bool isHeard = draft.system == SystemId::One;
    const PowerSource source = SourceOf(kind, draft.data, draft.results);
    if (isHeard && kind != PowerKind::ERP) {
        m_hooks.Beep();
    }
    const auto row = FindDBRow(m_dBTable, source.dB, [this] { m_hooks.LetPendingEventsRun(); });
    if (!row) {
        return 0;
    }
    const float coefficient = source.usesLossCoefficient ? row->lossCoefficient : row->gainCoefficient;
    const PowerResult result = PowerFromCoefficient(kind, coefficient, source.power, m_separator);
    draft.ShowFormula(FormulaLabel(kind), result.formula);
    if (isHeard && (kind == PowerKind::AntennaPowerGain || kind == PowerKind::ERP)) {
        m_hooks.Beep();
    }
    return result.power;
}

float Calculations::ApplyVSWR(float power, Draft& draft) const
{
    const auto row = FindVSWRRow(m_vswrTable, draft.data.VSWR);
    if (!row) {
        return 0;
    }
    const float accepted = Checked(row->factor * power);
    draft.results.VSWRAttenuation = row->lossDB;
    draft.results.VSWRPowerLoss = RoundWithMask(power - accepted, "0.0000");
    return accepted;
}

void Calculations::ComputeCoaxDBLoss(Draft& draft) const
{
    draft.results.CoaxDBLoss = Checked(draft.data.CoaxLength / 100 * draft.data.CoaxLoss);
    draft.ShowResult(ResultLabel::CoaxDBLoss, Masked(draft.results.CoaxDBLoss, "##0.00"));
}

void Calculations::ShowSystemResults(Draft& draft)
{
    if (!draft.isComputed) {
        return;
    }
    ShowAntennaGain(draft);
    ShowSystemGain(draft);
    ShowPowers(draft);
    draft.CompareSystems();
}

void Calculations::ShowAntennaGain(Draft& draft) const
{
    const std::string& gainType = draft.data.GainType;
    draft.ShowResult(ResultLabel::AntennaGain, Masked(draft.data.AntennaGain, "#0.00"));
    // As given: the text says 2.14 where the catalogue gains lose 2.15.
    if (gainType == "dBi") {
        draft.ShowFormula(ResultLabel::AntennaGain, "Antenna Gain Figure is in dBi so 2.14 dB subtracted");
    } else if (gainType == "dBd") {
        draft.ShowFormula(ResultLabel::AntennaGain, "Antenna Gain Figure is in dBd so 0 dB subtracted");
    }
}

void Calculations::ShowSystemGain(Draft& draft) const
{
    SystemResults& results = draft.results;
    const float losses = results.CoaxDBLoss + results.ConnectorLoss;
    results.SystemGain = RoundWithMask(losses * -1 + results.AntennaGainDBd, "##0.00");
    const std::string gain = Plain(results.SystemGain);
    draft.ShowResult(ResultLabel::SystemGain, gain);
    draft.ShowFormula(ResultLabel::SystemGain, Plain(results.AntennaGainDBd) + " + ((" + Plain(results.CoaxDBLoss) +
                                                   " + " + Plain(results.ConnectorLoss) + ") * -1) = " + gain);
}

void Calculations::ShowPowers(Draft& draft)
{
    SystemResults& results = draft.results;
    results.CoaxPowerLoss = PowerFromDB(PowerKind::CoaxPowerLoss, draft);
    draft.ShowResult(ResultLabel::CoaxPowerLoss, Masked(results.CoaxPowerLoss, "####0.00"));

    const float leavingCoax = Checked(draft.data.XmitPower - results.CoaxPowerLoss);
    results.FeedPointPower = ApplyVSWR(leavingCoax, draft);
    draft.ShowResult(ResultLabel::FeedPointPower, Masked(results.FeedPointPower, "####0.00"));
    draft.ShowResult(ResultLabel::VSWRAttenuation, Masked(results.VSWRAttenuation, "0.0000"));
    draft.ShowResult(ResultLabel::VSWRPowerLoss, Masked(results.VSWRPowerLoss, "####0.00"));

    results.AntennaPowerGain = PowerFromDB(PowerKind::AntennaPowerGain, draft);
    draft.ShowResult(ResultLabel::AntennaPowerGain, Masked(results.AntennaPowerGain, "####0.00"));

    if (draft.data.UseAntennaList != kFalse) {
        results.ERP = RoundWithMask(PowerFromDB(PowerKind::ERP, draft), "#####0.00");
        draft.ShowResult(ResultLabel::ERP, Masked(results.ERP, "#####0.00"));
    }
}

std::string Calculations::Masked(float value, std::string_view mask) const
{
    return FormatWithMask(value, mask, m_separator);
}

std::string Calculations::Plain(float value) const
{
    return PlainText(value, m_separator);
}

} // namespace quillon::engine
