#pragma once

#include <filesystem>

namespace quillon::ui {

/// Keeps a second copy of the program from the same folder away. The kernel releases the lock when the process dies, so
/// a crash never locks its user out.
class SingleInstance
{
public:
    /// Tries to take the lock of a folder. A folder that cannot be locked (read-only medium) does not keep the program
    /// away.
    explicit SingleInstance(const std::filesystem::path& folder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// @return whether another process holds the folder's lock.
    [[nodiscard]] bool IsSecondCopy() const noexcept { return m_second; }

private:
    int m_descriptor = -1;
    bool m_second = false;
};

} // namespace quillon::ui
