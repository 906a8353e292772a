#pragma once

#include <charconv>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon::data_tests {

/// One section of a shipped file, its keys and values exactly as they stand.
struct Section
{
    std::string name;
    std::vector<std::pair<std::string, std::string>> entries;

    /// @return the value of a key, letter for letter; nothing when the section has no such key.
    [[nodiscard]] std::optional<std::string> Value(std::string_view key) const;
};

/// A shipped file read without the program's own reader, which forgives more than shipped data should need.
struct DataFile
{
    std::filesystem::path path;
    std::vector<Section> sections;
    std::vector<std::string> strayLines; ///< lines that are no header, no entry and not empty, with their numbers

    /// @return the file's name without ".DAT": the maker as the lists show it.
    [[nodiscard]] std::string Maker() const { return path.stem().string(); }
};

/// The shipped data folder.
[[nodiscard]] std::filesystem::path DataFolder();

/// @return all bytes of a file.
[[nodiscard]] std::string BytesOf(const std::filesystem::path& path);

/// @return the places of all bytes that are neither printable ASCII nor part of a CR LF pair, and of a missing last
/// one.
[[nodiscard]] std::vector<std::size_t> PlacesThatAreNoPlainText(std::string_view bytes);

/// Splits a file into sections.
[[nodiscard]] DataFile ReadDataFile(const std::filesystem::path& path);

/// The catalogue files of a folder, sorted by name. @param kind  "Antennas" or "Coax"
[[nodiscard]] std::vector<std::filesystem::path> CatalogueFiles(std::string_view kind);

/// @return whether a text is a plain decimal number: digits, and at most one point between digits.
[[nodiscard]] bool IsDecimal(std::string_view text);

/// @return the number that a decimal text stands for, in whatever language the tests run; 0 for any other text.
template <class Number>
[[nodiscard]] Number NumberOf(std::string_view text)
{
    Number number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// @return whether a text is a whole number without sign.
[[nodiscard]] bool IsWholeNumber(std::string_view text);

/// Test name of a file: its letters and digits, other characters as "_".
[[nodiscard]] std::string FileTestName(const std::filesystem::path& path);

} // namespace quillon::data_tests
