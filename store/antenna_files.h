#pragma once

#include "store/catalogue.h"
#include "store/ini_manager.h"
#include "store/profile_store.h"
#include "store/program_folder.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::store {

/// What the antenna index says of a maker, as it stands there; empty for what it does not say.
struct IndexEntry
{
    std::string NumEntries;
    std::string DateCreated;
    std::string LastModified;

    [[nodiscard]] bool operator==(const IndexEntry&) const = default;
};

/// What the editor writes into a model's section.
struct ModelFigures
{
    std::string GainType; ///< "dBd" or "dBi", the unit of all gains
    /// Gains by kBandSuffixes, in tenths of a dB; none where the model does not cover the band.
    std::array<std::optional<std::int16_t>, kBandSuffixes.size()> GainTenths;
};

/// A gain as the catalogue holds it: ten times the decibels, rounded to a whole number, halves to even.
/// @throws ArithmeticError when that does not fit 16 bits.
[[nodiscard]] std::int16_t ToGainTenths(double decibels);

/// What AddModel does when a maker has a model that FirstModelWith finds.
enum class IfModelFound { Refuse, Replace };

/// Writes the antenna catalogue and its index. Each command replaces each file that it changes once. It
/// returns false for a file that cannot be written or a name that cannot be one: the file then stands as before, or,
/// when nothing failed but to make it last, is new as a whole. What to ask the user first is the caller's:
/// BrandFileExists and FirstModelWith give the occasions. Makers' names are bytes as in the names of files; models'
/// names are in the files' code page.
class AntennaFiles
{
public:
    /// @param store  must outlive this object.
    AntennaFiles(ProgramFolder folder, ProfileStore& store);

    /// Whether a maker has a file already, letter case aside.
    [[nodiscard]] bool BrandFileExists(std::string_view brand) const;

    /// Makes a maker's file unless there is one; the models of one that exists stay in it, as given.
    /// @param brand  UTF-8, without MakerNameFault.
    [[nodiscard]] bool CreateBrandFile(std::string_view brand);

    /// The first of a maker's models whose name contains another one, letter case aside: as given, adding "A" meets
    /// "A-99". Models that GetAllSections does not list are not found.
    [[nodiscard]] std::optional<std::string> FirstModelWith(std::string_view brand, std::string_view model);

    /// Adds a model whose gains are in dBd. Of one that exists the gain type is written anew, and the gains stay.
    /// @param model    without EntryNameFault.
    /// @param ifFound  Replace when the user has agreed to it.
    [[nodiscard]] bool AddModel(std::string_view brand, std::string_view model, IfModelFound ifFound);

    /// Writes the gain type, and for each band its gain; the keys of bands that are not covered go.
    [[nodiscard]] bool SaveChanges(std::string_view brand, std::string_view model, const ModelFigures& figures);

    /// Writes the number of a maker's models, as many as GetAllSections lists, and today as the day of the last
    /// change; also as the day of creation while the index has no number for the maker.
    [[nodiscard]] bool UpdateIndex(std::string_view brand, std::chrono::year_month_day today);

    [[nodiscard]] IndexEntry ReadIndex(std::string_view brand) const;

private:
    [[nodiscard]] std::optional<INIManager> Open(const std::filesystem::path& file) const;
    [[nodiscard]] std::optional<INIManager> OpenBrand(std::string_view brand) const;

    ProgramFolder m_folder;
    ProfileStore& m_store;
};

} // namespace quillon::store
