#include "ui/report/comparison_text.h"

#include "engine/mask.h"
#include "engine/number_text.h"

#include <array>
#include <string>
#include <string_view>

namespace quillon::ui {

namespace {

using engine::SystemData;
using engine::SystemId;
using engine::SystemResults;

/// Stands in place of a mask: the shortest text of the number.
constexpr std::string_view kPlain;

template <class Record>
struct NumberField
{
    ComparisonField ComparisonTexts::*field;
    float Record::*value;
    std::string_view mask;
};

constexpr std::array<NumberField<SystemData>, 5> kInputFields{{
    {&ComparisonTexts::AntennaGain, &SystemData::AntennaGain, "#0.0"},
    {&ComparisonTexts::CoaxLength, &SystemData::CoaxLength, kPlain},
    {&ComparisonTexts::Frequency, &SystemData::Frequency, "##0.00"},
    // As given: three digits at least, so that 5 W becomes "005.00".
    {&ComparisonTexts::XmitPower, &SystemData::XmitPower, "##000.00"},
    {&ComparisonTexts::VSWR, &SystemData::VSWR, "0.0"},
}};

constexpr std::array<NumberField<SystemResults>, 7> kResultFields{{
    {&ComparisonTexts::ERP, &SystemResults::ERP, "#####0.00"},
    {&ComparisonTexts::AntennaPowerGain, &SystemResults::AntennaPowerGain, "#####0.00"},
    {&ComparisonTexts::FeedPointPower, &SystemResults::FeedPointPower, "####0.00"},
    {&ComparisonTexts::CoaxDBLoss, &SystemResults::CoaxDBLoss, "#0.00"},
    {&ComparisonTexts::CoaxPowerLoss, &SystemResults::CoaxPowerLoss, "###0.00"},
    {&ComparisonTexts::VSWRPowerLoss, &SystemResults::VSWRPowerLoss, "###0.00"},
    {&ComparisonTexts::VSWRAttenuation, &SystemResults::VSWRAttenuation, "#0.0000"},
}};

template <class Fields, class Record>
void FillNumbers(const Fields& fields, const Record& record, ComparisonTexts& texts)
{
    for (const auto& [field, value, mask] : fields) {
        const float number = record.*value;
        const std::string text = mask.empty() ? engine::ShortestText(number) : engine::FormatWithMask(number, mask);
        texts.*field = text;
    }
}

void FillSystem(const SystemData& data, const SystemResults& results, ComparisonTexts& texts)
{
    if (!IsComplete(data)) {
        return;
    }
    texts.AntennaBrand = data.AntennaBrand.Padded();
    texts.AntennaModel = data.AntennaModel.Padded();
    texts.CoaxBrand = data.CoaxBrand.Padded();
    texts.CoaxModel = data.CoaxModel.Padded();
    FillNumbers(kInputFields, data, texts);
    FillNumbers(kResultFields, results, texts);
}

} // namespace

ComparisonField NeverAssigned()
{
    ComparisonField field;
    field = std::string(kComparisonWidth, '\0');
    return field;
}

bool IsComplete(const SystemData& data) noexcept
{
    return data.UseAntennaList != engine::kFalse && data.UseCoaxList != engine::kFalse;
}

void FillComparisonTexts(const engine::AntennaSystems& systems, ComparisonRecords& records)
{
    FillSystem(systems.Data[SystemId::One], systems.Results[SystemId::One], records.SystemOneText);
    FillSystem(systems.Data[SystemId::Two], systems.Results[SystemId::Two], records.SystemTwoText);
}

} // namespace quillon::ui
