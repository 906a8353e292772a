#pragma once

#include "store/file_calls.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon::reliability {

/// The system's calls, of which those with a path are judged: it has to be a folder of the data or a file right in one.
/// A call that goes anywhere else is noted and not made.
class HostilePathRecorder : public store::FileCalls
{
public:
    /// @param folders  the folders of the data, without a separator at their ends.
    explicit HostilePathRecorder(std::vector<std::string> folders)
        : m_folders(std::move(folders))
    {
    }

    [[nodiscard]] std::size_t Judged() const noexcept { return m_judged; }

    /// Paths outside the folders of the data, in the order of the calls.
    [[nodiscard]] const std::vector<std::string>& Strays() const noexcept { return m_strays; }

    int Open(const char* path, int flags, mode_t mode) override
    {
        return Allows(path) ? FileCalls::Open(path, flags, mode) : -1;
    }

    int Stat(const char* path, struct stat* status) override
    {
        return Allows(path) ? FileCalls::Stat(path, status) : -1;
    }

    int Lstat(const char* path, struct stat* status) override
    {
        return Allows(path) ? FileCalls::Lstat(path, status) : -1;
    }

    ssize_t ReadLink(const char* path, char* buffer, std::size_t length) override
    {
        return Allows(path) ? FileCalls::ReadLink(path, buffer, length) : -1;
    }

    int List(const char* path, std::vector<store::FolderEntry>& entries) override
    {
        return Allows(path) ? FileCalls::List(path, entries) : -1;
    }

    int Rename(const char* from, const char* to) override
    {
        return Allows(from) && Allows(to) ? FileCalls::Rename(from, to) : -1;
    }

    int Unlink(const char* path) override { return Allows(path) ? FileCalls::Unlink(path) : -1; }

    int MayWrite(const char* path) override { return Allows(path) ? FileCalls::MayWrite(path) : -1; }

private:
    [[nodiscard]] bool Allows(std::string_view path)
    {
        ++m_judged;
        const bool isInside = IsInside(path);
        if (!isInside) {
            m_strays.emplace_back(path);
        }
        return isInside;
    }

    [[nodiscard]] bool IsInside(std::string_view path) const
    {
        for (const std::string_view folder : m_folders) {
            if (path == folder ||
                (path.size() == folder.size() + 1 && path.starts_with(folder) && path.back() == '/')) {
                return true;
            }
            if (path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/') {
                const std::string_view name = path.substr(folder.size() + 1);
                if (name.find('/') == std::string_view::npos && name != "." && name != "..") {
                    return true;
                }
            }
        }
        return false;
    }

    std::vector<std::string> m_folders;
    std::size_t m_judged = 0;
    std::vector<std::string> m_strays;
};

} // namespace quillon::reliability
