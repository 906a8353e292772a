#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::fuzz {

/// A data file as a plain list of lines, written anew for comparison. It shares no code with the store: it takes the
/// whole text apart once, and again after every change, and looks at each line for every question.
class ProfileModel
{
public:
    explicit ProfileModel(std::string text);

    [[nodiscard]] const std::string& Text() const noexcept { return m_text; }

    [[nodiscard]] std::vector<std::string> Sections() const;
    [[nodiscard]] std::vector<std::string> Keys(const std::string& section) const;
    /// A value as it stands, quotes included.
    [[nodiscard]] std::optional<std::string> Value(const std::string& section, const std::string& key) const;
    /// What the program takes a value for: without quotes, or the default of a missing one.
    [[nodiscard]] std::string Answer(const std::string& section, const std::string& key,
                                     const std::string& missing) const;

    void Set(const std::string& section, const std::string& key, const std::string& value);
    void RemoveKey(const std::string& section, const std::string& key);
    void RemoveSection(const std::string& section);

    /// Takes blanks and tabs off both ends.
    [[nodiscard]] static std::string Strip(std::string_view text);
    /// Takes blanks alone off both ends.
    [[nodiscard]] static std::string StripBlanks(std::string_view text);
    [[nodiscard]] static std::string Unquote(const std::string& value);
    [[nodiscard]] static bool IsSame(std::string_view left, std::string_view right);
    /// A list as its names, each with a NUL, cut to what a buffer takes.
    [[nodiscard]] static std::string Joined(const std::vector<std::string>& names, std::size_t buffer);

private:
    enum class Kind { Header, Entry, Other };

    struct Line
    {
        std::string text;
        std::string end;
        Kind kind = Kind::Other;
        std::size_t equals = 0; ///< place of an entry's equals sign
        std::string name;       ///< of a section or key
    };

    /// The lines of a section from behind its header on: places in the list of lines.
    struct Part
    {
        std::size_t header; ///< same as begin for the lines before the first header
        std::size_t begin;
        std::size_t end;
    };

    void Split();
    void Join();
    static void Understand(Line& line);
    [[nodiscard]] std::optional<Part> FindPart(const std::string& section) const;
    [[nodiscard]] std::optional<std::size_t> FindKey(const std::string& section, const std::string& key) const;
    void Insert(std::size_t place, const std::string& text);
    void Erase(std::size_t begin, std::size_t end);

    std::string m_text;
    std::vector<Line> m_lines;
};

} // namespace quillon::fuzz
