#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quillon::store {

/// Whether a name stands in its folder: also of a link that leads nowhere.
[[nodiscard]] bool NameExists(const std::filesystem::path& path);

/// The path as its names are spelled on disk. A name that exists as given stays; otherwise the entry that differs only
/// in the case of ASCII letters takes its place, with several the one with the fewest differences, then the first by
/// character code. A path that is not found comes back as given.
[[nodiscard]] std::filesystem::path ResolveCase(const std::filesystem::path& path);

/// The path that a file's links lead to at last, which need not exist. @return nothing when links go round in a circle.
[[nodiscard]] std::optional<std::filesystem::path> FollowLinks(const std::filesystem::path& path);

/// Names in a folder of everything but folders, by character code; empty for a folder that cannot be listed. Links
/// that lead nowhere and unreadable files are listed: only opening them shows what they are.
[[nodiscard]] std::vector<std::string> ListFiles(const std::filesystem::path& folder);

} // namespace quillon::store
