#pragma once

#include "store/name_fault.h"

#include <cstddef>
#include <string_view>

namespace quillon::store {

/// Longest text that a data file gives back, in characters.
inline constexpr std::size_t kLongestEntry = 254;

/// Whether a text holds a character below the blank, or the delete character.
[[nodiscard]] bool HasControlCharacter(std::string_view text) noexcept;

/// What keeps a typed name from being a model's or a saved system's, which stand in data files both as section names
/// and as values: the first of Empty, ControlCharacter, NotInCodePage, NotReadBack and TooLong that applies.
/// @param name  UTF-8.
[[nodiscard]] NameFault EntryNameFault(std::string_view name);

} // namespace quillon::store
