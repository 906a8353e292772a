#include "store/profile_lines.h"

#include <algorithm>

namespace quillon::store {
namespace {

constexpr std::string_view kBlanks = " \t";

/// Looked through first for the end of a line; twice as much each time that it is not there.
constexpr std::size_t kUsualLine = 64;

/// Offset of the first line end from an offset on, or the text's size. Each of the two characters is looked for by
/// itself, which is quick, and never far beyond the other one.
std::size_t FindLineEnd(std::string_view text, std::size_t begin) noexcept
{
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

} // namespace

LineSpan LineAt(std::string_view text, std::size_t begin) noexcept
{
    const std::size_t end = FindLineEnd(text, begin);
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
