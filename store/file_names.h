#pragma once

#include "store/file_calls.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quillon::store {

enum class NameState {
    Missing,
    There,  ///< also a link that leads nowhere
    Unknown ///< the system could not tell
};

struct FoundName
{
    NameState state;
    std::filesystem::path path;

    [[nodiscard]] bool operator==(const FoundName&) const = default;
};

/// Looks for a name, letter case aside, and gives the path as its names are spelled on disk. A name that exists as
/// given stays; otherwise the entry that differs only in the case of ASCII letters takes its place, with several the
/// one with the fewest differences before its extension, then in it, then the first by character code. A path that is
/// not found comes back as given.
[[nodiscard]] FoundName FindName(FileCalls& calls, const std::filesystem::path& path);

/// The path that a file's links lead to at last, which need not exist. @return nothing when links go round in a circle
/// or one of them cannot be read.
[[nodiscard]] std::optional<std::filesystem::path> FollowLinks(FileCalls& calls, const std::filesystem::path& path);

/// Names in a folder of everything but folders, by character code; empty for a folder that cannot be listed. Links
/// that lead nowhere and unreadable files are listed: only opening them shows what they are.
[[nodiscard]] std::vector<std::string> ListFiles(FileCalls& calls, const std::filesystem::path& folder);

} // namespace quillon::store
