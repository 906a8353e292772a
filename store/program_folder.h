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

    /// Index of the antenna catalogue files.
    [[nodiscard]] std::filesystem::path AntennaIndex() const { return AntennaFolder() / "ANTENNAS.ZEP"; }

    [[nodiscard]] std::filesystem::path HelpFile() const { return Path() / "Help" / "Quillon.hlp"; }

    /// Catalogue file of a maker. @param maker  a name without FileNameFault
    [[nodiscard]] std::filesystem::path AntennaFile(std::string_view maker) const;
    [[nodiscard]] std::filesystem::path CoaxFile(std::string_view maker) const;

    /// File of a data set by its exact name: "Systems", "Antennas" or "Coax".
    /// @return for any other name the program folder itself, with a separator at its end.
    [[nodiscard]] std::filesystem::path DataSetPath(std::string_view name) const;

private:
    std::filesystem::path m_path;
    std::string m_executableName;
};

} // namespace quillon::store
