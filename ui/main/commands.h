#pragma once

#include <array>
#include <cstdint>

namespace quillon::ui {

/// What the main window asks of the program around it.
enum class Command : std::uint8_t {
    SaveSystem,
    LoadSystem,
    PrintReport, ///< with the report built anew
    PrintSystem, ///< with the report as it was built last, as given
};

struct CommandButton
{
    const char* name;
    const char* caption;
    const char* toolTip;
    Command command;
};

/// The buttons below the frames, from left to right. The first two carry the tool tip of the dB table, as given.
inline constexpr std::array kCommandButtons{
    CommandButton{"cmdSaveSystem", "Sa&ve System", "Show gain / loss calculation factor table", Command::SaveSystem},
    CommandButton{"cmdLoadSystem", "L&oad System", "Show gain / loss calculation factor table", Command::LoadSystem},
    CommandButton{"cmdPrint", "&Print Report", "Print System Comparison Report", Command::PrintReport},
};

struct MenuEntry
{
    const char* name;
    const char* caption;
    const char* shortcut;
    Command command;
};

/// The entries of the program menu, from top to bottom.
inline constexpr std::array kProgramMenu{
    MenuEntry{"mnuLoadSystem", "&Load System", "Ctrl+O", Command::LoadSystem},
    MenuEntry{"mnuSaveSystem", "&Save System", "Ctrl+S", Command::SaveSystem},
    MenuEntry{"mnuPrint", "&Print System", "Ctrl+P", Command::PrintSystem},
};

} // namespace quillon::ui
