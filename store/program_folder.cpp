#include "store/program_folder.h"

namespace quillon::store {
namespace {

constexpr std::string_view kCatalogueExtension = ".DAT";
constexpr std::string_view kDataSetExtension = ".dat";

} // namespace

ProgramFolder::ProgramFolder(const std::filesystem::path& executable)
    : m_path(executable.parent_path())
    , m_executableName(executable.stem().string())
{
}

std::filesystem::path ProgramFolder::AntennaFile(std::string_view maker) const
{
    return AntennaFolder() / std::string(maker).append(kCatalogueExtension);
}

std::filesystem::path ProgramFolder::CoaxFile(std::string_view maker) const
{
    return CoaxFolder() / std::string(maker).append(kCatalogueExtension);
}

std::filesystem::path ProgramFolder::DataSetPath(std::string_view name) const
{
    const std::string file = std::string(m_executableName).append(name).append(kDataSetExtension);
    if (name == "Systems" || name == "Antennas") {
        return m_path / file;
    }
    return name == "Coax" ? CoaxFolder() / file : m_path / "";
}

} // namespace quillon::store
