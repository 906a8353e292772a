#pragma once

#include "store/section_index.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon::store {

/// One line of a section: a key's name and its value as it stands in the file, quotes included.
struct ProfileEntry
{
    std::string_view name;
    std::string_view value;
};

/// A data file's text as a document of lines: sections of entries, and whatever else stands between them. Editing
/// touches the line in question only; every other byte stays as it is.
///
/// Names match without regard to the case of ASCII letters and to blanks around them; the first section and the first
/// key of a name win. The section with the empty name is what stands before the first header.
class PrivateProfile
{
public:
    PrivateProfile() = default;

    explicit PrivateProfile(std::string bytes) noexcept
        : m_bytes(std::move(bytes))
    {
    }

    [[nodiscard]] std::string_view Bytes() const noexcept { return m_bytes; }

    /// Value of a key as it stands in the file, quotes included. @return nothing when section or key is missing.
    [[nodiscard]] std::optional<std::string_view> Value(std::string_view section, std::string_view key) const;

    /// Names of the sections in file order, each followed by a NUL; sections without a name are passed over.
    /// @param enough  length from which on no further names are gathered.
    [[nodiscard]] std::string SectionNames(std::size_t enough) const;
    /// Names of a section's keys in file order, each followed by a NUL.
    /// @param enough  length from which on no further names are gathered.
    [[nodiscard]] std::string KeyNames(std::string_view section, std::size_t enough) const;

    /// A section's entries in file order, for those who want many of them: looking up each walks the section each time.
    /// Views into Bytes().
    [[nodiscard]] std::vector<ProfileEntry> Entries(std::string_view section) const;

    /// Replaces a key's value in place, or adds the key at the end of its section, or section and key at the end of
    /// the file. @return whether the text changed; it does not when the key has this value already.
    bool SetValue(std::string_view section, std::string_view key, std::string_view value);
    /// Takes out a key's line. @return whether the text changed
    bool RemoveKey(std::string_view section, std::string_view key);
    /// Takes out a section's header and everything up to the next one. @return whether the text changed
    bool RemoveSection(std::string_view section);

private:
    struct EntrySpan
    {
        std::size_t line;
        std::size_t next;
        std::size_t value;
        std::size_t valueLength;
    };

    [[nodiscard]] SectionIndex& Index() const;
    [[nodiscard]] std::optional<SectionSpan> FindSection(std::string_view section) const;
    /// @param visit  gets each entry's LineSpan and ParsedLine in file order; false ends the walk.
    template <class Visitor>
    void WalkEntries(std::string_view section, const Visitor& visit) const;
    [[nodiscard]] std::optional<EntrySpan> FindEntry(std::string_view section, std::string_view key) const;
    [[nodiscard]] std::string_view LineEnd() const noexcept;
    void InsertLines(std::size_t offset, std::string lines);
    void Replace(std::size_t offset, std::size_t length, std::string_view text);

    std::string m_bytes;
    mutable std::optional<SectionIndex> m_index; ///< made at the first look-up and again after a change
};

} // namespace quillon::store
