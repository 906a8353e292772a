#include "store/catalogue.h"
#include "tests/data/data_file.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::data_tests {

namespace {

using ::testing::ElementsAreArray;
using ::testing::Eq;
using ::testing::SizeIs;

/// The program's own reader on the folder as shipped.
class ShippedCatalogue : public ::testing::Test
{
protected:
    const store::Catalogue m_catalogue{store::ProgramFolder(DataFolder() / "Quillon")};
};

std::vector<std::string> MakersOf(std::string_view kind)
{
    std::vector<std::string> makers;
    for (const auto& path : CatalogueFiles(kind)) {
        makers.push_back(path.stem().string());
    }
    std::ranges::sort(makers);
    return makers;
}

std::vector<std::string> NamesIn(const DataFile& file)
{
    std::vector<std::string> names;
    std::ranges::transform(file.sections, std::back_inserter(names), &Section::name);
    return names;
}

std::vector<std::string> BandsOf(const Section& model)
{
    std::vector<std::string> bands;
    for (const auto& [key, value] : model.entries) {
        if (key != "GainType") {
            bands.push_back(key.substr(4) + " Meters");
        }
    }
    return bands;
}

} // namespace

TEST_F(ShippedCatalogue, ListsAllMakers)
{
    EXPECT_THAT(m_catalogue.LoadAntennaMakers(), ElementsAreArray(MakersOf("Antennas")));
    EXPECT_THAT(m_catalogue.LoadAntennaMakers(), SizeIs(28));
    EXPECT_THAT(m_catalogue.LoadCableMakers(), ElementsAreArray(MakersOf("Coax")));
    EXPECT_THAT(m_catalogue.LoadCableMakers(), SizeIs(15));
}

TEST_F(ShippedCatalogue, ListsAllModelsInFileOrder)
{
    std::size_t models = 0;
    for (const auto& path : CatalogueFiles("Antennas")) {
        const auto listed = m_catalogue.LoadAntennas(path.stem().string());
        EXPECT_THAT(listed, ElementsAreArray(NamesIn(ReadDataFile(path)))) << path;
        models += listed.size();
    }
    EXPECT_EQ(models, 310U);
}

TEST_F(ShippedCatalogue, ListsAllCablesInFileOrder)
{
    std::size_t cables = 0;
    for (const auto& path : CatalogueFiles("Coax")) {
        const auto listed = m_catalogue.LoadCableTypes(path.stem().string());
        EXPECT_THAT(listed, ElementsAreArray(NamesIn(ReadDataFile(path)))) << path;
        cables += listed.size();
    }
    EXPECT_EQ(cables, 137U);
}

TEST_F(ShippedCatalogue, GivesEveryModelItsUnitBandsAndGains)
{
    for (const auto& path : CatalogueFiles("Antennas")) {
        const DataFile file = ReadDataFile(path);
        for (const Section& model : file.sections) {
            SCOPED_TRACE(path.string() + " [" + model.name + "]");
            store::BandTable table;
            EXPECT_THAT(m_catalogue.LoadAntennaGain(file.Maker(), model.name, table), ElementsAreArray(BandsOf(model)));
            EXPECT_EQ(m_catalogue.LoadAntennaGainType(file.Maker(), model.name), model.Value("GainType"));
            for (std::size_t band = 0; band < table.size(); ++band) {
                const auto gain = model.Value("Gain" + std::string(store::kBandSuffixes[band]));
                EXPECT_EQ(table[band].covered, gain ? "True" : "False") << store::kBandSuffixes[band];
                if (gain) {
                    EXPECT_EQ(table[band].gain, *gain) << store::kBandSuffixes[band];
                }
            }
        }
    }
}

TEST_F(ShippedCatalogue, GivesEveryCableItsFigures)
{
    constexpr float kUnset = -1;
    for (const auto& path : CatalogueFiles("Coax")) {
        const DataFile file = ReadDataFile(path);
        for (const Section& cable : file.sections) {
            SCOPED_TRACE(path.string() + " [" + cable.name + "]");
            std::array<float, 9> figures{};
            figures.fill(kUnset);
            const bool byK = store::Catalogue::IsKFactorMaker(file.Maker(), cable.name);
            EXPECT_EQ(byK, file.Maker() == "TIMES MICROWAVE");
            const auto specs = byK ? m_catalogue.LoadCableKFactors(file.Maker(), cable.name, figures)
                                   : m_catalogue.LoadCableLoss(file.Maker(), cable.name, figures);
            EXPECT_THAT(specs.Spec1, Eq(NumberOf<float>(cable.Value("Spec1").value_or("0"))));
            EXPECT_THAT(specs.Spec2, Eq(NumberOf<float>(cable.Value("Spec2").value_or("0"))));
            const auto places =
                byK ? std::vector<std::size_t>{1, 2} : std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8};
            for (const std::size_t place : places) {
                const std::string key = byK ? "K" + std::to_string(place) : cable.entries[place].first;
                EXPECT_EQ(figures.at(place), NumberOf<float>(cable.Value(key).value_or("0"))) << key;
            }
        }
    }
}

} // namespace quillon::data_tests
