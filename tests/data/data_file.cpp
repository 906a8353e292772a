#include "tests/data/data_file.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace quillon::data_tests {

namespace {

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

void TakeLine(DataFile& file, const std::string& line, int number)
{
    if (line.empty()) {
        return;
    }
    const auto equals = line.find('=');
    if (line.front() == '[' && line.back() == ']') {
        file.sections.push_back({line.substr(1, line.size() - 2), {}});
    } else if (equals != std::string::npos && !file.sections.empty()) {
        file.sections.back().entries.emplace_back(line.substr(0, equals), line.substr(equals + 1));
    } else {
        file.strayLines.push_back(std::to_string(number) + ": " + line);
    }
}

} // namespace

std::optional<std::string> Section::Value(std::string_view key) const
{
    const auto found = std::ranges::find(entries, key, &std::pair<std::string, std::string>::first);
    return found == entries.end() ? std::nullopt : std::optional(found->second);
}

std::filesystem::path DataFolder()
{
    return QUILLON_DATA_FOLDER;
}

std::string BytesOf(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<std::size_t> PlacesThatAreNoPlainText(std::string_view bytes)
{
    std::vector<std::size_t> places;
    std::size_t place = 0;
    while (place < bytes.size()) {
        if (bytes.substr(place, 2) == "\r\n") {
            ++place;
        } else if (bytes[place] < ' ' || bytes[place] > '~') {
            places.push_back(place);
        }
        ++place;
    }
    if (!bytes.ends_with("\r\n")) {
        places.push_back(bytes.size());
    }
    return places;
}

DataFile ReadDataFile(const std::filesystem::path& path)
{
    DataFile file{path, {}, {}};
    std::istringstream lines(BytesOf(path));
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        TakeLine(file, line, ++number);
    }
    return file;
}

std::vector<std::filesystem::path> CatalogueFiles(std::string_view kind)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(DataFolder() / kind)) {
        if (entry.path().extension() == ".DAT") {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    return files;
}

bool IsWholeNumber(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, IsDigit);
}

bool IsDecimal(std::string_view text)
{
    const auto point = text.find('.');
    return point == std::string_view::npos
               ? IsWholeNumber(text)
               : IsWholeNumber(text.substr(0, point)) && IsWholeNumber(text.substr(point + 1));
}

std::string FileTestName(const std::filesystem::path& path)
{
    std::string name = path.stem().string();
    std::ranges::replace_if(
        name, [](unsigned char letter) { return std::isalnum(letter) == 0; }, '_');
    return name;
}

} // namespace quillon::data_tests
