#include "store/safe_write.h"

#include "store/file_names.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <string>
#include <system_error>

namespace quillon::store {
namespace {

constexpr mode_t kNewFileMode = 0666; // less what the user's mask takes away
constexpr mode_t kModeBits = 07777;
constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

bool WriteAll(FileCalls& calls, int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = calls.Write(descriptor, text.data(), text.size());
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

bool Sync(FileCalls& calls, int descriptor)
{
    int result = calls.Fsync(descriptor);
    while (result != 0 && errno == EINTR) {
        result = calls.Fsync(descriptor);
    }
    return result == 0;
}

/// Some file systems have no syncing of folders and say so; there is nothing to be lost on them.
bool SyncFolder(FileCalls& calls, int descriptor)
{
    return Sync(calls, descriptor) || errno == EINVAL;
}

std::filesystem::path FolderOf(const std::filesystem::path& file)
{
    return file.has_parent_path() ? file.parent_path() : ".";
}

bool RemoveIfThere(FileCalls& calls, const std::string& path)
{
    return calls.Unlink(path.c_str()) == 0 || errno == ENOENT;
}

/// @param mode  mode that the file must get; none for a new file.
bool WriteNewFile(FileCalls& calls, const std::string& path, TextParts parts, std::optional<mode_t> mode)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    OpenFile file(calls, path.c_str(), kFlags, mode.value_or(kNewFileMode));
    const auto isWritten = [&](std::string_view part) { return WriteAll(calls, file.Descriptor(), part); };
    return file && std::ranges::all_of(parts, isWritten) && (!mode || calls.Fchmod(file.Descriptor(), *mode) == 0) &&
           Sync(calls, file.Descriptor()) && file.Close();
}

[[noreturn]] void ThrowSystemError(const std::filesystem::path& file)
{
    throw std::system_error(errno, std::generic_category(), file.string());
}

} // namespace

std::filesystem::path TemporaryFile(const std::filesystem::path& target)
{
    return target.parent_path() / std::string(".").append(target.filename().string()).append(".tmp");
}

bool ReplaceFile(FileCalls& calls, const std::filesystem::path& file, std::string_view text)
{
    return ReplaceFile(calls, file, TextParts(&text, 1));
}

bool ReplaceFile(FileCalls& calls, const std::filesystem::path& file, TextParts parts)
{
    const std::optional<std::filesystem::path> target = FollowLinks(calls, file);
    if (!target) {
        return false;
    }
    std::optional<mode_t> mode;
    struct stat status = {};
    if (calls.Stat(target->c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode) || calls.MayWrite(target->c_str()) != 0) {
            return false;
        }
        mode = status.st_mode & kModeBits;
    } else if (errno != ENOENT) {
        return false;
    }
    const std::string temporary = TemporaryFile(*target);
    const OpenFile folder(calls, FolderOf(*target).c_str(), kFolderFlags);
    if (!folder || !RemoveIfThere(calls, temporary)) {
        return false;
    }
    if (!WriteNewFile(calls, temporary, parts, mode) || calls.Rename(temporary.c_str(), target->c_str()) != 0) {
        RemoveIfThere(calls, temporary);
        return false;
    }
    return SyncFolder(calls, folder.Descriptor());
}

void CreateEmptyFile(FileCalls& calls, const std::filesystem::path& file)
{
    const OpenFile folder(calls, FolderOf(file).c_str(), kFolderFlags);
    if (!folder) {
        ThrowSystemError(file);
    }
    OpenFile created(calls, file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    if (!created) {
        ThrowSystemError(file);
    }
    if (!Sync(calls, created.Descriptor()) || !created.Close() || !SyncFolder(calls, folder.Descriptor())) {
        const int error = errno;
        RemoveIfThere(calls, file);
        errno = error;
        ThrowSystemError(file);
    }
}

} // namespace quillon::store
