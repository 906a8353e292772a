#pragma once

#include "store/bytes.h"
#include "store/entry_table.h"
#include "store/section_index.h"

#include <array>
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

/// What an edit changes of a text: a part of it gives way to another text.
struct TextChange
{
    std::size_t offset;
    std::size_t length;
    std::string text;

    /// The new text in three parts, views into both.
    [[nodiscard]] std::array<std::string_view, 3> Parts(std::string_view before) const noexcept
    {
        return {before.substr(0, offset), text, before.substr(offset + length)};
    }
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

    explicit PrivateProfile(store::Bytes bytes) noexcept
        : m_bytes(std::move(bytes))
    {
    }

    explicit PrivateProfile(std::string_view text)
        : m_bytes(text.size())
    {
        text.copy(m_bytes.Data(), text.size());
    }

    [[nodiscard]] std::string_view Bytes() const noexcept { return m_bytes.View(); }

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
    /// the file. @return nothing when the key has this value already.
    [[nodiscard]] std::optional<TextChange> ValueChange(std::string_view section, std::string_view key,
                                                        std::string_view value) const;
    /// Takes out a key's line.
    [[nodiscard]] std::optional<TextChange> KeyRemoval(std::string_view section, std::string_view key) const;
    /// Takes out a section's header and everything up to the next one.
    [[nodiscard]] std::optional<TextChange> SectionRemoval(std::string_view section) const;

    /// @param change  one that this text gave, not changed since. @return whether there was one
    bool Make(const std::optional<TextChange>& change);

private:
    [[nodiscard]] std::optional<SectionSpan> FindSection(std::string_view section) const;
    /// @param visit  gets each EntryLine in file order; false ends the walk.
    template <class Visitor>
    void WalkEntries(std::string_view section, const Visitor& visit) const;
    [[nodiscard]] std::optional<EntryLine> FindEntryOf(std::string_view section, std::string_view key) const;
    [[nodiscard]] std::string_view ValueOf(const EntryLine& entry) const noexcept;
    [[nodiscard]] std::string_view LineEnd() const noexcept;
    [[nodiscard]] TextChange Insertion(std::size_t offset, std::string lines) const;

    store::Bytes m_bytes;
    // These grow with the look-ups, and begin again after a change.
    mutable SectionIndex m_index;
    mutable EntryTable m_table;
    mutable std::size_t m_walks = 0; ///< look-ups without the table
};

} // namespace quillon::store
