#pragma once

#include "store/name_fault.h"

#include <cstddef>
#include <string_view>

namespace quillon::store {

/// Longest name of an antenna maker, in characters.
inline constexpr std::size_t kLongestMakerName = 25;

/// What keeps a name from becoming part of a file name: the first of Empty, ControlCharacter, ForbiddenCharacter,
/// FolderName and BadEnding that applies. Length does not count here: files of longer names are read.
/// @param name  bytes as in a file name.
[[nodiscard]] NameFault FileNameFault(std::string_view name) noexcept;

/// What keeps a typed name from being a new maker's: a FileNameFault, NotInCodePage, NotReadBack (a blank in front,
/// which the index drops) or TooLong.
/// @param name  UTF-8.
[[nodiscard]] NameFault MakerNameFault(std::string_view name);

/// Whether a name may be a new maker's. @param name  UTF-8.
[[nodiscard]] inline bool IsMakerName(std::string_view name)
{
    return MakerNameFault(name) == NameFault::None;
}

} // namespace quillon::store
