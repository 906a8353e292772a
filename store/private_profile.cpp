#include "store/private_profile.h"

#include "store/profile_lines.h"

namespace quillon::store {
namespace {

/// A name that alone is longer than all that is asked for is not copied as a whole.
void AddName(std::string& names, std::string_view name, std::size_t enough)
{
    names.append(name.substr(0, enough)).push_back('\0');
}

} // namespace

std::optional<std::string_view> PrivateProfile::Value(std::string_view section, std::string_view key) const
{
    const std::optional<EntrySpan> entry = FindEntry(section, key);
    return entry ? std::optional(Bytes().substr(entry->value, entry->valueLength)) : std::nullopt;
}

std::string PrivateProfile::SectionNames(std::size_t enough) const
{
    std::string names;
    for (std::size_t place = 0; place < Index().Count() && names.size() < enough; ++place) {
        const std::string_view name = Index().Name(m_bytes, place);
        if (!name.empty()) {
            AddName(names, name, enough);
        }
    }
    return names;
}

template <class Visitor>
void PrivateProfile::WalkEntries(std::string_view section, const Visitor& visit) const
{
    const std::optional<SectionSpan> span = FindSection(section);
    std::size_t begin = span ? span->body : m_bytes.size();
    while (span && begin < span->end) {
        const LineSpan line = LineAt(m_bytes, begin);
        const ParsedLine parsed = ParseLine(Bytes().substr(line.begin, line.end - line.begin));
        if (parsed.kind == LineKind::Entry && !visit(line, parsed)) {
            return;
        }
        begin = line.next;
    }
}

std::string PrivateProfile::KeyNames(std::string_view section, std::size_t enough) const
{
    std::string names;
    WalkEntries(section, [&names, enough](const LineSpan& /*line*/, const ParsedLine& entry) {
        if (names.size() < enough) {
            AddName(names, entry.name, enough);
        }
        return names.size() < enough;
    });
    return names;
}

std::vector<ProfileEntry> PrivateProfile::Entries(std::string_view section) const
{
    std::vector<ProfileEntry> entries;
    WalkEntries(section, [&entries](const LineSpan& /*line*/, const ParsedLine& entry) {
        entries.push_back({entry.name, entry.value});
        return true;
    });
    return entries;
}

bool PrivateProfile::SetValue(std::string_view section, std::string_view key, std::string_view value)
{
    value = WithoutBlanks(value);
    if (const std::optional<EntrySpan> entry = FindEntry(section, key)) {
        if (Bytes().substr(entry->value, entry->valueLength) == value) {
            return false;
        }
        Replace(entry->value, entry->valueLength, value);
        return true;
    }
    const std::string newEntry = std::string(WithoutBlanks(key)).append("=").append(value).append(LineEnd());
    const std::optional<SectionSpan> span = FindSection(section);
    if (!span) {
        const std::string header = std::string("[").append(WithoutBlanks(section)).append("]").append(LineEnd());
        InsertLines(m_bytes.size(), header + newEntry);
        return true;
    }
    std::size_t behindLastText = span->body;
    for (std::size_t begin = span->body; begin < span->end;) {
        const LineSpan line = LineAt(m_bytes, begin);
        if (!WithoutBlanks(Bytes().substr(line.begin, line.end - line.begin)).empty()) {
            behindLastText = line.next;
        }
        begin = line.next;
    }
    InsertLines(behindLastText, newEntry);
    return true;
}

bool PrivateProfile::RemoveKey(std::string_view section, std::string_view key)
{
    const std::optional<EntrySpan> entry = FindEntry(section, key);
    if (entry) {
        Replace(entry->line, entry->next - entry->line, {});
    }
    return entry.has_value();
}

bool PrivateProfile::RemoveSection(std::string_view section)
{
    const std::optional<SectionSpan> span = FindSection(section);
    if (!span || span->header == span->end) {
        return false;
    }
    Replace(span->header, span->end - span->header, {});
    return true;
}

SectionIndex& PrivateProfile::Index() const
{
    if (!m_index) {
        m_index.emplace(m_bytes);
    }
    return *m_index;
}

std::optional<SectionSpan> PrivateProfile::FindSection(std::string_view section) const
{
    return Index().Find(m_bytes, WithoutBlanks(section));
}

std::optional<PrivateProfile::EntrySpan> PrivateProfile::FindEntry(std::string_view section, std::string_view key) const
{
    const std::string_view name = WithoutBlanks(key);
    std::optional<EntrySpan> found;
    WalkEntries(section, [this, name, &found](const LineSpan& line, const ParsedLine& entry) {
        if (EqualNames(entry.name, name)) {
            const auto value = static_cast<std::size_t>(entry.value.data() - m_bytes.data());
            found = {line.begin, line.next, value, entry.value.size()};
        }
        return !found;
    });
    return found;
}

std::string_view PrivateProfile::LineEnd() const noexcept
{
    const LineSpan first = LineAt(m_bytes, 0);
    return first.end == first.next ? "\r\n" : Bytes().substr(first.end, first.next - first.end);
}

void PrivateProfile::InsertLines(std::size_t offset, std::string lines)
{
    if (offset > 0 && m_bytes[offset - 1] != '\n' && m_bytes[offset - 1] != '\r') {
        lines.insert(0, LineEnd()); // the last line of the file has no line end yet
    }
    Replace(offset, 0, lines);
}

void PrivateProfile::Replace(std::size_t offset, std::size_t length, std::string_view text)
{
    // Made anew at its exact size: growing in place would reserve twice the text.
    std::string changed;
    changed.reserve(m_bytes.size() - length + text.size());
    changed.append(Bytes().substr(0, offset)).append(text).append(Bytes().substr(offset + length));
    m_bytes = std::move(changed);
    m_index.reset();
}

} // namespace quillon::store
