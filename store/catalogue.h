#pragma once

#include "store/ini_manager.h"
#include "store/profile_store.h"
#include "store/program_folder.h"

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::store {

/// Band suffixes of the gain keys, from the longest wave to the shortest.
inline constexpr std::array<std::string_view, 14> kBandSuffixes{"160", "80", "60", "40", "30", "20",   "17",
                                                                "15",  "12", "10", "6",  "2",  "1.25", ".70"};

/// What one model's section says of one band; texts of at most 25 characters.
struct BandColumn
{
    std::string covered; ///< "True", "False", or 25 NULs while no key has been seen
    std::string gain;    ///< gain figure as read
    std::string unit;    ///< gain unit as read
};

/// The model loaded last, one column per band in the order of kBandSuffixes. Shared by both systems and the editor.
using BandTable = std::array<BandColumn, 14>;

/// What a model's section says as a whole.
struct ModelSection
{
    BandTable bands;
    std::string gainType; ///< unit of the gains, empty when the file has none
};

/// The two further figures of a cable: jacket's outside diameter in inches and impedance in ohms.
struct CableFigures
{
    std::optional<float> Spec1;
    std::optional<float> Spec2;
};

/// Reads the antenna and coax catalogues. Names are bytes as they stand in files and folders; a name that cannot be
/// part of a file name (see FileNameFault) has no models and never reaches the file system. Each call sees the files as
/// they are now; what cannot be listed or read is empty. As given, asking for a maker without a file creates that file
/// empty, where the folder lets itself be written.
class Catalogue
{
public:
    explicit Catalogue(ProgramFolder folder);
    /// @param store  shared with those who write the catalogues, so that their open batches are seen.
    Catalogue(ProgramFolder folder, std::shared_ptr<ProfileStore> store);

    /// Makers' names joined by "|", by character code: the names of the folder's *.DAT files, letter case aside.
    /// Folders are passed over, and so are files whose names cannot be taken apart again or opened by their name.
    /// @param kind  "Antennas" or "Cables"; empty for any other.
    [[nodiscard]] std::string GetDataFileList(std::string_view kind) const;

    /// Makers by character code.
    [[nodiscard]] std::vector<std::string> LoadAntennaMakers() const;
    /// Models in file order.
    [[nodiscard]] std::vector<std::string> LoadAntennas(std::string_view maker) const;
    /// Unit of the model's gain figures, empty when the file has none.
    [[nodiscard]] std::string LoadAntennaGainType(std::string_view maker, std::string_view model) const;
    /// Fills the band table. @return entries of the band list ("20 Meters"), in file order.
    std::vector<std::string> LoadAntennaGain(std::string_view maker, std::string_view model, BandTable& table) const;
    /// The band table and the unit together; none when something could not be read, which must not be taken for a model
    /// without bands.
    [[nodiscard]] std::optional<ModelSection> LoadModel(std::string_view maker, std::string_view model) const;

    /// Makers by character code.
    [[nodiscard]] std::vector<std::string> LoadCableMakers() const;
    /// Cable types in file order.
    [[nodiscard]] std::vector<std::string> LoadCableTypes(std::string_view maker) const;
    /// Whether the maker, blanks around it aside, is exactly kKFactorMaker; the type does not count, as given.
    [[nodiscard]] static bool IsKFactorMaker(std::string_view maker, std::string_view type);
    /// Reads the nine losses into coaxSpec; a point without a value keeps what it held.
    CableFigures LoadCableLoss(std::string_view maker, std::string_view type, std::array<float, 9>& coaxSpec) const;
    /// Reads K1 and K2 into places 1 and 2 of coaxSpec; a factor without a value keeps what it held.
    CableFigures LoadCableKFactors(std::string_view maker, std::string_view type, std::array<float, 9>& coaxSpec) const;
    /// Reads what the maker's cables have, the two factors or the nine losses; none, and coaxSpec stays, when something
    /// could not be read.
    [[nodiscard]] std::optional<CableFigures> LoadCable(std::string_view maker, std::string_view type,
                                                        std::array<float, 9>& coaxSpec) const;

private:
    [[nodiscard]] std::vector<std::string> MakersWithFiles(std::string_view kind) const;
    [[nodiscard]] std::vector<std::string> LoadMakers(std::string_view kind) const;
    [[nodiscard]] std::optional<INIManager> Open(std::string_view maker, const std::filesystem::path& file) const;

    ProgramFolder m_folder;
    std::shared_ptr<ProfileStore> m_store;
};

} // namespace quillon::store
