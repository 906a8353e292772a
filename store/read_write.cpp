#include "store/read_write.h"

#include "store/file_names.h"
#include "store/profile_strings.h"

#include <array>
#include <filesystem>
#include <utility>

namespace quillon::store {
namespace {

constexpr std::size_t kReadBuffer = 255;
constexpr std::size_t kLongestText = 255;

/// What a listing of the path finds: the file of that name, or for a folder's own path any file in it.
bool FindsFile(FileCalls& calls, const std::filesystem::path& path)
{
    if (!path.has_filename()) {
        return !ListFiles(calls, path).empty();
    }
    const FoundName found = FindName(calls, path);
    struct stat status = {};
    const bool isFolder = calls.Stat(found.path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    return found.state == NameState::There && !isFolder;
}

} // namespace

ReadWrite::ReadWrite(ProgramFolder folder, ProfileStore& store, engine::Notifier& notifier)
    : m_folder(std::move(folder))
    , m_store(store)
    , m_notifier(notifier)
{
}

bool ReadWrite::DataFileCheck(std::string_view name)
{
    const std::filesystem::path path = m_folder.DataSetPath(name);
    m_dataFilePath = path.string();
    if (FindsFile(m_store.Calls(), path)) {
        return true;
    }
    m_notifier.Inform("Data file " + m_dataFilePath + " is missing or corrupt.", "Data File Missing");
    return false;
}

std::string ReadWrite::IniRead(std::string_view section, std::string_view key) const
{
    std::array<char, kReadBuffer> buffer{};
    const std::size_t count = GetPrivateProfileString(m_store, section, key, "", buffer, m_dataFilePath);
    return {buffer.data(), count};
}

std::int32_t ReadWrite::IniWrite(std::string_view section, std::string_view key, std::string_view value)
{
    if (value.size() <= kLongestText && key.size() <= kLongestText) {
        return WritePrivateProfileString(m_store, section, key, value, m_dataFilePath) ? 1 : 0;
    }
    m_notifier.Inform("Can't write more than " + std::to_string(kLongestText) + " characters for key or value.", "");
    return -1;
}

} // namespace quillon::store
