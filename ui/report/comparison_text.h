#pragma once

#include "engine/fixed_text.h"
#include "engine/records.h"

namespace quillon::ui {

inline constexpr std::size_t kComparisonWidth = 25;

/// One value of a system as the text that the comparison works on.
using ComparisonField = engine::FixedText<kComparisonWidth>;

/// What a field holds before it is first filled: NUL characters. It holds no blank, so the rules take it as 0.
[[nodiscard]] ComparisonField NeverAssigned();

/// The texts of one system that are compared. Numbers stand with a decimal point whatever the locale.
struct ComparisonTexts
{
    ComparisonField AntennaBrand = NeverAssigned();
    ComparisonField AntennaModel = NeverAssigned();
    ComparisonField CoaxBrand = NeverAssigned();
    ComparisonField CoaxModel = NeverAssigned();
    ComparisonField ERP = NeverAssigned();
    ComparisonField AntennaPowerGain = NeverAssigned();
    ComparisonField AntennaGain = NeverAssigned();
    ComparisonField FeedPointPower = NeverAssigned();
    ComparisonField CoaxLength = NeverAssigned();
    ComparisonField CoaxDBLoss = NeverAssigned();
    ComparisonField CoaxPowerLoss = NeverAssigned();
    ComparisonField Frequency = NeverAssigned();
    ComparisonField XmitPower = NeverAssigned();
    ComparisonField VSWR = NeverAssigned();
    ComparisonField VSWRPowerLoss = NeverAssigned();
    ComparisonField VSWRAttenuation = NeverAssigned();

    [[nodiscard]] bool operator==(const ComparisonTexts&) const = default;
};

/// Both systems' texts. They outlive one comparison: a system without antenna or coax keeps what it held before.
struct ComparisonRecords
{
    ComparisonTexts SystemOneText;
    ComparisonTexts SystemTwoText;
};

/// @return whether a system has both its antenna and its coax. Only then are its texts filled.
[[nodiscard]] bool IsComplete(const engine::SystemData& data) noexcept;

/// Fills the texts of each system that is complete and leaves the other's as they are.
/// @throws engine::ArithmeticError when a value is not finite.
void FillComparisonTexts(const engine::AntennaSystems& systems, ComparisonRecords& records);

} // namespace quillon::ui
