#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace quillon::fuzz {

/// What a file system in memory holds: the folders /q, /q/Antennas and /q/Coax with plain files, links and pipes in
/// them. A path outside these folders is a finding.
class MemoryTree
{
public:
    enum class Kind : std::uint8_t { Missing, File, Folder, Link, Pipe };

    static constexpr std::string_view kRoot = "/q";

    MemoryTree();

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

    /// @param settled  false: all changes bear a time to come, so that none counts as settled.
    void SetSettled(bool settled) noexcept { m_isSettled = settled; }

protected:
    struct Node
    {
        std::string path;
        std::string bytes; ///< a link's target
        Kind kind = Kind::Missing;
        mode_t mode = 0;
        ino_t inode = 0;
        long changed = 0; ///< ns
    };

    static void ExpectInside(std::string_view path);
    [[nodiscard]] static std::string_view FolderOf(std::string_view path) noexcept;

    [[nodiscard]] const std::vector<Node>& Nodes() const noexcept { return m_nodes; }

    [[nodiscard]] Node* Find(std::string_view path) noexcept;
    [[nodiscard]] const Node* Find(std::string_view path) const noexcept;
    [[nodiscard]] Node* Find(ino_t inode) noexcept;
    /// The node behind a path's links. Sets errno when there is none.
    [[nodiscard]] const Node* Follow(std::string_view path) const;
    Node& Add(std::string_view path, Kind kind, mode_t mode);
    void Remove(std::string_view path);

    void Touch(Node& node) noexcept { node.changed = ++m_clock; }

    int Describe(const Node* node, struct stat* status) const noexcept;

private:
    std::vector<Node> m_nodes;
    ino_t m_lastInode = 0;
    long m_clock = 0;
    bool m_isSettled = true;
};

} // namespace quillon::fuzz
