#include "store/antenna_files.h"

#include "engine/number_text.h"
#include "store/code_page.h"
#include "store/entry_name.h"
#include "store/file_names.h"
#include "store/maker_name.h"
#include "store/profile_batch.h"
#include "store/profile_lines.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quillon::store {
namespace {

constexpr std::string_view kGainType = "GainType";
constexpr std::string_view kGainTypeOfNewModels = "dBd";
constexpr std::string_view kNumEntries = "NumEntries";
constexpr std::string_view kDateCreated = "DateCreated";
constexpr std::string_view kLastModified = "LastModified";

std::string Padded(std::string digits, std::size_t width)
{
    return digits.insert(0, width - std::min(width, digits.size()), '0');
}

/// "MM/DD/YYYY"
std::string DateText(std::chrono::year_month_day date)
{
    return Padded(std::to_string(static_cast<unsigned>(date.month())), 2) + "/" +
           Padded(std::to_string(static_cast<unsigned>(date.day())), 2) + "/" +
           Padded(std::to_string(static_cast<int>(date.year())), 4);
}

/// A maker's section in the index, which is in the code page while names of files are UTF-8.
std::string IndexSection(std::string_view brand)
{
    return FromUtf8(brand).value_or(std::string(brand));
}

bool Contains(std::string_view text, std::string_view part)
{
    const auto isEqual = [](char left, char right) { return UpperCase(left) == UpperCase(right); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), isEqual) != text.end();
}

std::optional<std::string> FirstWith(const INIManager& file, std::string_view part)
{
    const std::vector<std::string> models = file.GetAllSections(file.FileName());
    const auto found = std::ranges::find_if(models, [part](const std::string& name) { return Contains(name, part); });
    return found != models.end() ? std::optional(*found) : std::nullopt;
}

bool WriteIndex(INIManager& index, std::string_view section, std::size_t count, const std::string& date)
{
    const bool isListed = !index.GetValue(section, kNumEntries, "").empty();
    return (isListed ||
            (index.CreateSection(section, index.FileName()) && index.WriteValue(section, kDateCreated, date))) &&
           index.WriteValue(section, kLastModified, date) &&
           index.WriteValue(section, kNumEntries, std::to_string(count));
}

bool WriteBand(INIManager& file, std::string_view model, std::string_view band, std::optional<std::int16_t> tenths)
{
    const std::string key = std::string("Gain").append(band);
    return tenths ? file.WriteValue(model, key, std::to_string(*tenths)) : file.DeleteKey(model, key, file.FileName());
}

} // namespace

std::int16_t ToGainTenths(double decibels)
{
    return engine::ToInteger(decibels * 10);
}

AntennaFiles::AntennaFiles(ProgramFolder folder, ProfileStore& store)
    : m_folder(std::move(folder))
    , m_store(store)
{
}

std::optional<INIManager> AntennaFiles::Open(const std::filesystem::path& file) const
{
    try {
        INIManager manager(m_store);
        manager.FileName(file.string());
        return manager;
    } catch (const std::system_error&) {
        return std::nullopt; // no such file, and no place for one
    }
}

std::optional<INIManager> AntennaFiles::OpenBrand(std::string_view brand) const
{
    return FileNameFault(brand) == NameFault::None ? Open(m_folder.AntennaFile(brand)) : std::nullopt;
}

bool AntennaFiles::BrandFileExists(std::string_view brand) const
{
    return FileNameFault(brand) == NameFault::None &&
           FindName(m_store.Calls(), m_folder.AntennaFile(brand)).state == NameState::There;
}

bool AntennaFiles::CreateBrandFile(std::string_view brand)
{
    return IsMakerName(brand) && OpenBrand(brand);
}

std::optional<std::string> AntennaFiles::FirstModelWith(std::string_view brand, std::string_view model)
{
    const std::optional<INIManager> file = OpenBrand(brand);
    return file ? FirstWith(*file, model) : std::nullopt;
}

bool AntennaFiles::AddModel(std::string_view brand, std::string_view model, IfModelFound ifFound)
{
    std::optional<INIManager> file = OpenBrand(brand);
    if (!file || EntryNameFault(ToUtf8(model)) != NameFault::None) {
        return false;
    }
    ProfileBatch batch(m_store, file->FileName());
    // A file that could not be read for once looks as if it had no models, and the user has not been asked.
    const bool isAllowed = ifFound == IfModelFound::Replace || !FirstWith(*file, model);
    return isAllowed && file->WriteValue(model, kGainType, kGainTypeOfNewModels) && batch.Commit();
}

bool AntennaFiles::SaveChanges(std::string_view brand, std::string_view model, const ModelFigures& figures)
{
    std::optional<INIManager> file = OpenBrand(brand);
    if (!file || model.empty()) {
        return false;
    }
    ProfileBatch batch(m_store, file->FileName());
    bool stands = file->WriteValue(model, kGainType, figures.GainType);
    for (std::size_t place = 0; place < kBandSuffixes.size(); ++place) {
        stands = stands && WriteBand(*file, model, kBandSuffixes.at(place), figures.GainTenths.at(place));
    }
    return stands && batch.Commit();
}

bool AntennaFiles::UpdateIndex(std::string_view brand, std::chrono::year_month_day today)
{
    const std::optional<INIManager> file = BrandFileExists(brand) ? OpenBrand(brand) : std::nullopt;
    std::optional<INIManager> index = file ? Open(m_folder.AntennaIndex()) : std::nullopt;
    if (!index) {
        return false;
    }
    ProfileBatch batch(m_store, index->FileName());
    const std::size_t count = file->GetAllSections(file->FileName()).size();
    return WriteIndex(*index, IndexSection(brand), count, DateText(today)) && batch.Commit();
}

IndexEntry AntennaFiles::ReadIndex(std::string_view brand) const
{
    const PrivateProfile& index = m_store.Read(m_folder.AntennaIndex());
    const auto value = [&index, section = IndexSection(brand)](std::string_view key) {
        return std::string(WithoutQuotes(index.Value(section, key).value_or("")).substr(0, kLongestEntry));
    };
    return {value(kNumEntries), value(kDateCreated), value(kLastModified)};
}

} // namespace quillon::store
