#include "store/private_profile.h"

#include "store/profile_lines.h"

#include <algorithm>

namespace quillon::store {
namespace {

/// A name that alone is longer than all that is asked for is not copied as a whole.
void AddName(std::string& names, std::string_view name, std::size_t enough)
{
    names.append(name.substr(0, enough)).push_back('\0');
}

/// Most lines are not the one that is looked for, and telling so takes less than parsing them.
bool BeginsWith(std::string_view line, std::string_view name)
{
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return EqualNames(line.substr(0, name.size()), name);
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
    const std::optional<SectionSpan> span = FindSection(section);
    std::size_t begin = span ? span->body : Bytes().size();
    while (span && begin < span->end) {
        const LineSpan line = LineAt(Bytes(), begin);
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

std::optional<TextChange> PrivateProfile::ValueChange(std::string_view section, std::string_view key,
                                                      std::string_view value) const
{
    value = WithoutBlanks(value);
    if (const std::optional<EntrySpan> entry = FindEntry(section, key)) {
        if (Bytes().substr(entry->value, entry->valueLength) == value) {
            return std::nullopt;
        }
        return TextChange{entry->value, entry->valueLength, std::string(value)};
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
    const std::optional<EntrySpan> entry = FindEntry(section, key);
    return entry ? std::optional(TextChange{entry->line, entry->next - entry->line, {}}) : std::nullopt;
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
    return true;
}

std::optional<SectionSpan> PrivateProfile::FindSection(std::string_view section) const
{
    return m_index.Find(Bytes(), WithoutBlanks(section));
}

std::optional<PrivateProfile::EntrySpan> PrivateProfile::FindEntry(std::string_view section, std::string_view key) const
{
    const std::string_view name = WithoutBlanks(key);
    const SectionSpan span = FindSection(section).value_or(SectionSpan{});
    for (std::size_t begin = span.body; begin < span.end;) {
        const LineSpan line = LineAt(Bytes(), begin);
        const std::string_view text = Bytes().substr(line.begin, line.end - line.begin);
        if (BeginsWith(text, name)) {
            const ParsedLine entry = ParseLine(text);
            if (entry.kind == LineKind::Entry && EqualNames(entry.name, name)) {
                const auto value = static_cast<std::size_t>(entry.value.data() - Bytes().data());
                return EntrySpan{line.begin, line.next, value, entry.value.size()};
            }
        }
        begin = line.next;
    }
    return std::nullopt;
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
