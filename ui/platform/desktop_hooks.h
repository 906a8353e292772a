#pragma once

#include "engine/results_display.h"

namespace quillon::ui {

/// The desktop's beep, and pending events without user input and timers: neither a keystroke nor what it set going can
/// change a record, or begin another computation, during a computation. Repaints wait for its end.
class DesktopHooks : public engine::EngineHooks
{
public:
    void Beep() override;
    void LetPendingEventsRun() override;
};

} // namespace quillon::ui
