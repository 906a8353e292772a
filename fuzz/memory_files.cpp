#include "fuzz/memory_files.h"

#include "fuzz/expect.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>

namespace quillon::fuzz {
namespace {

constexpr mode_t kWriteBit = 0200;

int Fail(int error) noexcept
{
    errno = error;
    return -1;
}

unsigned char EntryType(MemoryFiles::Kind kind) noexcept
{
    switch (kind) {
    case MemoryFiles::Kind::Folder:
        return DT_DIR;
    case MemoryFiles::Kind::Link:
        return DT_LNK;
    case MemoryFiles::Kind::Pipe:
        return DT_UNKNOWN; // as on a file system that does not tell
    default:
        return DT_REG;
    }
}

} // namespace

void MemoryFiles::Clear()
{
    MemoryTree::Clear();
    m_open.clear();
    m_chunk = SIZE_MAX;
    FailAt(0, 0);
}

void MemoryFiles::FailAt(unsigned number, int error) noexcept
{
    m_calls = 0;
    m_failing = number;
    m_error = error;
    m_hasFailed = false;
}

bool MemoryFiles::Fails() noexcept
{
    if (++m_calls != m_failing) {
        return false;
    }
    m_hasFailed = true;
    errno = m_error;
    return true;
}

MemoryFiles::Node& MemoryFiles::Opened(int descriptor)
{
    Node* const node = Find(Entry(descriptor).inode);
    Expect(node != nullptr, "an open file stands");
    return *node;
}

MemoryFiles::OpenNode& MemoryFiles::Entry(int descriptor)
{
    const auto open = std::ranges::find(m_open, descriptor, &OpenNode::descriptor);
    Expect(open != m_open.end(), "calls are made on open files only");
    return *open;
}

int MemoryFiles::Enter(const Node& node)
{
    m_open.push_back({++m_lastDescriptor, node.inode, 0});
    return m_lastDescriptor;
}

int MemoryFiles::OpenNew(std::string_view path, mode_t mode)
{
    if (Find(path) != nullptr) {
        return Fail(EEXIST);
    }
    const Node* const folder = Find(FolderOf(path));
    return folder != nullptr && (folder->mode & kWriteBit) != 0 ? Enter(Add(path, Kind::File, mode)) : Fail(EACCES);
}

int MemoryFiles::Open(const char* path, int flags, mode_t mode)
{
    ExpectInside(path);
    if (Fails()) {
        return -1;
    }
    if ((flags & O_CREAT) != 0) {
        Expect((flags & O_EXCL) != 0, "a file that stands is never opened to be written");
        return OpenNew(path, mode);
    }
    Expect((flags & O_ACCMODE) == O_RDONLY, "a file that stands is never opened to be written");
    const Node* const node = Follow(path);
    if (node == nullptr) {
        return -1;
    }
    if ((flags & O_DIRECTORY) != 0 && node->kind != Kind::Folder) {
        return Fail(ENOTDIR);
    }
    return Enter(*node);
}

ssize_t MemoryFiles::Read(int descriptor, void* buffer, std::size_t length)
{
    OpenNode& open = Entry(descriptor);
    const std::string& bytes = Opened(descriptor).bytes;
    if (Fails()) {
        return -1;
    }
    const std::size_t count = std::min({length, m_chunk, bytes.size() - std::min(bytes.size(), open.offset)});
    bytes.copy(static_cast<char*>(buffer), count, open.offset);
    open.offset += count;
    return static_cast<ssize_t>(count);
}

ssize_t MemoryFiles::Write(int descriptor, const void* buffer, std::size_t length)
{
    Node& node = Opened(descriptor);
    if (Fails()) {
        return -1;
    }
    const std::size_t count = std::min(length, m_chunk);
    node.bytes.append(static_cast<const char*>(buffer), count);
    Touch(node);
    return static_cast<ssize_t>(count);
}

int MemoryFiles::Stat(const char* path, struct stat* status)
{
    ExpectInside(path);
    return Fails() ? -1 : Describe(Follow(path), status);
}

int MemoryFiles::Lstat(const char* path, struct stat* status)
{
    ExpectInside(path);
    if (Fails()) {
        return -1;
    }
    errno = ENOENT;
    return Describe(Find(path), status);
}

int MemoryFiles::Fstat(int descriptor, struct stat* status)
{
    return Fails() ? -1 : Describe(&Opened(descriptor), status);
}

int MemoryFiles::Fchmod(int descriptor, mode_t mode)
{
    if (Fails()) {
        return -1;
    }
    Opened(descriptor).mode = mode;
    return 0;
}

int MemoryFiles::Fsync(int descriptor)
{
    static_cast<void>(Opened(descriptor));
    return Fails() ? -1 : 0;
}

int MemoryFiles::Close(int descriptor)
{
    static_cast<void>(Entry(descriptor));
    std::erase_if(m_open, [descriptor](const OpenNode& open) { return open.descriptor == descriptor; });
    return Fails() ? -1 : 0;
}

int MemoryFiles::Rename(const char* from, const char* to)
{
    ExpectInside(from);
    ExpectInside(to);
    if (Fails()) {
        return -1;
    }
    if (Find(from) == nullptr) {
        return Fail(ENOENT);
    }
    Remove(to);
    Find(from)->path = to;
    return 0;
}

int MemoryFiles::Unlink(const char* path)
{
    ExpectInside(path);
    if (Fails()) {
        return -1;
    }
    const Node* const node = Find(path);
    if (node == nullptr || node->kind == Kind::Folder) {
        return Fail(node == nullptr ? ENOENT : EISDIR);
    }
    Remove(path);
    return 0;
}

int MemoryFiles::MayWrite(const char* path)
{
    ExpectInside(path);
    if (Fails()) {
        return -1;
    }
    const Node* const node = Follow(path);
    return node != nullptr && (node->mode & kWriteBit) != 0 ? 0 : Fail(EACCES);
}

ssize_t MemoryFiles::ReadLink(const char* path, char* buffer, std::size_t length)
{
    ExpectInside(path);
    if (Fails()) {
        return -1;
    }
    const Node* const node = Find(path);
    return node != nullptr && node->kind == Kind::Link ? static_cast<ssize_t>(node->bytes.copy(buffer, length))
                                                       : Fail(EINVAL);
}

int MemoryFiles::List(const char* path, std::vector<store::FolderEntry>& entries)
{
    const std::string folder = std::string_view(path).ends_with('/') ? std::string(path, std::strlen(path) - 1) : path;
    ExpectInside(folder);
    const Node* const node = Find(folder);
    if (Fails()) {
        return -1;
    }
    if (node == nullptr || node->kind != Kind::Folder) {
        return Fail(ENOTDIR);
    }
    for (const Node& other : Nodes()) {
        if (FolderOf(other.path) == folder) {
            entries.push_back({other.path.substr(folder.size() + 1), EntryType(other.kind)});
        }
    }
    return 0;
}

} // namespace quillon::fuzz
