#include "store/catalogue.h"

#include "engine/coax_model.h"
#include "engine/number_text.h"
#include "store/file_names.h"
#include "store/maker_name.h"
#include "store/profile_lines.h"
#include "store/sort_arrays.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quillon::store {
namespace {

constexpr std::string_view kPattern = ".DAT";
constexpr std::size_t kCellWidth = 25;

std::optional<float> ReadFigure(const INIManager& file, std::string_view type, const std::string& key)
{
    const std::string text = file.GetValue(type, key, "");
    return text.empty() ? std::nullopt : std::optional(engine::NumberFromText(text));
}

void ReadInto(float& figure, const INIManager& file, std::string_view type, const std::string& key)
{
    figure = ReadFigure(file, type, key).value_or(figure);
}

CableFigures ReadSpecs(const INIManager& file, std::string_view type)
{
    return {ReadFigure(file, type, "Spec1"), ReadFigure(file, type, "Spec2")};
}

void Clear(BandTable& table)
{
    const std::string blank(kCellWidth, '\0');
    table.fill({blank, blank, blank});
}

void SetUnit(BandTable& table, const std::string& unit)
{
    for (BandColumn& column : table) {
        column.unit = unit;
    }
}

bool IsGainKey(std::string_view key, std::string_view band)
{
    return EqualNames(key, std::string("Gain").append(band));
}

std::vector<std::string> NonEmpty(std::vector<std::string> names)
{
    std::erase_if(names, [](const std::string& name) { return name.empty(); });
    return names;
}

} // namespace

Catalogue::Catalogue(ProgramFolder folder)
    : Catalogue(std::move(folder), std::make_shared<ProfileStore>())
{
}

Catalogue::Catalogue(ProgramFolder folder, std::shared_ptr<ProfileStore> store)
    : m_folder(std::move(folder))
    , m_store(std::move(store))
{
}

std::vector<std::string> Catalogue::MakersWithFiles(std::string_view kind) const
{
    if (kind != "Antennas" && kind != "Cables") {
        return {};
    }
    const std::filesystem::path folder = kind == "Antennas" ? m_folder.AntennaFolder() : m_folder.CoaxFolder();
    std::vector<std::string> makers;
    for (const std::string& file : ListFiles(m_store->Calls(), folder)) {
        const std::size_t length = file.size() - std::min(file.size(), kPattern.size());
        const std::string_view maker = std::string_view(file).substr(0, length);
        const bool isMakerFile = EqualNames(std::string_view(file).substr(length), kPattern);
        if (isMakerFile && FileNameFault(maker) == NameFault::None) {
            makers.emplace_back(maker);
        }
    }
    return makers;
}

std::string Catalogue::GetDataFileList(std::string_view kind) const
{
    std::string list;
    for (const std::string& maker : MakersWithFiles(kind)) {
        list.append(maker).push_back('|');
    }
    return list.substr(0, list.find_last_not_of('|') + 1);
}

std::vector<std::string> Catalogue::LoadMakers(std::string_view kind) const
{
    std::vector<std::string> makers = MakersWithFiles(kind);
    SortArrays(makers); // the files came in the order of their whole names
    // Files that differ in the case of their extension alone are one maker's.
    makers.erase(std::unique(makers.begin(), makers.end()), makers.end());
    return makers;
}

std::optional<INIManager> Catalogue::Open(std::string_view maker, const std::filesystem::path& file) const
{
    if (FileNameFault(maker) != NameFault::None) {
        return std::nullopt;
    }
    try {
        INIManager manager(*m_store);
        manager.FileName(file.string());
        return manager;
    } catch (const std::system_error&) {
        return std::nullopt; // no such file, and no place for one
    }
}

std::vector<std::string> Catalogue::LoadAntennaMakers() const
{
    return LoadMakers("Antennas");
}

std::vector<std::string> Catalogue::LoadAntennas(std::string_view maker) const
{
    const std::optional<INIManager> file = Open(maker, m_folder.AntennaFile(maker));
    return file ? NonEmpty(file->GetAllSections(file->FileName())) : std::vector<std::string>();
}

std::string Catalogue::LoadAntennaGainType(std::string_view maker, std::string_view model) const
{
    const std::optional<INIManager> file = Open(maker, m_folder.AntennaFile(maker));
    return file ? file->GetValue(model, "GainType", "") : std::string();
}

std::vector<std::string> Catalogue::LoadAntennaGain(std::string_view maker, std::string_view model,
                                                    BandTable& table) const
{
    Clear(table);
    std::vector<std::string> bands;
    const std::optional<INIManager> file = model.empty() ? std::nullopt : Open(maker, m_folder.AntennaFile(maker));
    if (!file) {
        return bands;
    }
    for (const std::string& key : file->GetAllKeys(model, file->FileName())) {
        if (EqualNames(key, "GainType")) {
            SetUnit(table, file->GetValue(model, key, "").substr(0, kCellWidth));
        }
        for (std::size_t place = 0; place < table.size(); ++place) {
            BandColumn& column = table.at(place);
            if (IsGainKey(key, kBandSuffixes.at(place))) {
                column.covered = "True";
                column.gain = file->GetValue(model, key, "").substr(0, kCellWidth);
                bands.push_back(std::string(kBandSuffixes.at(place)).append(" Meters"));
                continue;
            }
            if (column.covered != "True") {
                column.covered = "False";
            }
        }
    }
    return bands;
}

std::optional<ModelSection> Catalogue::LoadModel(std::string_view maker, std::string_view model) const
{
    const std::size_t failed = m_store->FailedReads();
    ModelSection section;
    LoadAntennaGain(maker, model, section.bands);
    section.gainType = LoadAntennaGainType(maker, model);
    return m_store->FailedReads() == failed ? std::optional(std::move(section)) : std::nullopt;
}

std::vector<std::string> Catalogue::LoadCableMakers() const
{
    return LoadMakers("Cables");
}

std::vector<std::string> Catalogue::LoadCableTypes(std::string_view maker) const
{
    const std::optional<INIManager> file = Open(maker, m_folder.CoaxFile(maker));
    return file ? NonEmpty(file->GetAllSections(file->FileName())) : std::vector<std::string>();
}

bool Catalogue::IsKFactorMaker(std::string_view maker, std::string_view /*type*/)
{
    const std::size_t first = std::min(maker.find_first_not_of(' '), maker.size());
    return maker.substr(first, maker.find_last_not_of(' ') + 1 - first) == engine::kKFactorMaker;
}

CableFigures Catalogue::LoadCableLoss(std::string_view maker, std::string_view type,
                                      std::array<float, 9>& coaxSpec) const
{
    const std::optional<INIManager> file = Open(maker, m_folder.CoaxFile(maker));
    if (!file) {
        return {};
    }
    for (std::size_t point = 0; point < coaxSpec.size(); ++point) {
        ReadInto(coaxSpec.at(point), *file, type, std::string("Loss").append(engine::LossFrequencies.at(point)));
    }
    return ReadSpecs(*file, type);
}

CableFigures Catalogue::LoadCableKFactors(std::string_view maker, std::string_view type,
                                          std::array<float, 9>& coaxSpec) const
{
    const std::optional<INIManager> file = Open(maker, m_folder.CoaxFile(maker));
    if (!file) {
        return {};
    }
    ReadInto(coaxSpec.at(1), *file, type, "K1");
    ReadInto(coaxSpec.at(2), *file, type, "K2");
    return ReadSpecs(*file, type);
}

std::optional<CableFigures> Catalogue::LoadCable(std::string_view maker, std::string_view type,
                                                 std::array<float, 9>& coaxSpec) const
{
    const std::size_t failed = m_store->FailedReads();
    std::array<float, 9> read = coaxSpec;
    const CableFigures figures =
        IsKFactorMaker(maker, type) ? LoadCableKFactors(maker, type, read) : LoadCableLoss(maker, type, read);
    if (m_store->FailedReads() != failed) {
        return std::nullopt;
    }
    coaxSpec = read;
    return figures;
}

} // namespace quillon::store
