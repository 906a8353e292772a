#pragma once

#include "store/profile_lines.h"
#include "store/section_index.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon::store {

/// What an entry is looked for by: the names of its section and its key.
struct EntryName
{
    std::string_view section;
    std::string_view key;
};

/// Finds the entries of a text of up to 64 MiB without walking through their sections. A table of twelve bytes for each
/// entry, made in one go; names are compared in the text itself, which is handed in again by its owner, unchanged, at
/// every call.
class EntryTable
{
public:
    /// Makes the table, unless it would take more memory than the text.
    /// @param sections  those of the text.
    void Make(std::string_view text, SectionIndex& sections);

    [[nodiscard]] bool IsMade() const noexcept { return !m_slots.empty(); }

    /// The first entry of a name in the first section of a name, letter case aside.
    /// @param name  of a section that is not empty: the lines before the first header are not in the table.
    [[nodiscard]] std::optional<EntryLine> Find(std::string_view text, const EntryName& name) const noexcept;

private:
    static constexpr unsigned kOffsetBits = 26;
    static constexpr unsigned kTagBits = 64 - 2 * kOffsetBits;
    static constexpr std::uint64_t kOffsets = (std::uint64_t{1} << kOffsetBits) - 1;
    static constexpr std::uint64_t kTags = (std::uint64_t{1} << kTagBits) - 1;

    struct Slot
    {
        std::uint64_t header : kOffsetBits = 0; ///< begin of the section's header line
        std::uint64_t entry : kOffsetBits = 0;  ///< begin of the entry's line; 0 in a free slot
        std::uint64_t tag : kTagBits = 0;       ///< part of the hash: spares most looks at other entries' names
    };

    struct Found
    {
        std::size_t place; ///< of the entry's slot, or of the free one where it would stand
        std::optional<EntryLine> entry;
    };

    void Add(std::string_view text, std::string_view section, const SectionSpan& span);
    [[nodiscard]] Found Look(std::string_view text, const EntryName& name) const noexcept;

    std::vector<Slot> m_slots;
};

} // namespace quillon::store
