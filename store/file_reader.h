#pragma once

#include "store/bytes.h"
#include "store/file_calls.h"

#include <cstddef>
#include <cstdint>

namespace quillon::store {

/// Longer files are neither read nor written.
inline constexpr std::size_t kLargestFile = std::size_t{64} * 1024 * 1024;

/// What tells one state of a file from another.
struct FileStamp
{
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::int64_t modified = 0; ///< ns
    std::int64_t changed = 0;  ///< ns; goes on also when a tool puts the modification time back

    [[nodiscard]] bool operator==(const FileStamp&) const = default;
};

enum class FileState {
    Missing, ///< the first write creates it
    Regular,
    Refused ///< a folder, a device, too large, unreadable: reads as empty and is never written
};

struct FileStatus
{
    FileState state = FileState::Missing;
    FileStamp stamp;
};

/// Looks at a file without opening it.
[[nodiscard]] FileStatus InspectFile(FileCalls& calls, const char* path);

/// Reads a whole file, and only a regular one of at most kLargestFile.
/// @param bytes  the file's bytes; empty unless the state is Regular.
/// @return the state that the bytes belong to.
FileStatus ReadFile(FileCalls& calls, const char* path, Bytes& bytes);

/// The same for a file that InspectFile has just found regular, and not beyond a number of bytes.
FileStatus ReadInspectedFile(FileCalls& calls, const char* path, Bytes& bytes, std::size_t most = kLargestFile);

} // namespace quillon::store
