#pragma once

#include "engine/results_display.h"

namespace quillon::ui {

/// The desktop's beep, and pending events without user input: no keystroke can change a record during a computation.
class DesktopHooks : public engine::EngineHooks
{
public:
    void Beep() override;
    void LetPendingEventsRun() override;
};

} // namespace quillon::ui
