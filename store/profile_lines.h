#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillon::store {

// What is asked for each line of a file stands here in full: joined to its callers, it hands over what it finds in
// registers.

[[nodiscard]] constexpr bool IsBlank(char character) noexcept
{
    return character == ' ' || character == '\t';
}

/// The text without the blanks and tabs around it; of a text of nothing else, the empty view at its end.
[[nodiscard]] constexpr std::string_view WithoutBlanks(std::string_view text) noexcept
{
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// Begin of the blanks that stand before an offset.
[[nodiscard]] constexpr std::size_t BeginOfBlanks(std::string_view text, std::size_t offset) noexcept
{
    while (offset > 0 && IsBlank(text[offset - 1])) {
        --offset;
    }
    return offset;
}

[[nodiscard]] constexpr bool IsLineBegin(std::string_view text, std::size_t offset) noexcept
{
    return offset == 0 || text[offset - 1] == '\n' || text[offset - 1] == '\r';
}

/// Offset of the first line end from an offset on, or the text's size.
[[nodiscard]] std::size_t FindLineEnd(std::string_view text, std::size_t begin) noexcept;

/// Where one line of a text lies; offsets into the text.
struct LineSpan
{
    std::size_t begin;
    std::size_t end;  ///< behind the last character, before the line end
    std::size_t next; ///< begin of the following line; the text's size behind the last one
};

/// The line that begins at an offset. It ends at CR LF, LF, CR or the end of the text.
[[nodiscard]] LineSpan LineAt(std::string_view text, std::size_t begin) noexcept;

/// The line of an entry, "key=value". Lines without "=" and those that start with ";" are none: they are never listed.
struct EntryLine
{
    std::size_t begin;
    std::size_t equals;    ///< place of the "=" that ends the name, the first of the line
    std::string_view name; ///< view into the text, without the blanks and tabs around it
};

/// The first entry of a section's lines behind an offset.
/// @param from  where a line begins, or behind the "=" of the entry found before.
[[nodiscard]] inline std::optional<EntryLine> FindEntry(std::string_view text, std::size_t from) noexcept
{
    // From sign to sign, which passes over all other lines and all values without looking at them.
    for (std::size_t equals = text.find('=', from); equals != std::string_view::npos; equals = text.find('=', from)) {
        std::size_t begin = equals;
        while (begin > from && !IsLineBegin(text, begin)) {
            --begin;
        }
        const bool isFirst = IsLineBegin(text, begin);
        const std::string_view name = WithoutBlanks(text.substr(begin, equals - begin));
        if (isFirst && !name.starts_with(';')) {
            return EntryLine{begin, equals, name};
        }
        from = equals + 1;
    }
    return std::nullopt;
}

/// The line of a section's header, "[name]"; the name runs to the last "]" of the line.
struct HeaderLine
{
    std::size_t begin;
    std::size_t end;       ///< behind the last character, before the line end
    std::string_view name; ///< view into the text
};

/// The first header line of a text that begins at an offset or behind it. @param from  where a line begins or ends
[[nodiscard]] inline std::optional<HeaderLine> FindHeader(std::string_view text, std::size_t from) noexcept
{
    // Brackets are rare: looking for them passes over the other lines without looking at each.
    for (std::size_t bracket = text.find('[', from); bracket != std::string_view::npos;
         bracket = text.find('[', from)) {
        const std::size_t begin = BeginOfBlanks(text, bracket);
        from = bracket + 1;
        if (!IsLineBegin(text, begin)) {
            continue;
        }
        const std::size_t end = FindLineEnd(text, from);
        const std::string_view name = text.substr(from, end - from);
        const std::size_t close = name.rfind(']');
        if (close != std::string_view::npos) {
            return HeaderLine{begin, end, WithoutBlanks(name.substr(0, close))};
        }
        from = end;
    }
    return std::nullopt;
}

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
