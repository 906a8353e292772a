#pragma once

#include <QString>

#include <cstddef>
#include <filesystem>
#include <optional>

namespace quillon::ui {

/// A longer file is not the help. The shipped one has some tens of kilobytes.
inline constexpr std::size_t kLargestHelp = std::size_t{1024} * 1024;

/// How deep the elements of the document may stand in one another: laying them out takes stack for each level.
inline constexpr int kDeepestHelp = 64;

/// Reads the help document: HTML in UTF-8.
/// @return nothing when there is no such regular file, or it is too long, no UTF-8 text, or nested too deep.
[[nodiscard]] std::optional<QString> ReadHelpDocument(const std::filesystem::path& file);

} // namespace quillon::ui
