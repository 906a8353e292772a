#include "store/section_index.h"

#include "store/name_hash.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <limits>

namespace quillon::store {
namespace {

/// Up to here a walk over all names is as quick as a table.
constexpr std::size_t kFewSections = 32;
/// A table for one name in that many bytes takes a quarter of the text's memory at most; it grows when names are
/// shorter.
constexpr std::size_t kBytesPerName = 64;
constexpr std::uint32_t kFree = std::numeric_limits<std::uint32_t>::max();

} // namespace

bool SectionIndex::Has(std::string_view text, std::size_t place)
{
    while (place >= m_headers.size() && FindNextHeader(text)) {
    }
    return place < m_headers.size();
}

std::optional<HeaderLine> SectionIndex::FindNextHeader(std::string_view text)
{
    const std::optional<HeaderLine> header = FindHeader(text, m_searched);
    m_searched = header ? header->end : text.size();
    if (header) {
        m_headers.push_back(static_cast<std::uint32_t>(header->begin));
    }
    return header;
}

std::string_view SectionIndex::Name(std::string_view text, std::size_t place) const noexcept
{
    // NOLINTNEXTLINE(bugprone-unchecked-optional-access): it was found there before
    return FindHeader(text, m_headers[place])->name;
}

std::optional<SectionSpan> SectionIndex::Find(std::string_view text, std::string_view name)
{
    if (name.empty()) {
        return SectionSpan{0, 0, Has(text, 0) ? m_headers.front() : text.size()};
    }
    if (m_last < m_headers.size() && EqualNames(Name(text, m_last), name)) {
        return Span(text, m_last);
    }
    const std::optional<std::size_t> place = FindPlace(text, name);
    if (!place) {
        return std::nullopt;
    }
    m_last = *place;
    return Span(text, *place);
}

SectionSpan SectionIndex::Span(std::string_view text, std::size_t place)
{
    const std::size_t end = Has(text, place + 1) ? m_headers[place + 1] : text.size();
    return {m_headers[place], LineAt(text, m_headers[place]).next, end};
}

std::optional<std::size_t> SectionIndex::FindPlace(std::string_view text, std::string_view name)
{
    // For one section a walk is quicker than making a table of all; whoever asks for a second one may ask for many.
    if (m_hasWalked && m_table.empty() && Has(text, kFewSections)) {
        BuildTable(text);
    }
    if (m_table.empty()) {
        m_hasWalked = true;
        return FindByWalk(text, name);
    }
    const std::uint32_t place = m_table[Slot(text, name)];
    return place == kFree ? std::nullopt : std::optional<std::size_t>(place);
}

std::optional<std::size_t> SectionIndex::FindByWalk(std::string_view text, std::string_view name)
{
    for (std::size_t place = 0; place < m_headers.size(); ++place) {
        if (EqualNames(Name(text, place), name)) {
            return place;
        }
    }
    std::optional<HeaderLine> header = FindNextHeader(text);
    while (header && !EqualNames(header->name, name)) {
        header = FindNextHeader(text);
    }
    return header ? std::optional(m_headers.size() - 1) : std::nullopt;
}

void SectionIndex::BuildTable(std::string_view text)
{
    while (FindNextHeader(text)) {
    }
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
    std::size_t slot = HashName(name) & mask;
    while (m_table[slot] != kFree && !EqualNames(Name(text, m_table[slot]), name)) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

} // namespace quillon::store
