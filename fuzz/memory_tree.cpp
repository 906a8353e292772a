#include "fuzz/memory_tree.h"

#include "fuzz/expect.h"

#include <algorithm>
#include <cerrno>

namespace quillon::fuzz {
namespace {

constexpr mode_t kFolderMode = 0755;
constexpr mode_t kFileMode = 0644;
constexpr int kMostLinks = 40;

bool IsKnownFolder(std::string_view path) noexcept
{
    return path == "/q" || path == "/q/Antennas" || path == "/q/Coax";
}

mode_t TypeBits(MemoryTree::Kind kind) noexcept
{
    switch (kind) {
    case MemoryTree::Kind::Folder:
        return S_IFDIR;
    case MemoryTree::Kind::Link:
        return S_IFLNK;
    case MemoryTree::Kind::Pipe:
        return S_IFIFO;
    default:
        return S_IFREG;
    }
}

} // namespace

MemoryTree::MemoryTree()
{
    Clear();
}

void MemoryTree::Clear()
{
    m_nodes.clear();
    m_isSettled = true;
    for (const std::string_view folder : {"/q", "/q/Antennas", "/q/Coax"}) {
        Add(folder, Kind::Folder, kFolderMode);
    }
}

void MemoryTree::Put(std::string_view path, std::string_view bytes, Kind kind)
{
    ExpectInside(path);
    Node* node = Find(path);
    if (node == nullptr) {
        node = &Add(path, kind, kFileMode);
    }
    node->kind = kind;
    node->bytes = bytes;
    Touch(*node);
}

void MemoryTree::SetMode(std::string_view path, mode_t mode)
{
    if (Node* const node = Find(path)) {
        node->mode = mode;
    }
}

std::string_view MemoryTree::Get(std::string_view path) const
{
    const Node* const node = Follow(path);
    return node != nullptr && node->kind == Kind::File ? std::string_view(node->bytes) : std::string_view();
}

MemoryTree::Kind MemoryTree::KindOf(std::string_view path) const
{
    const Node* const node = Find(path);
    return node != nullptr ? node->kind : Kind::Missing;
}

bool MemoryTree::IsFolder(std::string_view path) const
{
    const Node* const node = Follow(path);
    return node != nullptr && node->kind == Kind::Folder;
}

std::vector<std::string> MemoryTree::NamesIn(std::string_view folder) const
{
    std::vector<std::string> names;
    for (const Node& node : m_nodes) {
        if (node.path.size() > folder.size() && node.path.starts_with(folder)) {
            names.push_back(node.path.substr(folder.size()));
        }
    }
    return names;
}

void MemoryTree::ExpectInside(std::string_view path)
{
    const std::string_view name = path.substr(path.rfind('/') + 1);
    const bool isInside = IsKnownFolder(FolderOf(path)) && name != "." && name != "..";
    Expect(IsKnownFolder(path) || isInside, "every call stays within the program's folder");
}

std::string_view MemoryTree::FolderOf(std::string_view path) noexcept
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

MemoryTree::Node* MemoryTree::Find(std::string_view path) noexcept
{
    const auto found = std::ranges::find(m_nodes, path, &Node::path);
    return found != m_nodes.end() ? &*found : nullptr;
}

const MemoryTree::Node* MemoryTree::Find(std::string_view path) const noexcept
{
    const auto found = std::ranges::find(m_nodes, path, &Node::path);
    return found != m_nodes.end() ? &*found : nullptr;
}

MemoryTree::Node* MemoryTree::Find(ino_t inode) noexcept
{
    const auto found = std::ranges::find(m_nodes, inode, &Node::inode);
    return found != m_nodes.end() ? &*found : nullptr;
}

const MemoryTree::Node* MemoryTree::Follow(std::string_view path) const
{
    ExpectInside(path);
    std::string target(path);
    for (int followed = 0; followed <= kMostLinks; ++followed) {
        const Node* const node = Find(target);
        if (node == nullptr || node->kind != Kind::Link) {
            errno = ENOENT;
            return node;
        }
        const std::string_view folder = FolderOf(target);
        target = std::string(folder).append("/").append(node->bytes);
    }
    errno = ELOOP;
    return nullptr;
}

MemoryTree::Node& MemoryTree::Add(std::string_view path, Kind kind, mode_t mode)
{
    m_nodes.push_back({std::string(path), "", kind, mode, ++m_lastInode, ++m_clock});
    return m_nodes.back();
}

void MemoryTree::Remove(std::string_view path)
{
    std::erase_if(m_nodes, [path](const Node& node) { return node.path == path; });
}

int MemoryTree::Describe(const Node* node, struct stat* status) const noexcept
{
    if (node == nullptr) {
        return -1;
    }
    constexpr time_t kLongHence = 4'000'000'000;
    *status = {};
    status->st_mode = TypeBits(node->kind) | node->mode;
    status->st_ino = node->inode;
    status->st_size = static_cast<off_t>(node->bytes.size());
    status->st_mtim.tv_nsec = node->changed;
    status->st_ctim = {m_isSettled ? 0 : kLongHence, node->changed};
    return 0;
}

} // namespace quillon::fuzz
