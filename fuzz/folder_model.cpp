#include "fuzz/folder_model.h"

#include <algorithm>

namespace quillon::fuzz {
namespace {

using Kind = MemoryFiles::Kind;
using Names = std::vector<std::string>;

constexpr std::size_t kListBuffer = 2048;
constexpr std::string_view kEnding = ".DAT";

Names SplitAtNuls(const std::string& names)
{
    Names result(1);
    for (const char character : names) {
        if (character == '\0') {
            result.emplace_back();
        } else {
            result.back() += character;
        }
    }
    return result;
}

Kind KindOf(char letter) noexcept
{
    switch (letter) {
    case 'A':
        return Kind::File;
    case 'L':
        return Kind::Link;
    case 'P':
        return Kind::Pipe;
    default:
        return letter == 'D' ? Kind::Folder : Kind::Missing;
    }
}

} // namespace

Input PutFiles(Input input, MemoryFiles& files)
{
    while (true) {
        Input rest = input;
        const char letter = static_cast<char>(rest.Byte());
        const bool isCoax = letter >= 'a';
        const Kind kind = KindOf(isCoax ? static_cast<char>(letter - 'a' + 'A') : letter);
        if (kind == Kind::Missing) {
            return rest;
        }
        const std::string name(rest.Field());
        const std::string text = rest.FileText();
        input = rest;
        const bool isName = name.find_first_of(std::string_view("/\0", 2)) == std::string::npos && name != "." &&
                            name != ".." && !name.empty();
        const bool isTarget = text.find_first_of(std::string_view("/\0", 2)) == std::string::npos && text != "." &&
                              text != ".." && !text.empty();
        if (isName && (kind != Kind::Link || isTarget)) {
            files.Put((isCoax ? "/q/Coax/" : "/q/Antennas/") + name, text, kind);
        }
    }
}

Names ListedSections(const ProfileModel& file)
{
    const std::string list = ProfileModel::StripBlanks(ProfileModel::Joined(file.Sections(), kListBuffer));
    const std::size_t end = list.rfind('\0');
    return end == std::string::npos ? Names() : SplitAtNuls(list.substr(0, end));
}

Names ListedKeys(const ProfileModel& file, const std::string& section)
{
    const std::string list = ProfileModel::StripBlanks(ProfileModel::Joined(file.Keys(section), kListBuffer));
    return list.empty() ? Names() : SplitAtNuls(list.substr(0, list.size() - 1));
}

bool IsPlainName(std::string_view name)
{
    for (const char character : name) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 32 || code == 127 || character == '/' || character == '\\' || character == '|') {
            return false;
        }
    }
    return !name.empty() && name.back() != ' ' && name.back() != '.';
}

Names MakersIn(const MemoryFiles& files, const std::string& folder)
{
    Names makers;
    for (const std::string& name : files.NamesIn(folder)) {
        const std::size_t length = name.size() - std::min(name.size(), kEnding.size());
        const bool isFile = !files.IsFolder(folder + name) && ProfileModel::IsSame(name.substr(length), ".DAT");
        if (isFile && IsPlainName(name.substr(0, length))) {
            makers.push_back(name.substr(0, length));
        }
    }
    std::sort(makers.begin(), makers.end());
    makers.erase(std::unique(makers.begin(), makers.end()), makers.end());
    return makers;
}

std::string FileOf(const MemoryFiles& files, const std::string& folder, const std::string& maker)
{
    const std::string wanted = maker + std::string(kEnding);
    std::string best = wanted;
    std::size_t fewest = SIZE_MAX;
    Names names = files.NamesIn(folder);
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        if (ProfileModel::IsSame(name, wanted)) {
            std::size_t differences = 0;
            for (std::size_t place = 0; place < name.size(); ++place) {
                // All letters of the extension together weigh less than one before it.
                const std::size_t weight = place < maker.size() ? kEnding.size() : 1;
                differences += name[place] != wanted[place] ? weight : 0;
            }
            best = differences < fewest ? name : best;
            fewest = std::min(fewest, differences);
        }
    }
    return folder + best;
}

} // namespace quillon::fuzz
