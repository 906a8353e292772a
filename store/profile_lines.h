#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillon::store {

/// Where one line of a text lies; offsets into the text.
struct LineSpan
{
    std::size_t begin;
    std::size_t end;  ///< behind the last character, before the line end
    std::size_t next; ///< begin of the following line; the text's size behind the last one
};

/// The line that begins at an offset. It ends at CR LF, LF, CR or the end of the text.
[[nodiscard]] LineSpan LineAt(std::string_view text, std::size_t begin) noexcept;

enum class LineKind {
    Blank,   ///< nothing but blanks and tabs
    Comment, ///< starts with ";"
    Header,  ///< "[name]"; the name runs to the last "]" of the line
    Entry,   ///< "key=value"
    Other    ///< no entry: kept as it is and never listed
};

/// What a line says. Views into the line, without the blanks and tabs around them.
struct ParsedLine
{
    LineKind kind;
    std::string_view name;  ///< name of the section or key
    std::string_view value; ///< an entry's value as it stands, quotes included
};

/// @param line  without its line end.
[[nodiscard]] ParsedLine ParseLine(std::string_view line) noexcept;

/// The line of a section's header.
struct HeaderLine
{
    std::size_t begin;
    std::size_t end;       ///< behind the last character, before the line end
    std::string_view name; ///< view into the text
};

/// The first header line of a text that begins at an offset or behind it. @param from  where a line begins or ends
[[nodiscard]] std::optional<HeaderLine> FindHeader(std::string_view text, std::size_t from) noexcept;

/// The text without the blanks and tabs around it; of a text of nothing else, the empty view at its end.
[[nodiscard]] std::string_view WithoutBlanks(std::string_view text) noexcept;

/// The value without one outer pair of equal quotes; blanks inside the quotes stay.
[[nodiscard]] std::string_view WithoutQuotes(std::string_view value) noexcept;

/// Small letter of an ASCII capital, every other byte as it is.
[[nodiscard]] constexpr char FoldCase(char character) noexcept
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Whether two names are the same but for the case of ASCII letters.
[[nodiscard]] bool EqualNames(std::string_view left, std::string_view right) noexcept;

} // namespace quillon::store
