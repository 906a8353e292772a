#include "engine/calculations.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"

#include <utility>

namespace quillon::engine {

namespace {

constexpr Mask kGainMask("#0.00");
constexpr Mask kDecibelMask("##0.00");
constexpr Mask kPowerMask("####0.00");
constexpr Mask kERPMask("#####0.00");
constexpr Mask kMismatchMask("0.0000");

void ComputeCoaxDBLoss(Computation& draft)
{
    draft.results.CoaxDBLoss = Checked(draft.data.CoaxLength / 100 * draft.data.CoaxLoss);
    draft.ShowResult(ResultLabel::CoaxDBLoss, draft.results.CoaxDBLoss, kDecibelMask);
}

void ShowAntennaGain(Computation& draft)
{
    const std::string& gainType = draft.data.GainType;
    draft.ShowResult(ResultLabel::AntennaGain, draft.data.AntennaGain, kGainMask);
    // As given: the text says 2.14 where the catalogue gains lose 2.15.
    if (gainType == "dBi") {
        draft.ShowFormula(ResultLabel::AntennaGain, "Antenna Gain Figure is in dBi so 2.14 dB subtracted");
    } else if (gainType == "dBd") {
        draft.ShowFormula(ResultLabel::AntennaGain, "Antenna Gain Figure is in dBd so 0 dB subtracted");
    }
}

void ShowSystemGain(Computation& draft)
{
    SystemResults& results = draft.results;
    const float losses = results.CoaxDBLoss + results.ConnectorLoss;
    results.SystemGain = RoundWithMask(losses * -1 + results.AntennaGainDBd, kDecibelMask);
    draft.ShowSystemGain();
}

} // namespace

Calculations::Calculations(AntennaSystems& systems, ResultsDisplay& display, EngineHooks& hooks, std::string separator)
    : m_systems(systems)
    , m_display(display)
    , m_hooks(hooks)
    , m_text(std::move(separator))
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
    Computation draft(m_systems, system);
    const float power = PowerFromDB(ToPowerKind(kind), draft);
    Commit(draft);
    return power;
}

float Calculations::ApplyVSWR(float power, int system)
{
    Computation draft(m_systems, system);
    const float accepted = ApplyVSWR(power, draft);
    Commit(draft);
    return accepted;
}

void Calculations::ComputeCoaxDBLoss(int system)
{
    Computation draft(m_systems, system);
    engine::ComputeCoaxDBLoss(draft);
    Commit(draft);
}

void Calculations::ShowSystemResults(int system)
{
    Computation draft(m_systems, system);
    ShowSystemResults(draft);
    Commit(draft);
}

void Calculations::RefreshData(int system)
{
    Commit(Compute(system));
}

Computation Calculations::Compute(int system)
{
    Computation draft(m_systems, system);
    engine::ComputeCoaxDBLoss(draft);
    ShowSystemResults(draft);
    return draft;
}

float Calculations::PowerFromDB(PowerKind kind, Computation& draft)
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
    const PowerStep step = PowerFromCoefficient(kind, coefficient, source.power);
    draft.ShowFormula(kind, step);
    if (isHeard && (kind == PowerKind::AntennaPowerGain || kind == PowerKind::ERP)) {
        m_hooks.Beep();
    }
    return step.result;
}

float Calculations::ApplyVSWR(float power, Computation& draft) const
{
    const auto row = FindVSWRRow(m_vswrTable, draft.data.VSWR);
    if (!row) {
        return 0;
    }
    const float accepted = Checked(row->factor * power);
    draft.results.VSWRAttenuation = row->lossDB;
    draft.results.VSWRPowerLoss = RoundWithMask(power - accepted, kMismatchMask);
    return accepted;
}

void Calculations::ShowSystemResults(Computation& draft)
{
    if (!draft.isComputed) {
        return;
    }
    ShowAntennaGain(draft);
    ShowSystemGain(draft);
    ShowPowers(draft);
    draft.CompareSystems();
}

void Calculations::ShowPowers(Computation& draft)
{
    SystemResults& results = draft.results;
    results.CoaxPowerLoss = PowerFromDB(PowerKind::CoaxPowerLoss, draft);
    draft.ShowResult(ResultLabel::CoaxPowerLoss, results.CoaxPowerLoss, kPowerMask);

    const float leavingCoax = Checked(draft.data.XmitPower - results.CoaxPowerLoss);
    results.FeedPointPower = ApplyVSWR(leavingCoax, draft);
    draft.ShowResult(ResultLabel::FeedPointPower, results.FeedPointPower, kPowerMask);
    draft.ShowResult(ResultLabel::VSWRAttenuation, results.VSWRAttenuation, kMismatchMask);
    draft.ShowResult(ResultLabel::VSWRPowerLoss, results.VSWRPowerLoss, kPowerMask);

    results.AntennaPowerGain = PowerFromDB(PowerKind::AntennaPowerGain, draft);
    draft.ShowResult(ResultLabel::AntennaPowerGain, results.AntennaPowerGain, kPowerMask);

    if (draft.data.UseAntennaList != kFalse) {
        results.ERP = RoundWithMask(PowerFromDB(PowerKind::ERP, draft), kERPMask);
        draft.ShowResult(ResultLabel::ERP, results.ERP, kERPMask);
    }
}

void Calculations::Commit(const Computation& draft)
{
    draft.Commit(m_systems, m_display, m_text);
}

} // namespace quillon::engine
