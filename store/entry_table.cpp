#include "store/entry_table.h"

#include "store/name_hash.h"

#include <algorithm>

namespace quillon::store {
namespace {

/// Three slots for two entries: a look at two of them finds most entries.
constexpr std::size_t SlotsFor(std::size_t entries) noexcept
{
    return entries + entries / 2 + 1;
}

std::uint64_t Hash(const EntryName& name) noexcept
{
    return HashName(name.key, HashName(name.section));
}

/// @param begin  of a header line.
bool IsHeaderOf(std::string_view text, std::size_t begin, std::string_view name) noexcept
{
    const std::string_view line = text.substr(begin, FindLineEnd(text, begin) - begin);
    if (line.size() == name.size() + 2 && line.front() == '[' && line.back() == ']' &&
        EqualNames(line.substr(1, name.size()), name)) {
        return true; // as most headers are written: telling so takes less than finding what the line says
    }
    const std::optional<HeaderLine> header = FindHeader(text, begin);
    return header && EqualNames(header->name, name);
}

} // namespace

void EntryTable::Make(std::string_view text, SectionIndex& sections)
{
    const auto most = static_cast<std::size_t>(std::count(text.begin(), text.end(), '='));
    const std::size_t slots = SlotsFor(most);
    if (slots * sizeof(Slot) > text.size() || text.size() > kOffsets) {
        return;
    }
    m_slots.assign(slots, {});
    for (std::size_t place = 0; sections.Has(text, place); ++place) {
        const std::string_view name = sections.Name(text, place);
        const SectionSpan span = sections.Span(text, place);
        const std::optional<SectionSpan> first = sections.Find(text, name);
        if (first && first->header == span.header) { // the first section of a name wins
            Add(text, name, span);
        }
    }
}

std::optional<EntryLine> EntryTable::Find(std::string_view text, const EntryName& name) const noexcept
{
    return Look(text, name).entry;
}

void EntryTable::Add(std::string_view text, std::string_view section, const SectionSpan& span)
{
    const std::string_view lines = text.substr(0, span.end);
    std::optional<EntryLine> entry = FindEntry(lines, span.body);
    for (; entry; entry = FindEntry(lines, entry->equals + 1)) {
        const Found found = Look(text, {section, entry->name});
        if (!found.entry) { // the first entry of a name wins
            Slot& slot = m_slots[found.place];
            slot.header = span.header & kOffsets;
            slot.entry = entry->begin & kOffsets;
            slot.tag = Hash({section, entry->name}) & kTags;
        }
    }
}

EntryTable::Found EntryTable::Look(std::string_view text, const EntryName& name) const noexcept
{
    const std::uint64_t hash = Hash(name);
    const std::uint64_t tag = hash & kTags;
    std::size_t place = (hash >> 32U) * m_slots.size() >> 32U;
    for (; m_slots[place].entry != 0; place = place + 1 < m_slots.size() ? place + 1 : 0) {
        const Slot& slot = m_slots[place];
        if (slot.tag != tag) {
            continue;
        }
        const std::optional<EntryLine> entry = FindEntry(text, slot.entry);
        if (entry && EqualNames(entry->name, name.key) && IsHeaderOf(text, slot.header, name.section)) {
            return {place, entry};
        }
    }
    return {place, std::nullopt};
}

} // namespace quillon::store
