#pragma once

#include <string>
#include <string_view>

namespace quillon::fuzz {

/// A number read as the C library reads it, with its own idea of what belongs to it.
/// @return whether there is one
bool ReadByLibrary(std::string_view text, float& value);

/// The number as printf writes it with the fewest digits that scanning gives back, and no exponent.
[[nodiscard]] std::string ShortestByLibrary(float value);

/// The number with at most seven digits out of the hundred and more that it has in full.
[[nodiscard]] std::string PlainByLibrary(float value);

/// The shortest text rounded half away from zero and laid out by a mask, worked out on the text itself.
[[nodiscard]] std::string MaskedByLibrary(float value, std::string_view mask);

} // namespace quillon::fuzz
