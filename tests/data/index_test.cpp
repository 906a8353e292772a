#include "tests/data/data_file.h"

#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::data_tests {

namespace {

using ::testing::ContainerEq;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::SizeIs;

DataFile Index()
{
    return ReadDataFile(DataFolder() / "Antennas" / "ANTENNAS.ZEP");
}

} // namespace

TEST(AntennaIndex, NamesEveryMakerWithTheNumberOfItsModels)
{
    std::map<std::string, std::string> inFiles;
    for (const auto& path : CatalogueFiles("Antennas")) {
        const DataFile file = ReadDataFile(path);
        inFiles[file.Maker()] = std::to_string(file.sections.size());
    }
    std::map<std::string, std::string> inIndex;
    for (const Section& maker : Index().sections) {
        inIndex[maker.name] = maker.Value("NumEntries").value_or("");
    }
    EXPECT_THAT(inIndex, ContainerEq(inFiles));
}

TEST(AntennaIndex, HoldsOneSectionPerMakerWithTheThreeKeysInOrder)
{
    const DataFile index = Index();
    EXPECT_THAT(index.strayLines, IsEmpty());
    EXPECT_THAT(index.sections, SizeIs(28));
    for (const Section& maker : index.sections) {
        EXPECT_THAT(maker.entries, ElementsAre(Pair("DateCreated", "11/21/2026"), Pair("LastModified", "11/21/2026"),
                                               Pair("NumEntries", ::testing::Truly(IsWholeNumber))))
            << "[" << maker.name << "]";
    }
}

TEST(AntennaIndex, HasTheLineEndsOfTheCatalogueFiles)
{
    EXPECT_THAT(PlacesThatAreNoPlainText(BytesOf(DataFolder() / "Antennas" / "ANTENNAS.ZEP")), IsEmpty());
}

TEST(SavedSystemsFile, IsInstalledEmpty)
{
    EXPECT_EQ(BytesOf(DataFolder() / "QuillonSystems.dat"), "");
}

} // namespace quillon::data_tests
