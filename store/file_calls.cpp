#include "store/file_calls.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace quillon::store {

int FileCalls::Open(const char* path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

ssize_t FileCalls::Read(int descriptor, void* buffer, std::size_t length)
{
    return ::read(descriptor, buffer, length);
}

ssize_t FileCalls::Write(int descriptor, const void* buffer, std::size_t length)
{
    return ::write(descriptor, buffer, length);
}

int FileCalls::Stat(const char* path, struct stat* status)
{
    return ::stat(path, status);
}

int FileCalls::Lstat(const char* path, struct stat* status)
{
    return ::lstat(path, status);
}

int FileCalls::Fstat(int descriptor, struct stat* status)
{
    return ::fstat(descriptor, status);
}

int FileCalls::Fchmod(int descriptor, mode_t mode)
{
    return ::fchmod(descriptor, mode);
}

int FileCalls::Fsync(int descriptor)
{
    return ::fsync(descriptor);
}

int FileCalls::Close(int descriptor)
{
    return ::close(descriptor);
}

int FileCalls::Rename(const char* from, const char* to)
{
    return ::rename(from, to);
}

int FileCalls::Unlink(const char* path)
{
    return ::unlink(path);
}

ssize_t FileCalls::ReadLink(const char* path, char* buffer, std::size_t length)
{
    return ::readlink(path, buffer, length);
}

int FileCalls::MayWrite(const char* path)
{
    return ::faccessat(AT_FDCWD, path, W_OK, AT_EACCESS);
}

int FileCalls::List(const char* path, std::vector<FolderEntry>& entries)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path), &::closedir);
    if (!folder) {
        return -1;
    }
    const auto next = [&folder] {
        errno = 0; // the end of the folder looks like an error, but for this
        return ::readdir(folder.get());
    };
    while (const dirent* entry = next()) {
        const std::string_view name = &entry->d_name[0];
        if (name != "." && name != "..") {
            entries.push_back({std::string(name), entry->d_type});
        }
    }
    return errno == 0 ? 0 : -1;
}

bool OpenFile::Close()
{
    const int descriptor = std::exchange(m_descriptor, -1);
    // An interrupted close has closed the file all the same.
    return descriptor < 0 || m_calls.Close(descriptor) == 0 || errno == EINTR;
}

} // namespace quillon::store
