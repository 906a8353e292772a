#pragma once

#include "ui/widgets/spin_control.h"

namespace quillon::ui {

// Stored positions of every spin control: lowest, highest, start, arrow step, page step.
inline constexpr SpinRange kPowerCoarse{-10, 1499, 1400, 10, 10};
inline constexpr SpinRange kPowerFine{-10, 1499, 0, 10, 10};
inline constexpr SpinRange kFrequency{0, 13, 8, 1, 1};
inline constexpr SpinRange kVSWRWhole{6, 8, 8, 1, 1};
inline constexpr SpinRange kVSWRTenths{1, 10, 9, 1, 1};
inline constexpr SpinRange kCoaxLength{1, 3500, 3400, 1, 10};
inline constexpr SpinRange kConnectors{1, 25, 23, 1, 1};
inline constexpr SpinRange kAntennaGainCoarse{-200, 100, 10, 10, 1};
inline constexpr SpinRange kAntennaGainFine{-200, 100, 10, 1, 1};
inline constexpr SpinRange kCoaxLoss{1, 1000, 999, 1, 1};

} // namespace quillon::ui
