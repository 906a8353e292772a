#include "store/stale_files.h"

#include "store/file_names.h"
#include "store/maker_name.h"
#include "store/profile_lines.h"
#include "store/safe_write.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBeforeName = ".";
constexpr std::string_view kBehindName = ".tmp";

bool IsFileOf(const fs::path& file, std::string_view name)
{
    return EqualNames(file.filename().string(), name);
}

/// Whether the program replaces files of this name in this folder.
bool IsDataFile(const ProgramFolder& program, const fs::path& folder, std::string_view name)
{
    if (folder == program.Path()) {
        return IsFileOf(program.DataSetPath("Systems"), name);
    }
    const std::string_view maker = name.substr(0, name.rfind('.'));
    return IsFileOf(program.AntennaIndex(), name) ||
           (FileNameFault(maker) == NameFault::None && IsFileOf(program.AntennaFile(maker), name));
}

/// Name of the file that a temporary file's name is made of; empty for any other name.
std::string_view NameInside(std::string_view name)
{
    if (!name.starts_with(kBeforeName)) {
        return {};
    }
    name.remove_prefix(kBeforeName.size());
    if (!name.ends_with(kBehindName)) {
        return {};
    }
    name.remove_suffix(kBehindName.size());
    return name;
}

void RemoveRegularFile(FileCalls& calls, const fs::path& file)
{
    struct stat status = {};
    if (calls.Lstat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode)) {
        calls.Unlink(file.c_str());
    }
}

void RemoveStaleFilesIn(FileCalls& calls, const ProgramFolder& program, const fs::path& folder)
{
    for (const std::string& name : ListFiles(calls, folder)) {
        const std::string_view inside = NameInside(name);
        if (!inside.empty() && IsDataFile(program, folder, inside)) {
            RemoveRegularFile(calls, folder / name);
        }
        const auto target = IsDataFile(program, folder, name) ? FollowLinks(calls, folder / name) : std::nullopt;
        if (target && *target != folder / name) {
            RemoveRegularFile(calls, TemporaryFile(*target));
        }
    }
}

} // namespace

void RemoveStaleFiles(FileCalls& calls, const ProgramFolder& folder)
{
    RemoveStaleFilesIn(calls, folder, folder.Path());
    RemoveStaleFilesIn(calls, folder, folder.AntennaFolder());
}

} // namespace quillon::store
