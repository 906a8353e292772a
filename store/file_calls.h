#pragma once

#include <cstddef>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace quillon::store {

/// A name in a folder, with its kind as far as the folder itself tells it.
struct FolderEntry
{
    std::string name;
    unsigned char type; ///< DT_REG, DT_DIR, DT_LNK ...; DT_UNKNOWN where the file system keeps no kinds
};

/// The system's calls on files, as they are. One place to step in: tests make each of them fail in turn.
class FileCalls
{
public:
    virtual ~FileCalls() = default;

    virtual int Open(const char* path, int flags, mode_t mode);
    virtual ssize_t Read(int descriptor, void* buffer, std::size_t length);
    virtual ssize_t Write(int descriptor, const void* buffer, std::size_t length);
    virtual int Stat(const char* path, struct stat* status);
    virtual int Lstat(const char* path, struct stat* status);
    virtual int Fstat(int descriptor, struct stat* status);
    virtual int Fchmod(int descriptor, mode_t mode);
    virtual int Fsync(int descriptor);
    virtual int Close(int descriptor);
    virtual int Rename(const char* from, const char* to);
    virtual int Unlink(const char* path);
    virtual ssize_t ReadLink(const char* path, char* buffer, std::size_t length);
    /// 0 when the program may write the file.
    virtual int MayWrite(const char* path);
    /// Adds everything in a folder but "." and ".." to the entries. @return 0 when it was listed to its end.
    virtual int List(const char* path, std::vector<FolderEntry>& entries);
};

/// An open file; closed at the latest when the object goes.
class OpenFile
{
public:
    OpenFile(FileCalls& calls, const char* path, int flags, mode_t mode = 0)
        : m_calls(calls)
        , m_descriptor(calls.Open(path, flags, mode))
    {
    }

    ~OpenFile() { Close(); }

    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] explicit operator bool() const noexcept { return m_descriptor >= 0; }

    [[nodiscard]] int Descriptor() const noexcept { return m_descriptor; }

    /// @return false when the system reports that something written was lost. Closing again does nothing.
    bool Close();

private:
    FileCalls& m_calls;
    int m_descriptor;
};

} // namespace quillon::store
