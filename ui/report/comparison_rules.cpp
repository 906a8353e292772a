#include "ui/report/comparison_rules.h"

#include "engine/arithmetic_error.h"
#include "engine/mask.h"
#include "engine/number_text.h"
#include "store/code_page.h"
#include "ui/report/coax_loss_text.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace quillon::ui {

namespace {

using engine::SystemId;
using Kind = ComparisonKind;
using Texts = ComparisonTexts;

constexpr std::string_view kCalcError = "Calc Error";
constexpr std::string_view kNoMask;
constexpr std::string_view kNoSuffix;

// clang-format off
constexpr std::array<ComparisonRow, 17> kRows{{
    {2, Kind::Text, &Texts::AntennaBrand, kNoMask,
     "Antenna Brands Are Equal", "Antenna Brands Are Dissimilar", "Antenna Brands Are Dissimilar", kNoSuffix},
    {3, Kind::Text, &Texts::AntennaModel, kNoMask,
     "Antenna Models Are Equal", "Antenna Models Are Dissimilar", "Antenna Models Are Dissimilar", kNoSuffix},
    {5, Kind::Text, &Texts::CoaxBrand, kNoMask,
     "Coax Brands are equal", "Coax Brands Are Dissimilar", "Coax Brands Are Dissimilar", kNoSuffix},
    {6, Kind::Text, &Texts::CoaxModel, kNoMask,
     "Coax Types are equal", "Coax Types Are Dissimilar", "Coax Types Are Dissimilar", kNoSuffix},
    {8, Kind::Positive, &Texts::ERP, "######0.00",
     "System ERP's Are Equal", "System 1 ERP is + ", "System 2 ERP is + ", " Watts"},
    {9, Kind::Positive, &Texts::AntennaPowerGain, "######0.00",
     "Antenna Power Gains Are Equal", "Ant 1 Power Gain is + ", "Ant 2 Power Gain is + ", " Watts"},
    {10, Kind::Positive, &Texts::AntennaGain, "######0.00",
     "Antenna dB Gains Are Equal", "Antenna 1 Gain is + ", "Antenna 2 Gain is + ", " dB"},
    {11, Kind::Positive, &Texts::FeedPointPower, "######0.00",
     "Antenna Feedpoint Power's Are Equal", "Ant 1 Feedpoint Power is + ", "Ant 2 Feedpoint Power is + ", " Watts"},
    // As given: "Ft." has its point in the sentence of equal losses only.
    {13, Kind::CoaxLoss, nullptr, "#0.00",
     "Coax Loss / 100 Ft. is equal", "System 1 Coax Loss / 100 Ft is ", "System 2 Coax Loss / 100 Ft is ", " Greater"},
    {14, Kind::CoaxLength, &Texts::CoaxLength, "######0",
     "Coax Cable Lengths Are Equal", "System 1 Coax is ", "System 2 Coax is ", " Feet Longer"},
    {15, Kind::Positive, &Texts::CoaxDBLoss, "######0.00",
     "Coax dB Losses Are Equal", "Coax 1 dB Loss is ", "Coax 2 dB Loss is ", " dB Greater"},
    // As given: equal power losses say what equal dB losses say.
    {16, Kind::Positive, &Texts::CoaxPowerLoss, "######0.00",
     "Coax dB Losses Are Equal", "Coax 1 Power Loss is ", "Coax 2 Power Loss is ", " Watts Greater"},
    {18, Kind::Text, &Texts::Frequency, kNoMask,
     "Transmit Frequencies Are Equal", "Transmit Frequencies Are Dissimilar", "Transmit Frequencies Are Dissimilar", kNoSuffix},
    {19, Kind::TextThenNumber, &Texts::XmitPower, "0.00",
     "Power Values Are Equal", "System One Power is ", "System Two Power is ", " W. Higher"},
    // As given: these three look at System One's field in both tests for emptiness.
    {20, Kind::TextThenNumber, &Texts::VSWR, "0.00",
     "VSWR Values Are Equal", "System One VSWR is ", "System Two VSWR is ", " Higher", SystemId::One},
    {21, Kind::TextThenNumber, &Texts::VSWRPowerLoss, "0.00",
     "VSWR Watt Attenuation Values Are Equal", "Sys 1 VSWR Attenuation is + ", "Sys 2 VSWR Attenuation is + ", " Watts", SystemId::One},
    {22, Kind::TextThenNumber, &Texts::VSWRAttenuation, "0.00",
     "VSWR dB Attenuation Values Are Equal", "Sys 1 VSWR Attenuation is + ", "Sys 2 VSWR Attenuation is + ", " dB", SystemId::One},
}};

// clang-format on

const ComparisonField& FieldOf(const ComparisonRow& row, const ComparisonInput& input, SystemId system)
{
    const ComparisonTexts& texts = system == SystemId::One ? input.records.SystemOneText : input.records.SystemTwoText;
    return texts.*row.field;
}

float ParseNumber(std::string_view text)
{
    const std::string_view number = text.substr(0, text.find_last_not_of(' ') + 1);
    float value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec != std::errc() || read.ptr != number.data() + number.size() || !std::isfinite(value)) {
        throw ComparisonTypeError("a compared text is no number");
    }
    return value;
}

/// As given: a text that fills its field to the last character counts as 0, as does a field never filled.
float ParseIfBlank(const ComparisonField& field)
{
    return field.Padded().find(' ') == std::string_view::npos ? 0 : ParseNumber(field.Padded());
}

/// The sentence of the greater number; that of equal numbers is the given one.
std::string Ahead(const ComparisonRow& row, float one, float two, std::string_view equal, std::string_view separator)
{
    if (one == two) {
        return std::string(equal);
    }
    const float difference = one > two ? one - two : two - one;
    std::string sentence(one > two ? row.one : row.two);
    sentence += engine::FormatWithMask(difference, row.mask, separator);
    sentence += row.suffix;
    return sentence;
}

std::string CompareTexts(const ComparisonRow& row, const ComparisonField& one, const ComparisonField& two)
{
    return std::string(store::EqualTexts(one.Padded(), two.Padded()) ? row.equal : row.one);
}

std::string ComparePositive(const ComparisonRow& row, const ComparisonField& oneField, const ComparisonField& twoField,
                            std::string_view separator)
{
    const float one = ParseIfBlank(oneField);
    const float two = ParseIfBlank(twoField);
    if (!(one > 0) || !(two > 0)) {
        return std::string(kCalcError);
    }
    return Ahead(row, one, two, row.equal, separator);
}

std::string CompareCoaxLoss(const ComparisonRow& row, const ComparisonInput& input, std::string_view separator)
{
    const auto parsed = [](const std::string& text) { return text.empty() ? 0 : ParseNumber(text); };
    return Ahead(row, parsed(input.coaxLoss[0]), parsed(input.coaxLoss[1]), row.equal, separator);
}

std::string CompareCoaxLength(const ComparisonRow& row, const ComparisonField& oneField,
                              const ComparisonField& twoField, std::string_view separator)
{
    const std::int16_t one = engine::ToInteger(ParseIfBlank(oneField));
    const std::int16_t two = engine::ToInteger(ParseIfBlank(twoField));
    if (one < 1 || two < 1) {
        return std::string(kCalcError);
    }
    return Ahead(row, one, two, row.equal, separator);
}

std::string CompareTextThenNumber(const ComparisonRow& row, const ComparisonInput& input, std::string_view separator)
{
    const ComparisonField& one = FieldOf(row, input, SystemId::One);
    const ComparisonField& two = FieldOf(row, input, SystemId::Two);
    if (store::EqualTexts(one.Padded(), two.Padded())) {
        return std::string(row.equal);
    }
    // As given: a field is never the empty text, so neither test ever fires.
    if (one.Padded().empty() || FieldOf(row, input, row.secondTested).Padded().empty()) {
        return std::string(kCalcError);
    }
    // As given: texts that differ and mean the same number have no sentence.
    return Ahead(row, ParseNumber(one.Padded()), ParseNumber(two.Padded()), {}, separator);
}

} // namespace

std::span<const ComparisonRow> ComparisonRows() noexcept
{
    return kRows;
}

ComparisonInput InputOf(const engine::AntennaSystems& systems, const ComparisonRecords& records)
{
    return {records, {CoaxLossText(systems, 1), CoaxLossText(systems, 2)}};
}

std::string CompareRow(const ComparisonRow& row, const ComparisonInput& input, std::string_view separator)
{
    if (row.kind == Kind::CoaxLoss) {
        return CompareCoaxLoss(row, input, separator);
    }
    const ComparisonField& one = FieldOf(row, input, SystemId::One);
    const ComparisonField& two = FieldOf(row, input, SystemId::Two);
    switch (row.kind) {
    case Kind::Text:
        return CompareTexts(row, one, two);
    case Kind::Positive:
        return ComparePositive(row, one, two, separator);
    case Kind::CoaxLength:
        return CompareCoaxLength(row, one, two, separator);
    default:
        return CompareTextThenNumber(row, input, separator);
    }
}

} // namespace quillon::ui
