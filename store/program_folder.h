#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillon::store {

/// The folder that holds the executable and its data, and the names of everything in it.
class ProgramFolder
{
public:
    /// @param executable  full path of the running program; its base name enters the data files' names.
    explicit ProgramFolder(const std::filesystem::path& executable);

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }
    [[nodiscard]] const std::string& ExecutableName() const noexcept { return m_executableName; }
    [[nodiscard]] std::filesystem::path AntennaFolder() const { return m_path / "Antennas"; }
    [[nodiscard]] std::filesystem::path CoaxFolder() const { return m_path / "Coax"; }

private:
    std::filesystem::path m_path;
    std::string m_executableName;
};

} // namespace quillon::store
