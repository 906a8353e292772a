#include "store/file_names.h"

#include "store/profile_lines.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <dirent.h>
#include <functional>
#include <numeric>
#include <string_view>
#include <utility>

namespace quillon::store {
namespace fs = std::filesystem;

namespace {

/// As many as the system itself follows.
constexpr int kMostLinks = 40;

bool TellsOfNothing(int error)
{
    return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG;
}

NameState Look(FileCalls& calls, const fs::path& path)
{
    struct stat status = {};
    if (calls.Lstat(path.c_str(), &status) == 0) {
        return NameState::There;
    }
    return TellsOfNothing(errno) ? NameState::Missing : NameState::Unknown;
}

/// @param isWanted  tells of a folder's entry whether it is to be listed.
/// @return names by character code, none for a missing folder; nothing at all for one that cannot be listed.
template <class Predicate>
std::optional<std::vector<std::string>> ListNames(FileCalls& calls, const fs::path& folder, const Predicate& isWanted)
{
    std::vector<FolderEntry> entries;
    if (calls.List(folder.empty() ? "." : folder.c_str(), entries) != 0) {
        return TellsOfNothing(errno) ? std::optional<std::vector<std::string>>(std::in_place) : std::nullopt;
    }
    std::vector<std::string_view> names; // which are moved about more quickly than strings
    names.reserve(entries.size());
    for (const FolderEntry& entry : entries) {
        if (isWanted(entry)) {
            names.emplace_back(entry.name);
        }
    }
    std::sort(names.begin(), names.end());
    return std::vector<std::string>(names.begin(), names.end());
}

/// Letters of other case before the extension, and in it: what stands before tells one maker from another.
/// @param other  as long as name.
std::pair<int, int> Differences(std::string_view name, std::string_view other)
{
    const auto count = [](std::string_view one, std::string_view two) {
        return std::inner_product(one.begin(), one.end(), two.begin(), 0, std::plus<>(), std::not_equal_to<>());
    };
    const std::size_t extension = std::min(name.rfind('.'), name.size());
    return {count(name.substr(0, extension), other.substr(0, extension)),
            count(name.substr(extension), other.substr(extension))};
}

bool IsFolder(FileCalls& calls, const fs::path& folder, const FolderEntry& entry)
{
    if (entry.type != DT_LNK && entry.type != DT_UNKNOWN) {
        return entry.type == DT_DIR;
    }
    struct stat status = {};
    return calls.Stat((folder / entry.name).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

FoundName FindName(FileCalls& calls, const fs::path& path)
{
    const NameState state = Look(calls, path);
    if (state != NameState::Missing || !path.has_filename()) {
        return {state, path};
    }
    const FoundName folder =
        path.has_parent_path() ? FindName(calls, path.parent_path()) : FoundName{NameState::There, {}};
    if (folder.state == NameState::Unknown) {
        return {NameState::Unknown, path};
    }
    const std::string name = path.filename().string();
    const auto isSpelling = [&name](const FolderEntry& entry) { return EqualNames(entry.name, name); };
    const auto spellings = ListNames(calls, folder.path, isSpelling);
    if (!spellings) {
        return {NameState::Unknown, path};
    }
    const auto nearest = std::min_element(spellings->begin(), spellings->end(), [&name](const auto& a, const auto& b) {
        return Differences(name, a) < Differences(name, b);
    });
    return nearest == spellings->end() ? FoundName{NameState::Missing, folder.path / name}
                                       : FoundName{NameState::There, folder.path / *nearest};
}

std::optional<fs::path> FollowLinks(FileCalls& calls, const fs::path& path)
{
    fs::path target = path;
    for (int followed = 0; followed <= kMostLinks; ++followed) {
        std::array<char, PATH_MAX> next{};
        const ssize_t length = calls.ReadLink(target.c_str(), next.data(), next.size());
        if (length < 0) {
            const bool isNoLink = errno == EINVAL || TellsOfNothing(errno);
            return isNoLink ? std::optional(target) : std::nullopt;
        }
        target = target.parent_path() / std::string(next.data(), static_cast<std::size_t>(length));
    }
    return std::nullopt;
}

std::vector<std::string> ListFiles(FileCalls& calls, const fs::path& folder)
{
    const auto isFile = [&](const FolderEntry& entry) { return !IsFolder(calls, folder, entry); };
    return ListNames(calls, folder, isFile).value_or(std::vector<std::string>());
}

} // namespace quillon::store
