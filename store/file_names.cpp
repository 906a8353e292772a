#include "store/file_names.h"

#include "store/profile_lines.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <dirent.h>
#include <functional>
#include <numeric>
#include <string_view>

namespace quillon::store {
namespace fs = std::filesystem;

namespace {

/// As many as the system itself follows.
constexpr int kMostLinks = 40;

/// @param isWanted  tells of a FolderEntry whether it is to be listed.
template <class Predicate>
std::vector<std::string> ListNames(FileCalls& calls, const fs::path& folder, const Predicate& isWanted)
{
    std::vector<FolderEntry> entries;
    if (calls.ListFolder(folder.empty() ? "." : folder.c_str(), entries) != 0) {
        return {};
    }
    std::vector<std::string> names;
    for (FolderEntry& entry : entries) {
        if (isWanted(entry)) {
            names.push_back(std::move(entry.name));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// @param other  as long as name.
int Differences(const std::string& name, const std::string& other)
{
    return std::inner_product(name.begin(), name.end(), other.begin(), 0, std::plus<>(), std::not_equal_to<>());
}

} // namespace

bool NameExists(FileCalls& calls, const fs::path& path)
{
    struct stat status = {};
    return calls.Lstat(path.c_str(), &status) == 0;
}

bool IsFolder(FileCalls& calls, const fs::path& path)
{
    struct stat status = {};
    return calls.Stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

fs::path ResolveCase(FileCalls& calls, const fs::path& path)
{
    if (!path.has_filename() || NameExists(calls, path)) {
        return path;
    }
    const fs::path folder = path.has_parent_path() ? ResolveCase(calls, path.parent_path()) : fs::path();
    const std::string name = path.filename().string();
    const auto isSpelling = [&name](const FolderEntry& entry) { return EqualNames(entry.name, name); };
    const std::vector<std::string> spellings = ListNames(calls, folder, isSpelling);
    const auto nearest = std::min_element(spellings.begin(), spellings.end(), [&name](const auto& a, const auto& b) {
        return Differences(name, a) < Differences(name, b);
    });
    return nearest == spellings.end() ? folder / name : folder / *nearest;
}

std::optional<fs::path> FollowLinks(FileCalls& calls, const fs::path& path)
{
    fs::path target = path;
    std::array<char, PATH_MAX> next{};
    for (int followed = 0; followed < kMostLinks; ++followed) {
        const ssize_t length = calls.ReadLink(target.c_str(), next.data(), next.size());
        if (length < 0) {
            return target;
        }
        target = target.parent_path() / std::string_view(next.data(), static_cast<std::size_t>(length));
    }
    return std::nullopt;
}

std::vector<std::string> ListFiles(FileCalls& calls, const fs::path& folder)
{
    return ListNames(calls, folder, [&calls, &folder](const FolderEntry& entry) {
        const bool mayBeFolder = entry.type == DT_DIR || entry.type == DT_LNK || entry.type == DT_UNKNOWN;
        return !mayBeFolder || !IsFolder(calls, folder / entry.name);
    });
}

} // namespace quillon::store
