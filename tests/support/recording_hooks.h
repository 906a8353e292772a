#pragma once

#include "engine/results_display.h"

#include <string>

namespace quillon::support {

/// Keeps the order of what a computation asks for: "B" for each beep, "." for each time pending events may run.
class RecordingHooks : public engine::EngineHooks
{
public:
    void Beep() override { m_record.push_back('B'); }

    void LetPendingEventsRun() override { m_record.push_back('.'); }

    [[nodiscard]] const std::string& Record() const noexcept { return m_record; }

    void Clear() { m_record.clear(); }

private:
    std::string m_record;
};

} // namespace quillon::support
