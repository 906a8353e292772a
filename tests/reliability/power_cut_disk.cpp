// A disk with a write cache, whose plug can be pulled at any moment: quillon_reliability_disk FOLDER IMAGE
//
// Below FOLDER appears one file, "disk", that begins as IMAGE; a loop device on it is a block device whose every
// request passes through here, in the order in which the kernel sends it. What is written stands in the cache until the
// kernel asks for a flush, which is what a file system's barriers and fsync come down to at last.
//
// Each line "PATH SEED" on the standard input is a power cut: PATH becomes an image of what the disk would hold after
// it, and "cut N" is answered, N being the number of writes that the cache held. Everything flushed is in the image. Of
// the writes since, by SEED, all are, or none, or, as disks write their caches in an order of their own, any choice of
// their blocks. No write can come in between, so the image is one moment's.

#define FUSE_USE_VERSION 31
#include <fuse3/fuse.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

constexpr std::string_view kName = "/disk";
constexpr std::size_t kBlock = 4096; // bytes that a disk writes as a whole or not at all

/// A write that no flush has followed yet.
struct CachedWrite
{
    std::size_t offset;
    std::vector<char> bytes;
};

/// What a power cut leaves on the disk.
struct Picture
{
    std::vector<char> bytes;
    std::size_t cached; ///< number of writes that were at risk
};

void Put(std::vector<char>& disk, std::size_t offset, std::span<const char> bytes)
{
    std::copy(bytes.begin(), bytes.end(), disk.begin() + static_cast<std::ptrdiff_t>(offset));
}

/// Puts a choice of a write's blocks on the disk.
void PutSome(std::vector<char>& disk, const CachedWrite& write, std::mt19937_64& random)
{
    std::span<const char> rest = write.bytes;
    std::size_t offset = write.offset;
    while (!rest.empty()) {
        const std::size_t length = std::min(kBlock - offset % kBlock, rest.size());
        if (random() % 2 == 0) {
            Put(disk, offset, rest.first(length));
        }
        rest = rest.subspan(length);
        offset += length;
    }
}

class Disk
{
public:
    explicit Disk(std::vector<char> image)
        : m_flushed(image)
        , m_seen(std::move(image))
    {
    }

    [[nodiscard]] std::size_t Size() const noexcept { return m_seen.size(); }

    std::size_t Read(std::span<char> buffer, std::size_t offset)
    {
        const std::scoped_lock lock(m_mutex);
        const std::span<const char> rest = std::span(m_seen).subspan(std::min(offset, m_seen.size()));
        const std::span<const char> wanted = rest.first(std::min(rest.size(), buffer.size()));
        std::copy(wanted.begin(), wanted.end(), buffer.begin());
        return wanted.size();
    }

    bool Write(std::span<const char> bytes, std::size_t offset)
    {
        const std::scoped_lock lock(m_mutex);
        if (offset > m_seen.size() || bytes.size() > m_seen.size() - offset) {
            return false;
        }
        Put(m_seen, offset, bytes);
        m_cached.push_back({offset, {bytes.begin(), bytes.end()}});
        return true;
    }

    void Flush()
    {
        const std::scoped_lock lock(m_mutex);
        for (const CachedWrite& write : m_cached) {
            Put(m_flushed, write.offset, write.bytes);
        }
        m_cached.clear();
    }

    Picture Cut(std::uint64_t seed)
    {
        std::mt19937_64 random(seed);
        const std::scoped_lock lock(m_mutex);
        const auto kind = random() % 4;
        if (kind == 0) {
            return {m_seen, m_cached.size()};
        }
        Picture picture{m_flushed, m_cached.size()};
        for (const CachedWrite& write : m_cached) {
            if (kind != 1) {
                PutSome(picture.bytes, write, random);
            }
        }
        return picture;
    }

private:
    std::mutex m_mutex;
    std::vector<char> m_flushed;
    std::vector<char> m_seen; ///< with what is in the cache
    std::vector<CachedWrite> m_cached;
};

Disk& TheDisk()
{
    return *static_cast<Disk*>(fuse_get_context()->private_data);
}

int GetAttributes(const char* path, struct stat* status, fuse_file_info* /*file*/)
{
    *status = {};
    if (std::string_view(path) == "/") {
        status->st_mode = S_IFDIR | S_IRWXU;
        status->st_nlink = 2;
        return 0;
    }
    if (path != kName) {
        return -ENOENT;
    }
    status->st_mode = S_IFREG | S_IRUSR | S_IWUSR;
    status->st_nlink = 1;
    status->st_size = static_cast<off_t>(TheDisk().Size());
    return 0;
}

int Open(const char* path, fuse_file_info* /*file*/)
{
    return path == kName ? 0 : -ENOENT;
}

int Read(const char* /*path*/, char* buffer, std::size_t length, off_t offset, fuse_file_info* /*file*/)
{
    return static_cast<int>(TheDisk().Read({buffer, length}, static_cast<std::size_t>(offset)));
}

int Write(const char* /*path*/, const char* buffer, std::size_t length, off_t offset, fuse_file_info* /*file*/)
{
    return TheDisk().Write({buffer, length}, static_cast<std::size_t>(offset)) ? static_cast<int>(length) : -ENOSPC;
}

int Flush(const char* /*path*/, int /*onlyData*/, fuse_file_info* /*file*/)
{
    TheDisk().Flush();
    return 0;
}

std::optional<std::vector<char>> ReadImage(const std::filesystem::path& path)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::vector<char> bytes(error ? 0 : size);
    std::ifstream file(path, std::ios::binary);
    const bool isRead = !error && file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return isRead ? std::optional(std::move(bytes)) : std::nullopt;
}

/// Empty blocks stay holes.
bool WriteImage(const std::string& path, const std::vector<char>& bytes)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    bool stands = file >= 0 && ::ftruncate(file, static_cast<off_t>(bytes.size())) == 0;
    for (std::size_t offset = 0; stands && offset < bytes.size(); offset += kBlock) {
        const std::span<const char> block = std::span(bytes).subspan(offset, std::min(kBlock, bytes.size() - offset));
        if (std::any_of(block.begin(), block.end(), [](char byte) { return byte != 0; })) {
            stands = ::pwrite(file, block.data(), block.size(), static_cast<off_t>(offset)) ==
                     static_cast<ssize_t>(block.size());
        }
    }
    return ::close(file) == 0 && stands;
}

void TakeCuts(Disk& disk)
{
    std::string path;
    std::uint64_t seed = 0;
    while (std::cin >> path >> seed) {
        const Picture picture = disk.Cut(seed);
        if (WriteImage(path, picture.bytes)) {
            std::cout << "cut " << picture.cached << std::endl;
        } else {
            std::cout << "no image: " << std::strerror(errno) << std::endl;
        }
    }
}

int Serve(char* program, char* folder, Disk& disk)
{
    fuse_operations operations = {};
    operations.getattr = GetAttributes;
    operations.open = Open;
    operations.read = Read;
    operations.write = Write;
    operations.fsync = Flush;
    std::string foreground = "-f";
    std::string oneThread = "-s";
    std::vector<char*> arguments{program, foreground.data(), oneThread.data(), folder};
    return fuse_main(static_cast<int>(arguments.size()), arguments.data(), &operations, &disk);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::cerr << "usage: quillon_reliability_disk FOLDER IMAGE\n";
        return 2;
    }
    std::optional<std::vector<char>> image = ReadImage(argv[2]);
    if (!image) {
        std::cerr << "no image " << argv[2] << '\n';
        return 1;
    }
    Disk disk(std::move(*image));
    std::thread(TakeCuts, std::ref(disk)).detach(); // it ends with the process
    return Serve(argv[0], argv[1], disk);
}
