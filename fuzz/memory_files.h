#pragma once

#include "fuzz/memory_tree.h"
#include "store/file_calls.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::fuzz {

/// The calls on a file system in memory that is so quick that a run is the store's own work and little else. A file
/// that stays open is a finding.
class MemoryFiles : public store::FileCalls, public MemoryTree
{
public:
    /// Back to the three empty folders, and no call that fails.
    void Clear();

    [[nodiscard]] bool IsAllClosed() const noexcept { return m_open.empty(); }

    /// @param number  call that fails, from 1 on; 0 for none.
    void FailAt(unsigned number, int error) noexcept;

    /// Whether the call chosen by FailAt has come.
    [[nodiscard]] bool HasFailed() const noexcept { return m_hasFailed; }

    /// @param most  bytes that one call reads or writes at most.
    void SetChunk(std::size_t most) noexcept { m_chunk = most; }

    int Open(const char* path, int flags, mode_t mode) override;
    ssize_t Read(int descriptor, void* buffer, std::size_t length) override;
    ssize_t Write(int descriptor, const void* buffer, std::size_t length) override;
    int Stat(const char* path, struct stat* status) override;
    int Lstat(const char* path, struct stat* status) override;
    int Fstat(int descriptor, struct stat* status) override;
    int Fchmod(int descriptor, mode_t mode) override;
    int Fsync(int descriptor) override;
    int Close(int descriptor) override;
    int Rename(const char* from, const char* to) override;
    int Unlink(const char* path) override;
    int MayWrite(const char* path) override;
    ssize_t ReadLink(const char* path, char* buffer, std::size_t length) override;
    int List(const char* path, std::vector<store::FolderEntry>& entries) override;

private:
    struct OpenNode
    {
        int descriptor;
        ino_t inode;
        std::size_t offset;
    };

    [[nodiscard]] bool Fails() noexcept;
    [[nodiscard]] Node& Opened(int descriptor);
    [[nodiscard]] OpenNode& Entry(int descriptor);
    int OpenNew(std::string_view path, mode_t mode);
    int Enter(const Node& node);

    std::vector<OpenNode> m_open;
    int m_lastDescriptor = 0;
    unsigned m_calls = 0;
    unsigned m_failing = 0;
    int m_error = 0;
    bool m_hasFailed = false;
    std::size_t m_chunk = SIZE_MAX;
};

} // namespace quillon::fuzz
