#pragma once

#include <optional>
#include <string>

namespace quillon::test {

/// @return the window that is larger than its screen or reaches off it, if one does.
[[nodiscard]] std::optional<std::string> WindowOffScreen();

/// @return the text on show, or a tool tip, that would be taken for markup, if there is one. The help's own document
/// and what the program marks up itself do not count.
[[nodiscard]] std::optional<std::string> TextAsMarkup();

} // namespace quillon::test
