#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace quillon::ui {

/// Topic that the help opens with: what the program is for, and the list of contents. Topics are numbered; the document
/// has an anchor of that name for each.
inline constexpr int kHelpOverview = 15000;

/// Who answers F1 in a window.
enum class HelpByKey {
    Window, ///< the window itself: its menu has the key, or it takes any key for something else
    Topic   ///< nobody, so the key opens the window's topic
};

struct HelpTopic
{
    std::string_view form; ///< object name of the window
    int context;
    HelpByKey byKey;
};

inline constexpr std::array kHelpTopics{
    HelpTopic{"Quillon", 15100, HelpByKey::Window},
    HelpTopic{"SaveSystem", 15200, HelpByKey::Topic},
    HelpTopic{"LoadSystem", 15210, HelpByKey::Topic},
    HelpTopic{"PrintOut", 15300, HelpByKey::Topic},
    HelpTopic{"PrintSystemReport", 15310, HelpByKey::Topic},
    HelpTopic{"EditAntennas", 15400, HelpByKey::Topic},
    HelpTopic{"ShowTable", 15500, HelpByKey::Topic},
    HelpTopic{"Splash", 15600, HelpByKey::Window},
    HelpTopic{"About", 15610, HelpByKey::Topic},
    HelpTopic{"HelpWindow", 15700, HelpByKey::Topic},
};

/// The topic of a window. @param form  its object name. @return nothing for a window that the table does not have.
[[nodiscard]] constexpr std::optional<HelpTopic> FindHelpTopic(std::string_view form)
{
    const auto* const found = std::find_if(kHelpTopics.begin(), kHelpTopics.end(),
                                           [form](const HelpTopic& topic) { return topic.form == form; });
    return found != kHelpTopics.end() ? std::optional(*found) : std::nullopt;
}

} // namespace quillon::ui
