#include "store/file_reader.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace quillon::store {
namespace {

std::int64_t Nanoseconds(const timespec& time) noexcept
{
    constexpr std::int64_t kPerSecond = 1'000'000'000;
    return std::int64_t{time.tv_sec} * kPerSecond + time.tv_nsec;
}

FileStatus StatusOf(const struct stat& status)
{
    const bool isReadable = S_ISREG(status.st_mode) && static_cast<std::size_t>(status.st_size) <= kLargestFile;
    return {isReadable ? FileState::Regular : FileState::Refused,
            {status.st_dev, status.st_ino, status.st_size, Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim)}};
}

/// Fills the buffer. @return false on a read error, or when the file is cut meanwhile: somebody is writing it, and a
/// part of it must not pass for the whole.
bool FillFrom(FileCalls& calls, int descriptor, Bytes& buffer)
{
    const std::size_t size = buffer.View().size();
    std::size_t length = 0;
    while (length < size) {
        const ssize_t count = calls.Read(descriptor, buffer.Data() + length, size - length);
        if (count > 0) {
            length += static_cast<std::size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace

FileStatus InspectFile(FileCalls& calls, const char* path)
{
    struct stat status = {};
    if (calls.Stat(path, &status) == 0) {
        return StatusOf(status);
    }
    return {errno == ENOENT || errno == ENOTDIR ? FileState::Missing : FileState::Refused, {}};
}

FileStatus ReadFile(FileCalls& calls, const char* path, Bytes& bytes)
{
    bytes = {};
    const FileStatus found = InspectFile(calls, path);
    return found.state == FileState::Regular ? ReadInspectedFile(calls, path, bytes) : found;
}

FileStatus ReadInspectedFile(FileCalls& calls, const char* path, Bytes& bytes, std::size_t most)
{
    bytes = {};
    // Another thing may stand there by now: opening a pipe must not wait for its writer.
    const OpenFile file(calls, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat status = {};
    if (!file || calls.Fstat(file.Descriptor(), &status) != 0) {
        return {FileState::Refused, {}};
    }
    FileStatus found = StatusOf(status);
    if (found.state == FileState::Regular) {
        bytes = Bytes(std::min(static_cast<std::size_t>(status.st_size), most));
        if (!FillFrom(calls, file.Descriptor(), bytes)) {
            bytes = {};
            found.state = FileState::Refused;
        }
    }
    return found;
}

} // namespace quillon::store
