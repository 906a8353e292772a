#include "store/file_names.h"

#include "store/profile_lines.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <system_error>

namespace quillon::store {
namespace fs = std::filesystem;

namespace {

/// As many as the system itself follows.
constexpr int kMostLinks = 40;

/// @param isWanted  tells of a directory entry whether it is to be listed.
template <class Predicate>
std::vector<std::string> ListNames(const fs::path& folder, const Predicate& isWanted)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (isWanted(*entry)) {
            names.push_back(entry->path().filename().string());
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

bool NameExists(const fs::path& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

fs::path ResolveCase(const fs::path& path)
{
    if (!path.has_filename() || NameExists(path)) {
        return path;
    }
    const fs::path folder = path.has_parent_path() ? ResolveCase(path.parent_path()) : fs::path();
    const std::string name = path.filename().string();
    const auto isSpelling = [&name](const fs::directory_entry& entry) {
        return EqualNames(entry.path().filename().string(), name);
    };
    const std::vector<std::string> spellings = ListNames(folder, isSpelling);
    const auto nearest = std::min_element(spellings.begin(), spellings.end(), [&name](const auto& a, const auto& b) {
        return Differences(name, a) < Differences(name, b);
    });
    return nearest == spellings.end() ? folder / name : folder / *nearest;
}

std::optional<fs::path> FollowLinks(const fs::path& path)
{
    fs::path target = path;
    for (int followed = 0; followed < kMostLinks; ++followed) {
        std::error_code error;
        const fs::path next = fs::read_symlink(target, error);
        if (error) {
            return target;
        }
        target = target.parent_path() / next;
    }
    return std::nullopt;
}

std::vector<std::string> ListFiles(const fs::path& folder)
{
    return ListNames(folder, [](const fs::directory_entry& entry) {
        std::error_code error;
        return !entry.is_directory(error);
    });
}

} // namespace quillon::store
