#include "store/profile_lines.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace quillon::store {
namespace {

using Word = std::uint64_t;

/// Looked through word by word for the end of a line, which is quickest for the short lines that most are.
constexpr std::size_t kUsualLine = 16 * sizeof(Word);

constexpr Word Repeated(unsigned char byte) noexcept
{
    return byte * Word{0x0101010101010101};
}

/// The highest bit of each byte that equals another one; no other bits.
constexpr Word MarkEqual(Word bytes, unsigned char byte) noexcept
{
    const Word difference = bytes ^ Repeated(byte);
    return ~(((difference & Repeated(0x7F)) + Repeated(0x7F)) | difference) & Repeated(0x80);
}

/// Place of the first line end in a word, or the word's size.
std::size_t FirstLineEnd(Word word) noexcept
{
    const Word marks = MarkEqual(word, '\n') | MarkEqual(word, '\r');
    const int before = std::endian::native == std::endian::little ? std::countr_zero(marks) : std::countl_zero(marks);
    return static_cast<std::size_t>(before) / 8;
}

} // namespace

std::size_t FindLineEnd(std::string_view text, std::size_t begin) noexcept
{
    const std::size_t usual = std::min(begin + kUsualLine, text.size());
    while (begin + sizeof(Word) <= usual) {
        Word word = 0;
        std::memcpy(&word, text.data() + begin, sizeof(Word));
        const std::size_t found = FirstLineEnd(word);
        begin += found;
        if (found < sizeof(Word)) {
            return begin;
        }
    }
    // Each of the two characters is looked for by itself, which is quick, and never far beyond the other one.
    for (std::size_t length = kUsualLine; begin < text.size(); begin += length, length *= 2) {
        const std::string_view part = text.substr(begin, length);
        const std::string_view line = part.substr(0, part.find('\n'));
        const std::size_t end = std::min(line.find('\r'), line.size());
        if (end < part.size()) {
            return begin + end;
        }
    }
    return text.size();
}

LineSpan LineAt(std::string_view text, std::size_t begin) noexcept
{
    const std::size_t end = FindLineEnd(text, begin);
    if (end == text.size()) {
        return {begin, end, end};
    }
    const bool isPair = text.substr(end, 2) == "\r\n";
    return {begin, end, end + (isPair ? 2 : 1)};
}

std::string_view WithoutQuotes(std::string_view value) noexcept
{
    const bool isQuoted = value.size() > 1 && (value.front() == '"' || value.front() == '\'');
    return isQuoted && value.front() == value.back() ? value.substr(1, value.size() - 2) : value;
}

bool EqualNames(std::string_view left, std::string_view right) noexcept
{
    // Names are mostly spelled alike, and telling so is quickest.
    return left == right || std::equal(left.begin(), left.end(), right.begin(), right.end(),
                                       [](char a, char b) { return FoldCase(a) == FoldCase(b); });
}

} // namespace quillon::store
