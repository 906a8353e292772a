#include "store/file_reader.h"

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
bool FillFrom(FileCalls& calls, int descriptor, std::string& buffer)
{
    std::size_t length = 0;
    while (length < buffer.size()) {
        const ssize_t count = calls.Read(descriptor, buffer.data() + length, buffer.size() - length);
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

FileStatus ReadFile(FileCalls& calls, const char* path, std::string& bytes)
{
    bytes.clear();
    FileStatus found = InspectFile(calls, path);
    if (found.state != FileState::Regular) {
        return found;
    }
    // Another thing may stand there by now: opening a pipe must not wait for its writer.
    const OpenFile file(calls, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    struct stat status = {};
    if (!file || calls.Fstat(file.Descriptor(), &status) != 0) {
        return {FileState::Refused, {}};
    }
    found = StatusOf(status);
    if (found.state == FileState::Regular) {
        bytes.resize(static_cast<std::size_t>(status.st_size));
        if (!FillFrom(calls, file.Descriptor(), bytes)) {
            bytes.clear();
            found.state = FileState::Refused;
        }
    }
    return found;
}

} // namespace quillon::store
