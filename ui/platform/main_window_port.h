#pragma once

#include "engine/records.h"

namespace quillon::ui {

/// What the dialogs ask of the main window. Systems are numbered 1 and 2; any other number throws std::out_of_range.
class MainWindowPort
{
public:
    virtual ~MainWindowPort() = default;

    /// Both systems' records.
    [[nodiscard]] virtual engine::AntennaSystems& Systems() = 0;
    /// Computes a system anew and shows it.
    virtual void RefreshData(int system) = 0;
    /// Puts a system's record into the window: its figures into the boxes, its names into the lists by choosing them.
    virtual void ShowRecord(int system) = 0;
    /// Notes that both systems stand in the saved-systems file as they are.
    virtual void SetSavedFlags() = 0;
};

} // namespace quillon::ui
