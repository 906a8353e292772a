#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace quillon::ui {

/// What the main window asks of the program around it.
enum class Command : std::uint8_t {
    SaveSystem,
    LoadSystem,
    PrintReport, ///< with the report built anew
    PrintSystem, ///< with the report as it was built last, as given
    EditAntennas,
    ShowDBTable,
    Calculator,
    Close, ///< asks first when there is something to save
    QuillonOnline,
    Tarvel,
    About,
    HelpContents,
};

struct CommandButton
{
    const char* name;
    const char* caption;
    const char* toolTip;
    const char* shortcut; ///< of commands that stand in no menu
    Command command;
};

/// The buttons below the frames, from left to right. The first two carry the tool tip of the dB table, as given.
inline constexpr std::array kCommandButtons{
    CommandButton{"cmdSaveSystem", "Sa&ve System", "Show gain / loss calculation factor table", "",
                  Command::SaveSystem},
    CommandButton{"cmdLoadSystem", "L&oad System", "Show gain / loss calculation factor table", "",
                  Command::LoadSystem},
    CommandButton{"cmdPrint", "&Print Report", "Print System Comparison Report", "Ctrl+R", Command::PrintReport},
    CommandButton{"cmdEditAntennas", "&Edit Antennas", "Edit Antenna Data File", "Ctrl+M", Command::EditAntennas},
    CommandButton{"cmddBTable", "Show &Table", "Show gain / loss calculation factor table", "", Command::ShowDBTable},
    CommandButton{"cmdCalculator", "Calc&ulator", "Launch Windows Calculator", "", Command::Calculator},
    CommandButton{"cmdClose", "&Close", "Close Quillon", "", Command::Close},
};

/// An entry of a menu; one without a caption is a separator.
struct MenuEntry
{
    const char* name;
    const char* caption = nullptr;
    const char* shortcuts = nullptr; ///< parted by "; "
    Command command{};
};

inline constexpr std::array kProgramMenu{
    MenuEntry{"mnudBTable", "&Show db Table", "Ctrl+T", Command::ShowDBTable},
    MenuEntry{"mnuLoadSystem", "&Load System", "Ctrl+O", Command::LoadSystem},
    MenuEntry{"mnuSaveSystem", "&Save System", "Ctrl+S", Command::SaveSystem},
    MenuEntry{"mnuPrint", "&Print System", "Ctrl+P", Command::PrintSystem},
    MenuEntry{"mnuSepFunc"},
    MenuEntry{"mnuCalculator", "&Calculator", "Ctrl+K", Command::Calculator},
    MenuEntry{"mnuExitSep"},
    MenuEntry{"mnuExit", "&Exit", "Ctrl+Q", Command::Close},
};

inline constexpr std::array kLinksMenu{
    MenuEntry{"mnuQuillonOnline", "&Quillon Online", "Ctrl+L", Command::QuillonOnline},
    MenuEntry{"mnuTarvel", "&Tarvel Software", "Ctrl+Shift+L", Command::Tarvel},
};

inline constexpr std::array kHelpMenu{
    MenuEntry{"mnuAbout", "&About", "Ctrl+I", Command::About},
    MenuEntry{"mnuHelpSep"},
    MenuEntry{"mnuHelpContents", "Help &Overview", "F1; Ctrl+H", Command::HelpContents},
};

struct Menu
{
    const char* name;
    const char* caption;
    std::span<const MenuEntry> entries;
};

/// The menus of the main window, from left to right.
inline constexpr std::array kMenus{
    Menu{"mnuProgram", "&Program", kProgramMenu},
    Menu{"mnuLinks", "&Links", kLinksMenu},
    Menu{"mnuHelp", "&Help", kHelpMenu},
};

} // namespace quillon::ui
