#include "store/section_index.h"

#include "store/profile_lines.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <limits>
#include <numeric>

namespace quillon::store {
namespace {

/// Up to here a walk over all names is as quick as a table.
constexpr std::size_t kFewSections = 32;
/// A table for one name in that many bytes takes a quarter of the text's memory at most; it grows when names are
/// shorter.
constexpr std::size_t kBytesPerName = 64;
constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();

/// Begin of the line of which the character at an offset is the first but for blanks; nothing when it is not.
std::optional<std::size_t> LineStartedBy(std::string_view text, std::size_t offset) noexcept
{
    const std::size_t before = text.substr(0, offset).find_last_not_of(" \t");
    if (before == std::string_view::npos) {
        return 0;
    }
    return text[before] == '\n' || text[before] == '\r' ? std::optional(before + 1) : std::nullopt;
}

std::size_t Hash(std::string_view name) noexcept
{
    return std::accumulate(name.begin(), name.end(), std::uint64_t{14695981039346656037U},
                           [](std::uint64_t hash, char character) {
                               return (hash ^ static_cast<unsigned char>(FoldCase(character))) * 1099511628211U;
                           });
}

} // namespace

SectionIndex::SectionIndex(std::string_view text)
{
    // Brackets are rare: looking for them passes over the other lines without looking at each.
    std::size_t bracket = text.find('[');
    while (bracket != std::string_view::npos) {
        const std::optional<std::size_t> begin = LineStartedBy(text, bracket);
        std::size_t next = bracket + 1;
        if (begin) {
            next = LineAt(text, bracket).end;
            if (text.substr(bracket, next - bracket).find(']') != std::string_view::npos) {
                m_headers.push_back(static_cast<std::uint32_t>(*begin));
            }
        }
        bracket = text.find('[', next);
    }
}

std::string_view SectionIndex::Name(std::string_view text, std::size_t place) const noexcept
{
    const LineSpan line = LineAt(text, m_headers[place]);
    return ParseLine(text.substr(line.begin, line.end - line.begin)).name;
}

std::optional<SectionSpan> SectionIndex::Find(std::string_view text, std::string_view name)
{
    if (name.empty()) {
        return SectionSpan{0, 0, m_headers.empty() ? text.size() : m_headers.front()};
    }
    if (m_headers.size() > kFewSections && m_table.empty()) {
        BuildTable(text);
    }
    const std::optional<std::size_t> place = FindPlace(text, name);
    return place ? std::optional(Span(text, *place)) : std::nullopt;
}

SectionSpan SectionIndex::Span(std::string_view text, std::size_t place) const noexcept
{
    const std::size_t end = place + 1 < m_headers.size() ? m_headers[place + 1] : text.size();
    return {m_headers[place], LineAt(text, m_headers[place]).next, end};
}

std::optional<std::size_t> SectionIndex::FindPlace(std::string_view text, std::string_view name) const
{
    if (!m_table.empty()) {
        const std::uint32_t place = m_table[Slot(text, name)];
        return place == kFree ? std::nullopt : std::optional<std::size_t>(place);
    }
    for (std::size_t place = 0; place < m_headers.size(); ++place) {
        if (EqualNames(Name(text, place), name)) {
            return place;
        }
    }
    return std::nullopt;
}

void SectionIndex::BuildTable(std::string_view text)
{
    const std::size_t names = std::min(m_headers.size(), text.size() / kBytesPerName + 1);
    m_table.assign(std::bit_ceil(2 * names), kFree);
    std::size_t used = 0;
    for (std::size_t place = 0; place < m_headers.size(); ++place) {
        const std::size_t slot = Slot(text, Name(text, place));
        if (m_table[slot] != kFree) {
            continue; // the first section of a name wins
        }
        m_table[slot] = static_cast<std::uint32_t>(place);
        if (2 * ++used > m_table.size()) {
            GrowTable(text);
        }
    }
}

void SectionIndex::GrowTable(std::string_view text)
{
    std::vector<std::uint32_t> places;
    std::copy_if(m_table.begin(), m_table.end(), std::back_inserter(places),
                 [](std::uint32_t p) { return p != kFree; });
    m_table.assign(2 * m_table.size(), kFree);
    for (const std::uint32_t place : places) {
        m_table[Slot(text, Name(text, place))] = place;
    }
}

std::size_t SectionIndex::Slot(std::string_view text, std::string_view name) const noexcept
{
    const std::size_t mask = m_table.size() - 1;
    std::size_t slot = Hash(name) & mask;
    while (m_table[slot] != kFree && !EqualNames(Name(text, m_table[slot]), name)) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

} // namespace quillon::store
