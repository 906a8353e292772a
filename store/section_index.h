#pragma once

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

/// Finds the sections of a text of up to 4 GiB. Four bytes per section; names are looked up in the text itself, which
/// is handed in again by its owner, unchanged, at every call.
class SectionIndex
{
public:
    explicit SectionIndex(std::string_view text);

    /// Number of header lines.
    [[nodiscard]] std::size_t Count() const noexcept { return m_headers.size(); }

    /// Name of a section. @param place  0 to Count() - 1, in file order
    [[nodiscard]] std::string_view Name(std::string_view text, std::size_t place) const noexcept;

    /// The first section of a name, letter case aside. The empty name stands for the lines before the first header,
    /// which are always there.
    [[nodiscard]] std::optional<SectionSpan> Find(std::string_view text, std::string_view name);

private:
    [[nodiscard]] SectionSpan Span(std::string_view text, std::size_t place) const noexcept;
    [[nodiscard]] std::optional<std::size_t> FindPlace(std::string_view text, std::string_view name) const;
    void BuildTable(std::string_view text);
    void GrowTable(std::string_view text);
    [[nodiscard]] std::size_t Slot(std::string_view text, std::string_view name) const noexcept;

    std::vector<std::uint32_t> m_headers; ///< offsets of the header lines
    std::vector<std::uint32_t> m_table;   ///< hash table of the first places of each name; only for many sections
};

} // namespace quillon::store
