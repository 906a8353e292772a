#pragma once

#include "engine/results_display.h"

#include <array>
#include <string_view>

namespace quillon::ui {

/// One row of the results panel, from top to bottom.
struct ResultRow
{
    engine::ResultLabel label;
    const char* caption;
    const char* captionName;
    const char* valueName;  ///< control array of the value labels
    int firstIndex;         ///< System One's place in that array; System Two's is the next
    int marker;             ///< place of the row's markers
    const char* unit;       ///< painted where the caption names none
    const char* spokenUnit; ///< told to screen readers
    std::string_view mask;  ///< shows 0 at start; empty for the plain form
    bool ruled;             ///< a separator line stands above
};

inline constexpr std::array<ResultRow, engine::kResultLabelCount> kResultRows{{
    {engine::ResultLabel::VSWRPowerLoss, "SWR Power Attenuation", "lbVSWRReturnLoss(0)", "lblVSWRReturnLoss", 3, 6, "W",
     "W", "####0.00", false},
    {engine::ResultLabel::VSWRAttenuation, "SWR Attenuation in dB", "lbVSWRReturnLoss(1)", "lblVSWRReturnLoss", 1, 5,
     "", "dB", "0.0000", false},
    {engine::ResultLabel::CoaxDBLoss, "Coax Loss in dB", "lblCoaxLoss", "lblCoaxDBLoss", 1, 7, "", "dB", "##0.00",
     true},
    {engine::ResultLabel::CoaxPowerLoss, "Coax Power Loss", "lblCoaxPowerLoss(0)", "lblCoaxPowerLoss", 1, 8, "W", "W",
     "####0.00", false},
    {engine::ResultLabel::AntennaGain, "Antenna Gain in dBd", "lblAntennaGain(0)", "lblAntennaGain", 1, 4, "", "dBd",
     "#0.00", true},
    {engine::ResultLabel::AntennaPowerGain, "Antenna Power Gain", "lblAntennaWGain(0)", "lblAntennaWGain", 1, 1, "W",
     "W", "####0.00", false},
    {engine::ResultLabel::SystemGain, "Antenna System Gain in dB", "lblSystemGain(0)", "lblSystemGain", 1, 3, "", "dB",
     "", true},
    {engine::ResultLabel::FeedPointPower, "Antenna Feedpoint Power", "lblFeedPointPower(0)", "lblFeedPointPower", 1, 2,
     "W", "W", "####0.00", false},
    {engine::ResultLabel::ERP, "Antenna System ERP", "lblERP(0)", "lblERP", 1, 0, "W", "W", "#####0.00", true},
}};

} // namespace quillon::ui
