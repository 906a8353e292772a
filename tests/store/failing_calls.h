#pragma once

#include "store/file_calls.h"

#include <cerrno>
#include <string>
#include <vector>

namespace quillon::store {

/// The system's calls, counted, of which a chosen one fails.
class FailingCalls : public FileCalls
{
public:
    /// @param number  call that fails, from 1; 0 for none
    void FailAt(int number, int error)
    {
        m_failing = number;
        m_error = error;
        m_made.clear();
    }

    [[nodiscard]] const std::vector<std::string>& Made() const noexcept { return m_made; }

    int Open(const char* path, int flags, mode_t mode) override
    {
        return Fails("open") ? -1 : FileCalls::Open(path, flags, mode);
    }

    ssize_t Read(int descriptor, void* buffer, std::size_t length) override
    {
        return Fails("read") ? -1 : FileCalls::Read(descriptor, buffer, length);
    }

    ssize_t Write(int descriptor, const void* buffer, std::size_t length) override
    {
        return Fails("write") ? -1 : FileCalls::Write(descriptor, buffer, length);
    }

    int Stat(const char* path, struct stat* status) override
    {
        return Fails("stat") ? -1 : FileCalls::Stat(path, status);
    }

    int Lstat(const char* path, struct stat* status) override
    {
        return Fails("lstat") ? -1 : FileCalls::Lstat(path, status);
    }

    int Fstat(int descriptor, struct stat* status) override
    {
        return Fails("fstat") ? -1 : FileCalls::Fstat(descriptor, status);
    }

    int Fchmod(int descriptor, mode_t mode) override
    {
        return Fails("fchmod") ? -1 : FileCalls::Fchmod(descriptor, mode);
    }

    int Fsync(int descriptor) override { return Fails("fsync") ? -1 : FileCalls::Fsync(descriptor); }

    int Close(int descriptor) override
    {
        const int result = FileCalls::Close(descriptor); // a close that reports an error has closed all the same
        return Fails("close") ? -1 : result;
    }

    int Rename(const char* from, const char* to) override { return Fails("rename") ? -1 : FileCalls::Rename(from, to); }

    int Unlink(const char* path) override { return Fails("unlink") ? -1 : FileCalls::Unlink(path); }

    ssize_t ReadLink(const char* path, char* buffer, std::size_t length) override
    {
        return Fails("readlink") ? -1 : FileCalls::ReadLink(path, buffer, length);
    }

    int MayWrite(const char* path) override { return Fails("access") ? -1 : FileCalls::MayWrite(path); }

    int List(const char* path, std::vector<FolderEntry>& entries) override
    {
        return Fails("list") ? -1 : FileCalls::List(path, entries);
    }

private:
    bool Fails(const char* call)
    {
        m_made.emplace_back(call);
        const bool isChosen = static_cast<int>(m_made.size()) == m_failing;
        if (isChosen) {
            errno = m_error;
        }
        return isChosen;
    }

    int m_failing = 0;
    int m_error = 0;
    std::vector<std::string> m_made;
};

} // namespace quillon::store
