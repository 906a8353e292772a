#pragma once

#include "ui/platform/main_window_port.h"

#include <string>
#include <vector>

namespace quillon::support {

/// Stands for the main window: holds the records and keeps what is asked of it, "ShowRecord 1" and the like.
class RecordingMainWindow : public ui::MainWindowPort
{
public:
    [[nodiscard]] engine::AntennaSystems& Systems() override { return m_systems; }

    void RefreshData(int system) override { m_calls.push_back("RefreshData " + std::to_string(system)); }

    void ShowRecord(int system) override { m_calls.push_back("ShowRecord " + std::to_string(system)); }

    void SetSavedFlags() override { m_calls.emplace_back("SetSavedFlags"); }

    void LoadAntennaMakers() override { m_calls.emplace_back("LoadAntennaMakers"); }

    void ReloadAntennas(const std::string& maker) override { m_calls.push_back("ReloadAntennas " + maker); }

    [[nodiscard]] const std::vector<std::string>& Calls() const noexcept { return m_calls; }

private:
    engine::AntennaSystems m_systems;
    std::vector<std::string> m_calls;
};

} // namespace quillon::support
