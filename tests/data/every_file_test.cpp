#include "tests/data/data_file.h"

#include <algorithm>
#include <cctype>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::data_tests {

namespace {

using ::testing::IsEmpty;

/// What the records and lists leave room for; longer names would be cut.
struct NameWidths
{
    std::size_t maker;
    std::size_t entry;
};

NameWidths WidthsOf(const std::filesystem::path& file)
{
    return file.parent_path().filename() == "Antennas" ? NameWidths{25, 16} : NameWidths{15, 20};
}

/// The lists take only the characters from the blank to the capital Z from the keyboard.
bool CanBeTyped(const std::string& name)
{
    return std::ranges::all_of(name, [](char letter) { return letter >= ' ' && letter <= 'Z'; });
}

bool HasOuterBlank(const std::string& text)
{
    return text.starts_with(' ') || text.ends_with(' ');
}

std::string InCapitals(std::string text)
{
    std::ranges::transform(text, text.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return text;
}

std::vector<std::filesystem::path> AllCatalogueFiles()
{
    auto files = CatalogueFiles("Antennas");
    std::ranges::copy(CatalogueFiles("Coax"), std::back_inserter(files));
    return files;
}

std::string TestName(const ::testing::TestParamInfo<std::filesystem::path>& info)
{
    return info.param.parent_path().filename().string() + "_" + FileTestName(info.param);
}

class EveryCatalogueFile : public ::testing::TestWithParam<std::filesystem::path>
{
protected:
    const DataFile m_file = ReadDataFile(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Shipped, EveryCatalogueFile, ::testing::ValuesIn(AllCatalogueFiles()), TestName);

TEST_P(EveryCatalogueFile, IsPlainTextWithCarriageReturns)
{
    EXPECT_THAT(PlacesThatAreNoPlainText(BytesOf(GetParam())), IsEmpty()) << GetParam();
}

TEST_P(EveryCatalogueFile, HoldsNothingButSectionsAndKeys)
{
    EXPECT_THAT(m_file.strayLines, IsEmpty()) << GetParam();
    EXPECT_FALSE(m_file.sections.empty()) << GetParam();
    for (const Section& section : m_file.sections) {
        for (const auto& [key, value] : section.entries) {
            EXPECT_FALSE(key.empty() || HasOuterBlank(key)) << GetParam() << " [" << section.name << "] " << key;
            EXPECT_FALSE(value.empty() || HasOuterBlank(value)) << GetParam() << " [" << section.name << "] " << key;
        }
    }
}

TEST_P(EveryCatalogueFile, MakerFitsTheRecordAndEveryFileSystem)
{
    const std::string maker = m_file.Maker();
    EXPECT_LE(maker.size(), WidthsOf(GetParam()).maker) << GetParam();
    EXPECT_TRUE(CanBeTyped(maker)) << GetParam();
    EXPECT_FALSE(HasOuterBlank(maker)) << GetParam();
    EXPECT_EQ(maker.find_first_of(R"(\/:*?"<>|)"), std::string::npos) << GetParam();
}

TEST_P(EveryCatalogueFile, SectionNamesFitTheRecordAndCanBeTyped)
{
    for (const Section& section : m_file.sections) {
        EXPECT_FALSE(section.name.empty()) << GetParam();
        EXPECT_LE(section.name.size(), WidthsOf(GetParam()).entry) << GetParam() << " [" << section.name << "]";
        EXPECT_TRUE(CanBeTyped(section.name)) << GetParam() << " [" << section.name << "]";
        EXPECT_FALSE(HasOuterBlank(section.name)) << GetParam() << " [" << section.name << "]";
    }
}

TEST_P(EveryCatalogueFile, NamesNoSectionAndNoKeyTwice)
{
    std::set<std::string> sections;
    for (const Section& section : m_file.sections) {
        EXPECT_TRUE(sections.insert(InCapitals(section.name)).second) << GetParam() << " [" << section.name << "]";
        std::set<std::string> keys;
        for (const auto& [key, value] : section.entries) {
            EXPECT_TRUE(keys.insert(InCapitals(key)).second) << GetParam() << " [" << section.name << "] " << key;
        }
    }
}

TEST_P(EveryCatalogueFile, ListOfSectionsFitsTheReadersBuffer)
{
    std::size_t characters = 0;
    for (const Section& section : m_file.sections) {
        characters += section.name.size() + 1;
    }
    EXPECT_LE(characters, 2047U) << GetParam();
}

} // namespace

} // namespace quillon::data_tests
