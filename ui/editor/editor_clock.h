#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace quillon::ui {

/// Milliseconds of a clock that never goes back; starts again at 0 after about 49.7 days.
[[nodiscard]] std::uint32_t TickCount();

/// Today in the desktop's time zone.
[[nodiscard]] std::chrono::year_month_day Today();

/// Where the antenna editor takes the time from.
struct EditorClock
{
    std::function<std::uint32_t()> ticks = TickCount;
    std::function<std::chrono::year_month_day()> today = Today;
};

} // namespace quillon::ui
