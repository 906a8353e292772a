#include "tests/data/data_file.h"

#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::data_tests {

namespace {

using ::testing::AnyOf;
using ::testing::Optional;

constexpr std::array<std::string_view, 14> kBands{"160", "80", "60", "40", "30", "20",   "17",
                                                  "15",  "12", "10", "6",  "2",  "1.25", ".70"};

bool IsGainKey(std::string_view key)
{
    return key.starts_with("Gain") && std::ranges::find(kBands, key.substr(4)) != kBands.end();
}

/// Gain in hundredths of a dBd; a dipole has 2.15 dBi.
int HundredthsOfDBd(const std::string& gain, const std::string& unit)
{
    const int hundredths = std::stoi(gain) * 10;
    return unit == "dBi" ? hundredths - 215 : hundredths;
}

/// The definition of 0 dBi: it lies below a dipole, and its ERP of 0 is meant.
bool IsIsotropic(const DataFile& file, const Section& section)
{
    return file.Maker() == "REFERENCE" && section.name == "ISOTROPIC";
}

std::string TestName(const ::testing::TestParamInfo<std::filesystem::path>& info)
{
    return FileTestName(info.param);
}

class AntennaFile : public ::testing::TestWithParam<std::filesystem::path>
{
protected:
    const DataFile m_file = ReadDataFile(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Shipped, AntennaFile, ::testing::ValuesIn(CatalogueFiles("Antennas")), TestName);

TEST_P(AntennaFile, EveryModelStatesTheUnitOfItsGains)
{
    for (const Section& model : m_file.sections) {
        EXPECT_THAT(model.Value("GainType"), Optional(AnyOf("dBi", "dBd"))) << GetParam() << " [" << model.name << "]";
    }
}

TEST_P(AntennaFile, EveryModelHasWholeGainsOnKnownBandsAndNothingElse)
{
    for (const Section& model : m_file.sections) {
        EXPECT_GE(model.entries.size(), 2U) << GetParam() << " [" << model.name << "] covers no band";
        for (const auto& [key, value] : model.entries) {
            if (key == "GainType") {
                continue;
            }
            EXPECT_TRUE(IsGainKey(key)) << GetParam() << " [" << model.name << "] " << key;
            EXPECT_TRUE(IsWholeNumber(value)) << GetParam() << " [" << model.name << "] " << key << "=" << value;
        }
    }
}

TEST_P(AntennaFile, EveryGainIsOneThatAnERPIsFoundFor)
{
    for (const Section& model : m_file.sections) {
        const std::string unit = model.Value("GainType").value_or("");
        for (const auto& [key, value] : model.entries) {
            if (!IsGainKey(key) || !IsWholeNumber(value) || IsIsotropic(m_file, model)) {
                continue;
            }
            EXPECT_GE(HundredthsOfDBd(value, unit), 0)
                << GetParam() << " [" << model.name << "] " << key << "=" << value;
            EXPECT_LT(HundredthsOfDBd(value, unit), 1995)
                << GetParam() << " [" << model.name << "] " << key << "=" << value << " rounds to 20 dBd or more";
        }
    }
}

TEST(AntennaFiles, IsotropicHasZeroDBiOnAllBandsAsGiven)
{
    const DataFile reference = ReadDataFile(DataFolder() / "Antennas" / "REFERENCE.DAT");
    const auto isotropic = std::ranges::find(reference.sections, "ISOTROPIC", &Section::name);
    ASSERT_NE(isotropic, reference.sections.end());
    EXPECT_THAT(isotropic->Value("GainType"), Optional(std::string("dBi")));
    for (const std::string_view band : kBands) {
        EXPECT_THAT(isotropic->Value("Gain" + std::string(band)), Optional(std::string("0"))) << band;
    }
}

} // namespace

} // namespace quillon::data_tests
