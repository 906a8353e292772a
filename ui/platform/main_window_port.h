#pragma once

#include "engine/records.h"

#include <string>

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
    /// Fills the antenna brand lists of both systems anew; what is chosen stays chosen.
    virtual void LoadAntennaMakers() = 0;
    /// Follows a change of a maker's models or gain figures: wherever the maker is chosen, the model and band lists are
    /// filled anew, what is chosen stays chosen and the antenna's gain is the catalogue's of now.
    /// @param maker  bytes as in its file's name
    virtual void ReloadAntennas(const std::string& maker) = 0;
};

} // namespace quillon::ui
