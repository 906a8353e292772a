#pragma once

#include "store/file_calls.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::fuzz {

/// A file system in memory that is so quick that a run is the store's own work and little else. It holds the folders
/// /q, /q/Antennas and /q/Coax with plain files, links and pipes in them.
///
/// A call on any path outside these folders is a finding, and so is a file that stays open.
class MemoryFiles : public store::FileCalls
{
public:
    enum class Kind : std::uint8_t { Missing, File, Folder, Link, Pipe };

    static constexpr std::string_view kRoot = "/q";

    MemoryFiles();

    /// Back to the three empty folders.
    void Clear();

    void Put(std::string_view path, std::string_view bytes, Kind kind = Kind::File);
    void SetMode(std::string_view path, mode_t mode);
    /// Bytes of a file, with links followed; empty for what is no file.
    [[nodiscard]] std::string_view Get(std::string_view path) const;
    [[nodiscard]] Kind KindOf(std::string_view path) const;
    /// Whether a folder stands there, or a link to one.
    [[nodiscard]] bool IsFolder(std::string_view path) const;
    /// @param folder  with its slash.
    [[nodiscard]] std::vector<std::string> NamesIn(std::string_view folder) const;

    [[nodiscard]] std::size_t Count() const noexcept { return m_nodes.size(); }

    [[nodiscard]] bool IsAllClosed() const noexcept { return m_open.empty(); }

    /// @param number  call that fails, from 1 on; 0 for none.
    void FailAt(unsigned number, int error) noexcept;

    /// Whether the call chosen by FailAt has come.
    [[nodiscard]] bool HasFailed() const noexcept { return m_hasFailed; }

    /// @param most  bytes that one call reads or writes at most.
    void SetChunk(std::size_t most) noexcept { m_chunk = most; }

    /// @param settled  false: all changes bear a time to come, so that none counts as settled.
    void SetSettled(bool settled) noexcept { m_isSettled = settled; }

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
    struct Node
    {
        std::string path;
        std::string bytes; ///< a link's target
        Kind kind = Kind::Missing;
        mode_t mode = 0;
        ino_t inode = 0;
        long changed = 0; ///< ns
    };

    struct OpenNode
    {
        int descriptor;
        ino_t inode;
        std::size_t offset;
    };

    [[nodiscard]] bool Fails() noexcept;
    [[nodiscard]] Node* Find(std::string_view path) noexcept;
    [[nodiscard]] const Node* Find(std::string_view path) const noexcept;
    /// The node behind a path's links. Sets errno when there is none.
    [[nodiscard]] const Node* Follow(std::string_view path) const;
    [[nodiscard]] Node& Opened(int descriptor);
    [[nodiscard]] OpenNode& Entry(int descriptor);
    Node& Add(std::string_view path, Kind kind, mode_t mode);
    int Describe(const Node* node, struct stat* status) const noexcept;
    int OpenNew(std::string_view path, mode_t mode);
    int Enter(const Node& node);

    std::vector<Node> m_nodes;
    std::vector<OpenNode> m_open;
    ino_t m_lastInode = 0;
    long m_clock = 0;
    int m_lastDescriptor = 0;
    unsigned m_calls = 0;
    unsigned m_failing = 0;
    int m_error = 0;
    bool m_hasFailed = false;
    bool m_isSettled = true;
    std::size_t m_chunk = SIZE_MAX;
};

} // namespace quillon::fuzz
