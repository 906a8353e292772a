// Loads any files as antenna and coax catalogues, and compares lists and figures with the plain list of lines.

#include "store/catalogue.h"
#include "engine/coax_model.h"
#include "engine/number_text.h"
#include "fuzz/expect.h"
#include "fuzz/folder_model.h"
#include "fuzz/input.h"
#include "fuzz/memory_files.h"
#include "fuzz/profile_model.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon::fuzz {
namespace {

using Names = std::vector<std::string>;

constexpr std::size_t kCell = 25;

std::string Cell(const ProfileModel& file, const std::string& model, const std::string& key)
{
    return ProfileModel::StripBlanks(file.Answer(model, key, "").substr(0, 254)).substr(0, kCell);
}

/// One band of the table, worked out by itself from the keys of the model.
store::BandColumn Column(const ProfileModel& file, const std::string& model, const Names& keys, std::string_view band)
{
    const std::string blank(kCell, '\0');
    store::BandColumn column{keys.empty() ? blank : "False", blank, blank};
    for (const std::string& key : keys) {
        if (ProfileModel::IsSame(key, "Gain" + std::string(band))) {
            column.covered = "True";
            column.gain = Cell(file, model, key);
        }
        if (ProfileModel::IsSame(key, "GainType")) {
            column.unit = Cell(file, model, key);
        }
    }
    return column;
}

void CheckModel(const store::Catalogue& catalogue, const std::string& maker, const ProfileModel& file,
                const std::string& model)
{
    const Names keys = ListedKeys(file, model);
    store::BandTable table;
    const Names bands = catalogue.LoadAntennaGain(maker, model, table);
    Names expected;
    for (const std::string& key : keys) {
        for (const std::string_view band : store::kBandSuffixes) {
            if (ProfileModel::IsSame(key, "Gain" + std::string(band))) {
                expected.push_back(std::string(band) + " Meters");
            }
        }
    }
    Expect(bands == expected, "bands come in the order of the file");
    for (std::size_t place = 0; place < table.size(); ++place) {
        const store::BandColumn column = Column(file, model, keys, store::kBandSuffixes.at(place));
        Expect(table.at(place).covered == column.covered, "a band is covered by its key");
        Expect(table.at(place).gain == column.gain, "a band's gain is its key's");
        Expect(table.at(place).unit == column.unit, "the unit is the model's");
    }
    Expect(catalogue.LoadAntennaGainType(maker, model) ==
               ProfileModel::StripBlanks(file.Answer(model, "GainType", "").substr(0, 254)),
           "the gain type is the key's");
    const std::optional<store::ModelSection> section = catalogue.LoadModel(maker, model);
    Expect(section && section->gainType == catalogue.LoadAntennaGainType(maker, model), "a model is loaded whole");
}

float Figure(const ProfileModel& file, const std::string& type, const std::string& key, float otherwise)
{
    const std::string text = ProfileModel::StripBlanks(file.Answer(type, key, "").substr(0, 254));
    return text.empty() ? otherwise : engine::NumberFromText(text);
}

bool IsSameFigure(const std::optional<float>& figure, float expected)
{
    return std::bit_cast<std::uint32_t>(figure.value_or(-7.0F)) == std::bit_cast<std::uint32_t>(expected);
}

std::array<std::uint32_t, 9> Bits(const std::array<float, 9>& figures)
{
    return std::bit_cast<std::array<std::uint32_t, 9>>(figures);
}

void CheckCable(const store::Catalogue& catalogue, const std::string& maker, const ProfileModel& file,
                const std::string& type)
{
    constexpr std::array<float, 9> kHeld{1, 2, 3, 4, 5, 6, 7, 8, 9};
    std::array<float, 9> losses = kHeld;
    std::array<float, 9> factors = kHeld;
    const store::CableFigures specs = catalogue.LoadCableLoss(maker, type, losses);
    const store::CableFigures same = catalogue.LoadCableKFactors(maker, type, factors);
    for (std::size_t place = 0; place < kHeld.size(); ++place) {
        const std::string key = "Loss" + std::string(engine::LossFrequencies.at(place));
        Expect(IsSameFigure(losses.at(place), Figure(file, type, key, kHeld.at(place))), "a loss is its key's");
    }
    Expect(IsSameFigure(factors[1], Figure(file, type, "K1", 2)), "K1 is its key's");
    Expect(IsSameFigure(factors[2], Figure(file, type, "K2", 3)), "K2 is its key's");
    Expect(IsSameFigure(specs.Spec1, Figure(file, type, "Spec1", -7)), "the diameter is its key's");
    Expect(IsSameFigure(same.Spec2, Figure(file, type, "Spec2", -7)), "the impedance is its key's");
    std::array<float, 9> own = kHeld;
    Expect(catalogue.LoadCable(maker, type, own).has_value(), "a cable is loaded whole");
    Expect(Bits(own) == Bits(store::Catalogue::IsKFactorMaker(maker, type) ? factors : losses),
           "a cable has the figures of its maker's kind");
}

/// Looks at one maker of the list and at one of its models.
/// @param check  takes a maker, its file and a name from the file.
template <class Load, class Check>
void CheckMakers(const MemoryFiles& files, const Names& makers, const std::string& folder, unsigned chosen,
                 const Load& load, const Check& check)
{
    Expect(makers == MakersIn(files, folder), "makers are the names of their files");
    if (makers.empty()) {
        return;
    }
    const std::string& maker = makers[chosen % makers.size()];
    const ProfileModel file(std::string(files.Get(FileOf(files, folder, maker))));
    Names names = ListedSections(file);
    std::erase(names, "");
    Expect(load(maker) == names, "models are the sections of their file");
    if (!names.empty()) {
        check(maker, file, names[chosen % names.size()]);
    }
}

/// Asks for a maker and a model that need not be there, while a call fails.
void CheckAsked(MemoryFiles& files, const store::Catalogue& catalogue, Input& input)
{
    const std::string maker(input.Record());
    const std::string model(input.Record());
    const unsigned failing = input.Byte();
    store::BandTable table;
    std::array<float, 9> figures{};
    files.FailAt(failing, EIO);
    static_cast<void>(catalogue.LoadAntennaGain(maker, model, table));
    static_cast<void>(catalogue.LoadCableTypes(maker));
    files.FailAt(failing, EACCES);
    const store::CableFigures losses = catalogue.LoadCableLoss(maker, model, figures);
    const store::CableFigures factors = catalogue.LoadCableKFactors(maker, model, figures);
    Expect(IsPlainName(maker) || (!losses.Spec1 && !factors.Spec2), "a name that can be no file's has no figures");
    const std::array<float, 9> before = figures;
    files.FailAt(failing, EIO);
    const bool isCableRead = catalogue.LoadCable(maker, model, figures).has_value();
    Expect(isCableRead || Bits(figures) == Bits(before), "a cable that cannot be read leaves the figures");
    files.FailAt(failing, EIO);
    static_cast<void>(catalogue.LoadModel(maker, model));
    Expect(catalogue.GetDataFileList(model).empty() || model == "Antennas" || model == "Cables",
           "two kinds are listed");
    Expect(store::Catalogue::IsKFactorMaker(maker, model) == (ProfileModel::StripBlanks(maker) == "TIMES MICROWAVE"),
           "one maker's cables have K factors");
}

void Run(Input input)
{
    auto files = std::make_unique<MemoryFiles>();
    input = PutFiles(input, *files);
    const std::size_t count = files->Count();
    const auto store = std::make_shared<store::ProfileStore>(*files);
    const store::Catalogue catalogue(store::ProgramFolder("/q/Quillon"), store);

    const unsigned part = input.Byte();
    if (part % 3 == 0) {
        CheckMakers(
            *files, catalogue.LoadAntennaMakers(), "/q/Antennas/", part / 3,
            [&](const std::string& maker) { return catalogue.LoadAntennas(maker); },
            [&](const auto&... arguments) { CheckModel(catalogue, arguments...); });
    } else if (part % 3 == 1) {
        CheckMakers(
            *files, catalogue.LoadCableMakers(), "/q/Coax/", part / 3,
            [&](const std::string& maker) { return catalogue.LoadCableTypes(maker); },
            [&](const auto&... arguments) { CheckCable(catalogue, arguments...); });
    } else {
        CheckAsked(*files, catalogue, input);
    }
    Expect(files->Count() == count || part % 3 == 2, "loading leaves the folders as they are");
    Expect(files->IsAllClosed(), "all files are closed");
}

} // namespace
} // namespace quillon::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quillon::fuzz::Run(quillon::fuzz::Input(data, size));
    return 0;
}
