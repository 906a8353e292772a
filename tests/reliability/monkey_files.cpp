#include "tests/reliability/monkey_files.h"

#include <array>
#include <cctype>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/inotify.h>
#include <unistd.h>

namespace quillon::test {

namespace {

constexpr std::array kFolders{"", "Antennas/", "Coax/", "Help/"};

std::string Lower(std::string text)
{
    for (char& character : text) {
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
    return text;
}

std::optional<std::string> Bytes(const std::filesystem::path& file)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        return std::nullopt;
    }
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// ".NAME.tmp" beside NAME. @return NAME with its folder; nothing for the name of any other file.
std::optional<std::string> TargetOf(const std::filesystem::path& file)
{
    const std::string name = file.filename().string();
    if (name.size() < 6 || !name.starts_with('.') || !name.ends_with(".tmp")) {
        return std::nullopt;
    }
    return (file.parent_path() / name.substr(1, name.size() - 5)).string();
}

} // namespace

FileWatch::FileWatch(std::filesystem::path folder)
    : m_folder(std::move(folder))
    , m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    for (const char* name : kFolders) {
        constexpr std::uint32_t kAnyChange =
            IN_CREATE | IN_DELETE | IN_MODIFY | IN_MOVED_FROM | IN_MOVED_TO | IN_ATTRIB | IN_ONLYDIR;
        const int watch = ::inotify_add_watch(m_descriptor, (m_folder / name).c_str(), kAnyChange);
        if (watch < 0) {
            throw std::runtime_error("no look at " + (m_folder / name).string());
        }
        m_folders[watch] = name;
    }
    Accept();
}

FileWatch::~FileWatch()
{
    ::close(m_descriptor);
}

void FileWatch::Permit(const std::vector<std::string>& files)
{
    for (const std::string& file : files) {
        m_permitted.insert(Lower(file));
    }
}

void FileWatch::Revoke()
{
    m_permitted.clear();
}

std::vector<std::string> FileWatch::Changes() const
{
    std::vector<std::string> changes;
    alignas(inotify_event) std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t count = ::read(m_descriptor, buffer.data(), buffer.size());
        if (count <= 0) {
            return changes;
        }
        for (std::size_t place = 0; place < static_cast<std::size_t>(count);) {
            inotify_event event{};
            std::memcpy(&event, &buffer.at(place), sizeof event);
            if (event.len > 0) {
                changes.push_back(m_folders.at(event.wd) + &buffer.at(place + sizeof event));
            }
            place += sizeof event + event.len;
        }
    }
}

void FileWatch::TakeBytes(const std::string& file)
{
    if (auto bytes = Bytes(m_folder / file)) {
        m_bytes[file] = *bytes;
    } else {
        m_bytes.erase(file);
    }
}

std::optional<std::string> FileWatch::Judge(const std::string& file)
{
    if (const auto target = TargetOf(file)) {
        if (std::filesystem::exists(m_folder / file)) {
            return file + " is left behind";
        }
        return m_permitted.contains(Lower(*target)) ? std::nullopt
                                                    : std::optional(file + " came and went without a command");
    }
    // As given, asking for a maker without a file creates it, empty.
    const auto bytes = Bytes(m_folder / file);
    const bool isMadeEmpty = !m_bytes.contains(file) && bytes && bytes->empty();
    if (!isMadeEmpty && !m_permitted.contains(Lower(file))) {
        return file + " changed without a command";
    }
    if (!bytes) {
        return file + " is gone after a command";
    }
    TakeBytes(file);
    return std::nullopt;
}

std::optional<std::string> FileWatch::Check()
{
    for (const std::string& file : Changes()) {
        if (auto wrong = Judge(file)) {
            return wrong;
        }
    }
    return std::nullopt;
}

void FileWatch::Accept()
{
    static_cast<void>(Changes());
    m_bytes.clear();
    for (const char* folder : kFolders) {
        for (const auto& entry : std::filesystem::directory_iterator(m_folder / folder)) {
            TakeBytes(folder + entry.path().filename().string());
        }
    }
}

std::string FileWatch::CompareBytes() const
{
    std::string different;
    for (const auto& [file, bytes] : m_bytes) {
        if (Bytes(m_folder / file) != std::optional(bytes)) {
            different += file + " is not as it was\n";
        }
    }
    return different;
}

} // namespace quillon::test
