#pragma once

#include <string_view>

namespace quillon::engine {

/// @return whether two texts are equal when the case of the letters A to Z does not count.
[[nodiscard]] bool EqualIgnoringCase(std::string_view left, std::string_view right) noexcept;

} // namespace quillon::engine
