#include "store/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillon::store {
namespace {

constexpr unsigned kFirstOwn = 0x80;
constexpr unsigned kBehindOwn = 0xA0;

/// Characters of the bytes 0x80 to 0x9F; all other bytes are the character of their code.
constexpr std::array<char16_t, kBehindOwn - kFirstOwn> kOwnCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 0x88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178  // 0x98
};

unsigned CharacterOf(char byte) noexcept
{
    const auto code = static_cast<unsigned char>(byte);
    return code >= kFirstOwn && code < kBehindOwn ? kOwnCharacters[code - kFirstOwn] : code;
}

std::optional<char> ByteOf(unsigned character) noexcept
{
    if (character < kFirstOwn || (character >= kBehindOwn && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* const own = std::find(kOwnCharacters.begin(), kOwnCharacters.end(), character);
    if (own == kOwnCharacters.end()) {
        return std::nullopt;
    }
    return static_cast<char>(kFirstOwn + static_cast<unsigned>(own - kOwnCharacters.begin()));
}

/// Takes the first character off a UTF-8 text. @return nothing for one that takes more than three bytes, which the
/// code page has none of, and for bytes that are no character.
std::optional<unsigned> TakeCharacter(std::string_view& text) noexcept
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : 3;
    constexpr std::array<unsigned, 4> kLeadMark{0, 0x00, 0xC0, 0xE0};
    constexpr std::array<unsigned, 4> kLeast{0, 0x0, 0x80, 0x800};
    unsigned character = lead - kLeadMark[length];
    const bool isLead = character <= (0x7FU >> (length == 1 ? 0 : length));
    if (!isLead || text.size() < length) {
        return std::nullopt;
    }
    for (std::size_t place = 1; place < length; ++place) {
        const auto next = static_cast<unsigned char>(text[place]);
        if ((next & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        character = (character << 6U) | (next & 0x3FU);
    }
    text.remove_prefix(length);
    return character >= kLeast[length] ? std::optional(character) : std::nullopt;
}

} // namespace

std::string ToUtf8(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const unsigned character = CharacterOf(byte);
        if (character < 0x80) {
            text.push_back(byte);
            continue;
        }
        if (character < 0x800) {
            text.push_back(static_cast<char>(0xC0U | (character >> 6U)));
        } else {
            text.push_back(static_cast<char>(0xE0U | (character >> 12U)));
            text.push_back(static_cast<char>(0x80U | ((character >> 6U) & 0x3FU)));
        }
        text.push_back(static_cast<char>(0x80U | (character & 0x3FU)));
    }
    return text;
}

std::optional<std::string> FromUtf8(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const std::optional<unsigned> character = TakeCharacter(text);
        const std::optional<char> byte = character ? ByteOf(*character) : std::nullopt;
        if (!byte) {
            return std::nullopt;
        }
        bytes.push_back(*byte);
    }
    return bytes;
}

} // namespace quillon::store
