#include "tests/data/data_file.h"

#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::data_tests {

namespace {

using ::testing::UnorderedElementsAre;

/// From the lowest frequency to the highest.
constexpr std::array<std::string_view, 9> kLossKeys{"Loss1",   "Loss10",  "Loss50",  "Loss100", "Loss200",
                                                    "Loss400", "Loss700", "Loss900", "Loss1000"};

std::vector<std::string> KeysOf(const Section& section)
{
    std::vector<std::string> keys;
    std::ranges::transform(section.entries, std::back_inserter(keys), &std::pair<std::string, std::string>::first);
    return keys;
}

/// A figure of a cable; -1 where there is none, which no check lets through.
double Figure(const Section& cable, std::string_view key)
{
    const std::string text = cable.Value(key).value_or("");
    return IsDecimal(text) ? NumberOf<double>(text) : -1;
}

std::string TestName(const ::testing::TestParamInfo<std::filesystem::path>& info)
{
    return FileTestName(info.param);
}

class CoaxFile : public ::testing::TestWithParam<std::filesystem::path>
{
protected:
    [[nodiscard]] bool HasKFactors() const { return m_file.Maker() == "TIMES MICROWAVE"; }

    const DataFile m_file = ReadDataFile(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Shipped, CoaxFile, ::testing::ValuesIn(CatalogueFiles("Coax")), TestName);

TEST_P(CoaxFile, EveryCableHasAllKeysOfItsKindAndNoOther)
{
    for (const Section& cable : m_file.sections) {
        SCOPED_TRACE(GetParam().string() + " [" + cable.name + "]");
        if (HasKFactors()) {
            EXPECT_THAT(KeysOf(cable), UnorderedElementsAre("K1", "K2", "Spec1", "Spec2"));
        } else {
            EXPECT_THAT(KeysOf(cable),
                        UnorderedElementsAre("Loss1", "Loss10", "Loss50", "Loss100", "Loss200", "Loss400", "Loss700",
                                             "Loss900", "Loss1000", "Spec1", "Spec2"));
        }
    }
}

TEST_P(CoaxFile, EveryValueIsAPlainDecimalNumber)
{
    for (const Section& cable : m_file.sections) {
        for (const auto& [key, value] : cable.entries) {
            EXPECT_TRUE(IsDecimal(value)) << GetParam() << " [" << cable.name << "] " << key << "=" << value;
        }
    }
}

TEST_P(CoaxFile, LossesRiseWithFrequency)
{
    if (HasKFactors()) {
        for (const Section& cable : m_file.sections) {
            EXPECT_GT(Figure(cable, "K1"), 0) << GetParam() << " [" << cable.name << "]";
            EXPECT_GT(Figure(cable, "K2"), 0) << GetParam() << " [" << cable.name << "]";
        }
        return;
    }
    for (const Section& cable : m_file.sections) {
        double below = 0;
        for (const std::string_view key : kLossKeys) {
            EXPECT_GT(Figure(cable, key), below) << GetParam() << " [" << cable.name << "] " << key;
            below = Figure(cable, key);
        }
    }
}

TEST_P(CoaxFile, DiameterAndImpedanceAreThoseOfACable)
{
    for (const Section& cable : m_file.sections) {
        EXPECT_GE(Figure(cable, "Spec1"), 0) << GetParam() << " [" << cable.name << "]";
        EXPECT_LT(Figure(cable, "Spec1"), 5) << GetParam() << " [" << cable.name << "] is thicker than 5 inches";
        EXPECT_GT(Figure(cable, "Spec2"), 0) << GetParam() << " [" << cable.name << "]";
        EXPECT_LE(Figure(cable, "Spec2"), 600) << GetParam() << " [" << cable.name << "] is above 600 ohms";
    }
}

} // namespace

} // namespace quillon::data_tests
