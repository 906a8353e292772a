// Computes and compares two systems of any figures at all: results and sentences must turn round with the systems.

#include "engine/arithmetic_error.h"
#include "engine/calculations.h"
#include "engine/coax_model.h"
#include "engine/computable.h"
#include "engine/markers.h"
#include "fuzz/expect.h"
#include "fuzz/input.h"
#include "ui/report/comparison_rules.h"

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace quillon::fuzz {
namespace {

using engine::SystemId;

class NoHooks : public engine::EngineHooks
{
public:
    void Beep() override {}

    void LetPendingEventsRun() override { Expect(++m_steps < 1000, "a search ends"); }

private:
    int m_steps = 0;
};

/// Keeps the texts of each system, and checks that each can be shown.
class Display : public engine::ResultsDisplay
{
public:
    void ShowResult(engine::ResultLabel /*label*/, SystemId system, std::string_view text) override
    {
        Expect(text.find_first_not_of("0123456789.-") == std::string_view::npos, "a result is digits");
        Expect(text.substr(0, 2) != "-0" || text.find_first_of("123456789") != std::string_view::npos,
               "zero has no sign");
        texts[system].emplace_back(text);
    }

    void ShowFormula(engine::ResultLabel /*label*/, SystemId system, std::string_view text) override
    {
        Expect(text.find("nan") == std::string_view::npos && text.find("inf") == std::string_view::npos,
               "a formula has numbers");
        texts[system].emplace_back(text);
    }

    void CompareSystems() override { ++comparisons; }

    engine::PerSystem<std::vector<std::string>> texts;
    int comparisons = 0;
};

void Fill(Input& input, engine::AntennaSystems& systems, SystemId system)
{
    engine::SystemData& data = systems.Data[system];
    const unsigned flags = input.Byte();
    data.UseAntennaList = (flags & 1U) != 0 ? engine::kTrue : engine::kFalse;
    data.UseCoaxList = (flags & 2U) != 0 ? engine::kTrue : engine::kFalse;
    data.GainType = (flags & 4U) != 0 ? "dBi" : (flags & 8U) != 0 ? "dBd" : "";
    systems.State[system].SetFlag(engine::kComputeFlag, (flags & 16U) != 0 ? engine::kFalse : engine::kTrue);
    data.CoaxBrand = (flags & 32U) != 0 ? engine::kKFactorMaker : std::string_view("BELDEN");
    for (float* figure : {&data.AntennaGain, &data.CoaxLoss, &data.CoaxLength, &data.Frequency, &data.XmitPower,
                          &data.VSWR, &data.ConnectorLoss}) {
        *figure = input.Float();
    }
    systems.Results[system].AntennaGainDBd = (flags & 64U) != 0 ? input.Float() : data.AntennaGain;
    systems.Results[system].ConnectorLoss = data.ConnectorLoss;
    data.AntennaModel = input.Record();
}

/// What one system comes to, as it is or in the other's place.
bool Refresh(engine::AntennaSystems& systems, SystemId system, Display& display)
{
    NoHooks hooks;
    engine::Calculations calculations(systems, display, hooks);
    calculations.BuildDBTable();
    calculations.BuildVSWRTable();
    const engine::SystemResults before = systems.Results[system];
    const std::size_t shown = display.texts[system].size();
    try {
        calculations.RefreshData(engine::Number(system));
        return true;
    } catch (const engine::ArithmeticError&) {
        const auto isSame = [](float left, float right) { return left == right || (left != left && right != right); };
        Expect(isSame(systems.Results[system].ERP, before.ERP) && display.texts[system].size() == shown,
               "a failed computation leaves everything as it was");
        return false;
    }
}

engine::AntennaSystems Swapped(const engine::AntennaSystems& systems)
{
    engine::AntennaSystems swapped = systems;
    std::swap(swapped.Data[SystemId::One], swapped.Data[SystemId::Two]);
    std::swap(swapped.Results[SystemId::One], swapped.Results[SystemId::Two]);
    std::swap(swapped.State[SystemId::One], swapped.State[SystemId::Two]);
    return swapped;
}

void CheckMarkers(const engine::AntennaSystems& systems)
{
    engine::Markers markers{};
    engine::Markers other{};
    try {
        engine::UpdateMarkers(systems.Results, markers);
        engine::UpdateMarkers(Swapped(systems).Results, other);
    } catch (const engine::ArithmeticError&) {
        return;
    }
    for (std::size_t row = 0; row < markers.size(); ++row) {
        Expect(markers.at(row)[SystemId::One] == other.at(row)[SystemId::Two] &&
                   markers.at(row)[SystemId::Two] == other.at(row)[SystemId::One],
               "markers turn round with the systems");
    }
    engine::Markers again = markers;
    engine::UpdateMarkers(systems.Results, again);
    Expect(again == markers, "comparing again changes nothing");
}

std::optional<std::string> Sentence(const ui::ComparisonRow& row, const ui::ComparisonInput& input)
{
    try {
        return CompareRow(row, input);
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

/// The sentence of exchanged systems: "one is ahead by so much" becomes "two is ahead by so much".
std::string TurnedRound(const ui::ComparisonRow& row, const std::string& sentence)
{
    const bool isText = row.kind == ui::ComparisonKind::Text;
    if (isText || sentence == row.equal || sentence.empty() || sentence == "Calc Error") {
        return sentence;
    }
    const bool isOne = sentence.starts_with(row.one);
    const std::string_view from = isOne ? row.one : row.two;
    Expect(sentence.starts_with(from) && sentence.ends_with(row.suffix), "a sentence is one of its row's");
    return std::string(isOne ? row.two : row.one) + sentence.substr(from.size());
}

void CheckSentences(const engine::AntennaSystems& systems)
{
    ui::ComparisonRecords records;
    try {
        FillComparisonTexts(systems, records);
        const ui::ComparisonInput input = InputOf(systems, records);
        const ui::ComparisonRecords swapped{records.SystemTwoText, records.SystemOneText};
        const ui::ComparisonInput turned = InputOf(Swapped(systems), swapped);
        for (const ui::ComparisonRow& row : ui::ComparisonRows()) {
            const std::optional<std::string> sentence = Sentence(row, input);
            const std::optional<std::string> other = Sentence(row, turned);
            Expect(sentence.has_value() == other.has_value(), "both ways round can be compared or none");
            Expect(!sentence || *other == TurnedRound(row, *sentence), "sentences turn round with the systems");
        }
    } catch (const engine::ArithmeticError&) {
        return;
    }
}

void FillResults(Input& input, engine::SystemResults& results)
{
    for (float* figure : {&results.ERP, &results.AntennaPowerGain, &results.FeedPointPower, &results.SystemGain,
                          &results.AntennaGainDBd, &results.VSWRAttenuation, &results.VSWRPowerLoss,
                          &results.CoaxDBLoss, &results.CoaxPowerLoss}) {
        *figure = input.Float();
    }
}

void CheckLosses(const engine::SystemData& data, Input& input)
{
    std::array<float, 9> coaxSpec{};
    for (float& loss : coaxSpec) {
        loss = input.Float();
    }
    try {
        Expect(std::isfinite(engine::CoaxLossOf(data, coaxSpec)), "a cable's loss is finite");
    } catch (const engine::ArithmeticError& error) {
        Expect(error.what() != nullptr, "an error says what is wrong");
    }
    const float connector = engine::ConnectorLossPerConnector(data.Frequency);
    Expect(connector >= 0 && connector < 1, "a connector's loss is small");
}

void CheckComputing(engine::AntennaSystems& systems)
{
    engine::AntennaSystems turned = Swapped(systems);
    Display display;
    Display other;
    const bool isComputed = Refresh(systems, SystemId::One, display);
    Expect(Refresh(turned, SystemId::Two, other) == isComputed, "both systems compute alike");
    Expect(display.texts[SystemId::One] == other.texts[SystemId::Two], "both systems show alike");
    Expect(display.comparisons == other.comparisons, "both systems are compared alike");
}

/// What the check before loading lets through is computed without an overflow.
void CheckComputable(engine::AntennaSystems& systems)
{
    const engine::SystemData& data = systems.Data[SystemId::One];
    if (engine::CanCompute(data)) {
        Display display;
        systems.Results[SystemId::One] = {};
        systems.Results[SystemId::One].AntennaGainDBd = data.AntennaGain;
        Expect(Refresh(systems, SystemId::One, display), "what can be computed is computed");
    }
}

void Run(Input input)
{
    const unsigned part = input.Byte() % 5;
    engine::AntennaSystems systems;
    Fill(input, systems, SystemId::One);
    if (part == 0) {
        return CheckComputing(systems);
    }
    if (part == 1) {
        return CheckComputable(systems);
    }
    if (part == 2) {
        return CheckLosses(systems.Data[SystemId::One], input);
    }
    Fill(input, systems, SystemId::Two);
    FillResults(input, systems.Results[SystemId::One]);
    FillResults(input, systems.Results[SystemId::Two]);
    return part == 3 ? CheckMarkers(systems) : CheckSentences(systems);
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
