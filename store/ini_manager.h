#pragma once

#include "store/profile_store.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillon::store {

/// Access to one data file through FileName; the five members that list and delete take the file they work on as an
/// argument instead, as given: callers set FileName, read it back and pass it on.
///
/// The getter and the setters of values trap every error and end with their default result; FileName and the two list
/// readers let errors through to the caller.
class INIManager
{
public:
    /// @param store  must outlive this object.
    explicit INIManager(ProfileStore& store) noexcept
        : m_store(store)
    {
    }

    /// Creates the file empty when there is none, then takes the path.
    /// @throws std::system_error when the file cannot be created, in a missing folder for one.
    void FileName(const std::string& path);

    [[nodiscard]] const std::string& FileName() const noexcept { return m_fileName; }

    /// A value without the blanks around it, at most 254 characters of it; without such a key the default, likewise.
    [[nodiscard]] std::string GetValue(std::string_view section, std::string_view key,
                                       std::string_view defaultValue) const;
    /// @return whether the write succeeded
    bool WriteValue(std::string_view section, std::string_view key, std::string_view value);

    /// Names of all sections in file order. Of a list of more than 2047 characters, a NUL behind each name counted,
    /// the names that stand whole in the first 2046 come back.
    [[nodiscard]] std::vector<std::string> GetAllSections(const std::string& fileName) const;
    /// Names of all keys of a section in file order. A list of more than 2047 characters ends after 2045 of them, so
    /// its last name may come cut.
    [[nodiscard]] std::vector<std::string> GetAllKeys(std::string_view section, const std::string& fileName) const;

    /// Creates a section by an entry with an empty key, which GetAllKeys lists.
    bool CreateSection(std::string_view section, const std::string& fileName);
    /// Removes a section with all its keys.
    bool DeleteSection(std::string_view section, const std::string& fileName);
    bool DeleteKey(std::string_view section, std::string_view key, const std::string& fileName);

private:
    ProfileStore& m_store;
    std::string m_fileName;
};

} // namespace quillon::store
