#pragma once

#include "store/profile_lines.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon::store {

/// Where one section of a text lies; offsets into the text.
struct SectionSpan
{
    std::size_t header; ///< begin of the header line
    std::size_t body;   ///< behind the header line; same as header for the lines before the first header
    std::size_t end;    ///< begin of the next header line, or the text's size
};

/// Finds the sections of a text of up to 4 GiB, and looks no further into it than it has to. Four bytes per section;
/// names are looked up in the text itself, which is handed in again by its owner, unchanged, at every call.
class SectionIndex
{
public:
    /// Whether there is a section at a place. @param place  from 0, in file order
    [[nodiscard]] bool Has(std::string_view text, std::size_t place);

    /// Name of a section. @param place  one that Has was true for
    [[nodiscard]] std::string_view Name(std::string_view text, std::size_t place) const noexcept;

    /// Where a section lies. @param place  one that Has was true for
    [[nodiscard]] SectionSpan Span(std::string_view text, std::size_t place);

    /// The first section of a name, letter case aside. The empty name stands for the lines before the first header,
    /// which are always there.
    [[nodiscard]] std::optional<SectionSpan> Find(std::string_view text, std::string_view name);

private:
    std::optional<HeaderLine> FindNextHeader(std::string_view text);
    [[nodiscard]] std::optional<std::size_t> FindPlace(std::string_view text, std::string_view name);
    [[nodiscard]] std::optional<std::size_t> FindByWalk(std::string_view text, std::string_view name);
    void BuildTable(std::string_view text);
    void GrowTable(std::string_view text);
    [[nodiscard]] std::size_t Slot(std::string_view text, std::string_view name) const noexcept;

    std::vector<std::uint32_t> m_headers; ///< offsets of the header lines that stand before m_searched
    std::vector<std::uint32_t> m_table;   ///< hash table of the first places of each name; only for many sections
    std::size_t m_searched = 0;
    std::size_t m_last = 0; ///< place found last: most often it is asked for again
    bool m_hasWalked = false;
};

} // namespace quillon::store
