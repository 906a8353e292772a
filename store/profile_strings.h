#pragma once

#include "store/profile_store.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quillon::store {

/// A text that may be left out altogether, which is not the same as an empty one.
using OptionalText = std::optional<std::string_view>;

/// Reads a value, or a list of names, into a buffer and closes it with a NUL.
/// With section and key: the value without its outer quotes, or defaultValue without trailing blanks; cut to one less
/// than the buffer. Without key: the section's key names; without section: the section names; each name with a NUL and
/// one more NUL behind the last. A list that does not fit is cut to two less than the buffer.
/// @return number of characters copied, the closing NUL not counted.
std::size_t GetPrivateProfileString(ProfileStore& store, OptionalText section, OptionalText key,
                                    OptionalText defaultValue, std::span<char> buffer, const std::string& file);

/// Writes a key's value; without value the key goes, without key the section. Deleting what is not there succeeds.
/// @return false when nothing could be written: no section is named, a text holds a line end or a NUL (it would not
///         stay one line), or the file or its folder does not let itself be written.
bool WritePrivateProfileString(ProfileStore& store, OptionalText section, OptionalText key, OptionalText value,
                               const std::string& file);

} // namespace quillon::store
