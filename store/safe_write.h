#pragma once

#include "store/file_calls.h"

#include <filesystem>
#include <span>
#include <string_view>

namespace quillon::store {

/// Parts of a text, to be put one behind the other.
using TextParts = std::span<const std::string_view>;

/// Puts a text in the place of a file's, as a whole or not at all: the text goes to a temporary file beside the target
/// and takes its place only when it has reached the disk. Links are followed: the file behind them is replaced. The
/// file keeps its mode; what is no regular file, or may not be written, is left alone.
/// @return false on any failure. The old file then stands and the temporary one is gone. One exception: when the new
///         file stands, complete, but the system reports that the folder could not be brought to the disk.
[[nodiscard]] bool ReplaceFile(FileCalls& calls, const std::filesystem::path& file, std::string_view text);

/// The same with a text in parts.
[[nodiscard]] bool ReplaceFile(FileCalls& calls, const std::filesystem::path& file, TextParts parts);

/// Where ReplaceFile puts a file's new text first. @param target  a path without links
[[nodiscard]] std::filesystem::path TemporaryFile(const std::filesystem::path& target);

/// Creates an empty file and brings it to the disk, or leaves none. @throws std::system_error when it cannot be created
/// or something stands there already.
void CreateEmptyFile(FileCalls& calls, const std::filesystem::path& file);

} // namespace quillon::store
