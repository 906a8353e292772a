#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace quillon::store {

/// Text of the data files, code page 1252, as UTF-8. The five bytes that the page leaves undefined become the control
/// characters of the same code (0x81 U+0081, likewise 0x8D, 0x8F, 0x90, 0x9D), so that every byte comes back.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

/// UTF-8 text in code page 1252. @return nothing when the page lacks a character or the text is not valid UTF-8.
[[nodiscard]] std::optional<std::string> FromUtf8(std::string_view text);

/// A letter of code page 1252 as a capital; any other byte as it is.
[[nodiscard]] constexpr char UpperCase(char byte) noexcept
{
    switch (static_cast<unsigned char>(byte)) {
    case 0x9A: // s, z with caron; oe
    case 0x9C:
    case 0x9E:
        return static_cast<char>(static_cast<unsigned char>(byte) - 0x10);
    case 0xF7: // the division sign among the letters
        return byte;
    case 0xFF: // y with two dots
        return '\x9F';
    default:
        break;
    }
    const bool isSmall = (byte >= 'a' && byte <= 'z') || static_cast<unsigned char>(byte) >= 0xE0;
    return isSmall ? static_cast<char>(static_cast<unsigned char>(byte) - 0x20) : byte;
}

/// Whether two texts of code page 1252 are equal when the case of letters does not count.
[[nodiscard]] constexpr bool EqualTexts(std::string_view left, std::string_view right) noexcept
{
    return std::ranges::equal(left, right, {}, UpperCase, UpperCase);
}

} // namespace quillon::store
