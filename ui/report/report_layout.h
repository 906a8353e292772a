#pragma once

#include <array>

/// Where the report's labels stand, in twips (1/1440 inch). A label's geometry counts in pixels of 15 twips.
namespace quillon::ui::report_layout {

inline constexpr int kTwipsPerPixel = 15;
inline constexpr int kTwipsPerPoint = 20;

/// Ten inches: the longest sentence has room beside the values, and the form fits Letter paper across.
inline constexpr int kFormWidth = 14400;
/// What stays free below the last line, as above the first.
inline constexpr int kEdge = 240;

inline constexpr int kLineHeight = 240;
inline constexpr int kHeaderTop = 240;
inline constexpr int kHeaderHeight = 480;
inline constexpr int kFirstRowTop = 1200;
inline constexpr int kNotesTop = 6720;
inline constexpr std::array kFooterTops{9240, 9480};

inline constexpr int kCaptionLeft = 2190;
inline constexpr std::array kSystemLefts{4245, 6300};
inline constexpr int kResultLeft = 8355;
/// Keeps a text that fills its column off the next one.
inline constexpr int kColumnGap = 90;

} // namespace quillon::ui::report_layout
