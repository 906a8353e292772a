#include "store/profile_lines.h"

#include <algorithm>

namespace quillon::store {
namespace {

constexpr std::string_view kBlanks = " \t";

bool IsLineEnd(char character) noexcept
{
    return character == '\n' || character == '\r';
}

} // namespace

LineSpan LineAt(std::string_view text, std::size_t begin) noexcept
{
    const auto* const found = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(begin), text.end(), IsLineEnd);
    const auto end = static_cast<std::size_t>(found - text.begin());
    if (end == text.size()) {
        return {begin, end, end};
    }
    const bool isPair = text.substr(end, 2) == "\r\n";
    return {begin, end, end + (isPair ? 2 : 1)};
}

ParsedLine ParseLine(std::string_view line) noexcept
{
    const std::string_view text = WithoutBlanks(line);
    if (text.empty()) {
        return {LineKind::Blank, {}, {}};
    }
    if (text.front() == ';') {
        return {LineKind::Comment, {}, {}};
    }
    if (text.front() == '[') {
        const std::size_t close = text.rfind(']');
        if (close != std::string_view::npos) {
            return {LineKind::Header, WithoutBlanks(text.substr(1, close - 1)), {}};
        }
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        return {LineKind::Other, {}, {}};
    }
    return {LineKind::Entry, WithoutBlanks(line.substr(0, equals)), WithoutBlanks(line.substr(equals + 1))};
}

std::string_view WithoutBlanks(std::string_view text) noexcept
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view WithoutQuotes(std::string_view value) noexcept
{
    const bool isQuoted = value.size() > 1 && (value.front() == '"' || value.front() == '\'');
    return isQuoted && value.front() == value.back() ? value.substr(1, value.size() - 2) : value;
}

bool EqualNames(std::string_view left, std::string_view right) noexcept
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return FoldCase(a) == FoldCase(b); });
}

} // namespace quillon::store
