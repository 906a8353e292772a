#include "store/private_profile.h"

#include "store/profile_lines.h"

#include <algorithm>

namespace quillon::store {
namespace {

/// So many look-ups by walking, for each byte of the text, take as long as making a table of all entries.
constexpr std::size_t kBytesPerWalk = 64;

/// A name that alone is longer than all that is asked for is not copied as a whole.
void AddName(std::string& names, std::string_view name, std::size_t enough)
{
    names.append(name.substr(0, enough)).push_back('\0');
}

} // namespace

std::optional<std::string_view> PrivateProfile::Value(std::string_view section, std::string_view key) const
{
    const std::optional<EntryLine> entry = FindEntryOf(section, key);
    return entry ? std::optional(ValueOf(*entry)) : std::nullopt;
}

std::string PrivateProfile::SectionNames(std::size_t enough) const
{
    std::string names;
    std::optional<HeaderLine> header = FindHeader(Bytes(), 0);
    while (header && names.size() < enough) {
        if (!header->name.empty()) {
            AddName(names, header->name, enough);
        }
        header = FindHeader(Bytes(), header->end);
    }
    return names;
}

template <class Visitor>
void PrivateProfile::WalkEntries(std::string_view section, const Visitor& visit) const
{
    const SectionSpan span = FindSection(section).value_or(SectionSpan{});
    const std::string_view lines = Bytes().substr(0, span.end);
    std::optional<EntryLine> entry = FindEntry(lines, span.body);
    while (entry && visit(*entry)) {
        entry = FindEntry(lines, entry->equals + 1);
    }
}

std::string PrivateProfile::KeyNames(std::string_view section, std::size_t enough) const
{
    std::string names;
    WalkEntries(section, [&names, enough](const EntryLine& entry) {
        AddName(names, entry.name, enough);
        return names.size() < enough;
    });
    return names;
}

std::vector<ProfileEntry> PrivateProfile::Entries(std::string_view section) const
{
    std::vector<ProfileEntry> entries;
    WalkEntries(section, [this, &entries](const EntryLine& entry) {
        entries.push_back({entry.name, ValueOf(entry)});
        return true;
    });
    return entries;
}

std::optional<TextChange> PrivateProfile::ValueChange(std::string_view section, std::string_view key,
                                                      std::string_view value) const
{
    value = WithoutBlanks(value);
    if (const std::optional<EntryLine> entry = FindEntryOf(section, key)) {
        const std::string_view old = ValueOf(*entry);
        if (old == value) {
            return std::nullopt;
        }
        return TextChange{static_cast<std::size_t>(old.data() - Bytes().data()), old.size(), std::string(value)};
    }
    const std::string newEntry = std::string(WithoutBlanks(key)).append("=").append(value).append(LineEnd());
    const std::optional<SectionSpan> span = FindSection(section);
    if (!span) {
        const std::string header = std::string("[").append(WithoutBlanks(section)).append("]").append(LineEnd());
        return Insertion(Bytes().size(), header + newEntry);
    }
    std::size_t behindLastText = span->body;
    for (std::size_t begin = span->body; begin < span->end;) {
        const LineSpan line = LineAt(Bytes(), begin);
        if (!WithoutBlanks(Bytes().substr(line.begin, line.end - line.begin)).empty()) {
            behindLastText = line.next;
        }
        begin = line.next;
    }
    return Insertion(behindLastText, newEntry);
}

std::optional<TextChange> PrivateProfile::KeyRemoval(std::string_view section, std::string_view key) const
{
    const std::optional<EntryLine> entry = FindEntryOf(section, key);
    if (!entry) {
        return std::nullopt;
    }
    return TextChange{entry->begin, LineAt(Bytes(), entry->begin).next - entry->begin, {}};
}

std::optional<TextChange> PrivateProfile::SectionRemoval(std::string_view section) const
{
    const std::optional<SectionSpan> span = FindSection(section);
    if (!span || span->header == span->end) {
        return std::nullopt;
    }
    return TextChange{span->header, span->end - span->header, {}};
}

bool PrivateProfile::Make(const std::optional<TextChange>& change)
{
    if (!change) {
        return false;
    }
    // Made anew at its exact size: growing in place would reserve twice the text.
    store::Bytes changed(Bytes().size() - change->length + change->text.size());
    char* end = changed.Data();
    for (const std::string_view part : change->Parts(Bytes())) {
        end += part.copy(end, part.size());
    }
    m_bytes = std::move(changed);
    m_index = {};
    m_table = {};
    m_walks = 0;
    return true;
}

std::optional<SectionSpan> PrivateProfile::FindSection(std::string_view section) const
{
    return m_index.Find(Bytes(), WithoutBlanks(section));
}

std::optional<EntryLine> PrivateProfile::FindEntryOf(std::string_view section, std::string_view key) const
{
    section = WithoutBlanks(section);
    const std::string_view name = WithoutBlanks(key);
    if (m_table.IsMade() && !section.empty()) {
        return m_table.Find(Bytes(), {section, name});
    }
    if (++m_walks == Bytes().size() / kBytesPerWalk + 1) {
        m_table.Make(Bytes(), m_index);
    }
    std::optional<EntryLine> found;
    WalkEntries(section, [&found, name](const EntryLine& entry) {
        if (EqualNames(entry.name, name)) {
            found = entry;
        }
        return !found;
    });
    return found;
}

std::string_view PrivateProfile::ValueOf(const EntryLine& entry) const noexcept
{
    const std::size_t begin = entry.equals + 1;
    return WithoutBlanks(Bytes().substr(begin, FindLineEnd(Bytes(), begin) - begin));
}

std::string_view PrivateProfile::LineEnd() const noexcept
{
    const LineSpan first = LineAt(Bytes(), 0);
    return first.end == first.next ? "\r\n" : Bytes().substr(first.end, first.next - first.end);
}

TextChange PrivateProfile::Insertion(std::size_t offset, std::string lines) const
{
    if (offset > 0 && Bytes()[offset - 1] != '\n' && Bytes()[offset - 1] != '\r') {
        lines.insert(0, LineEnd()); // the last line of the file has no line end yet
    }
    return {offset, 0, std::move(lines)};
}

} // namespace quillon::store
