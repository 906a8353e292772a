#include "store/ini_manager.h"

#include "store/profile_strings.h"

#include <algorithm>
#include <array>
#include <exception>

namespace quillon::store {
namespace {

constexpr std::size_t kValueBuffer = 255;
constexpr std::size_t kListBuffer = 2048;

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

/// @param names  not closed by a NUL; one empty name when empty.
std::vector<std::string> SplitAtNuls(std::string_view names)
{
    std::vector<std::string> result;
    result.reserve(static_cast<std::size_t>(std::count(names.begin(), names.end(), '\0')) + 1);
    std::size_t nul = names.find('\0');
    while (nul != std::string_view::npos) {
        result.emplace_back(names.substr(0, nul));
        names.remove_prefix(nul + 1);
        nul = names.find('\0');
    }
    result.emplace_back(names);
    return result;
}

using ListBuffer = std::array<char, kListBuffer>;

std::string_view ReadList(ProfileStore& store, OptionalText section, const std::string& fileName, ListBuffer& buffer)
{
    return Trimmed({buffer.data(), GetPrivateProfileString(store, section, {}, "", buffer, fileName)});
}

bool WriteTrapped(ProfileStore& store, std::string_view section, OptionalText key, OptionalText value,
                  const std::string& fileName)
{
    try {
        return WritePrivateProfileString(store, section, key, value, fileName);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

void INIManager::FileName(const std::string& path)
{
    m_store.CreateIfMissing(path);
    m_fileName = path;
}

std::string INIManager::GetValue(std::string_view section, std::string_view key, std::string_view defaultValue) const
{
    try {
        std::array<char, kValueBuffer> buffer{};
        const std::size_t count = GetPrivateProfileString(m_store, section, key, defaultValue, buffer, m_fileName);
        return std::string(Trimmed({buffer.data(), count}));
    } catch (const std::exception&) {
        return {};
    }
}

bool INIManager::WriteValue(std::string_view section, std::string_view key, std::string_view value)
{
    return WriteTrapped(m_store, section, key, value, m_fileName);
}

std::vector<std::string> INIManager::GetAllSections(const std::string& fileName) const
{
    ListBuffer buffer{};
    const std::string_view names = ReadList(m_store, {}, fileName, buffer);
    const std::size_t lastNul = names.rfind('\0');
    if (lastNul == std::string::npos) {
        return {}; // no sections, or one whose name alone is longer than the buffer
    }
    return SplitAtNuls(names.substr(0, lastNul));
}

std::vector<std::string> INIManager::GetAllKeys(std::string_view section, const std::string& fileName) const
{
    ListBuffer buffer{};
    const std::string_view names = ReadList(m_store, section, fileName, buffer);
    if (names.empty()) {
        return {};
    }
    return SplitAtNuls(names.substr(0, names.size() - 1));
}

bool INIManager::CreateSection(std::string_view section, const std::string& fileName)
{
    return WriteTrapped(m_store, section, "", "", fileName);
}

bool INIManager::DeleteSection(std::string_view section, const std::string& fileName)
{
    return WriteTrapped(m_store, section, {}, "", fileName);
}

bool INIManager::DeleteKey(std::string_view section, std::string_view key, const std::string& fileName)
{
    return WriteTrapped(m_store, section, key, {}, fileName);
}

} // namespace quillon::store
