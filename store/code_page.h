#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillon::store {

/// Text of the data files, code page 1252, as UTF-8. The five bytes that the page leaves undefined become the control
/// characters of the same code (0x81 U+0081, likewise 0x8D, 0x8F, 0x90, 0x9D), so that every byte comes back.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

/// UTF-8 text in code page 1252. @return nothing when the page lacks a character or the text is not valid UTF-8.
[[nodiscard]] std::optional<std::string> FromUtf8(std::string_view text);

} // namespace quillon::store
