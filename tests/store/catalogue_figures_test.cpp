#include "tests/store/catalogue_fixture.h"

#include <array>
#include <stdexcept>

namespace quillon::store {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

TEST_F(CatalogueTest, GainTypeIsTheModelsOwn)
{
    m_folder.Put("Antennas/W.DAT", "[Beam Four]\nGAINTYPE=dBi\nGain20=71\n[Beam Five]\nGain20=72\n");
    EXPECT_EQ(m_catalogue.LoadAntennaGainType("W", "BEAM FOUR"), "dBi");
    EXPECT_EQ(m_catalogue.LoadAntennaGainType("W", "Beam Five"), "");
    EXPECT_EQ(m_catalogue.LoadAntennaGainType("W", "missing"), "");
}

class BandTableTest : public CatalogueTest
{
protected:
    Names Load(std::string_view model) { return m_catalogue.LoadAntennaGain("W", model, m_table); }

    [[nodiscard]] const BandColumn& Column(std::string_view band) const
    {
        for (std::size_t place = 0; place < kBandSuffixes.size(); ++place) {
            if (kBandSuffixes.at(place) == band) {
                return m_table.at(place);
            }
        }
        throw std::out_of_range(std::string(band));
    }

    const std::string m_blank = std::string(25, '\0');
    BandTable m_table;
};

TEST_F(BandTableTest, HasTheBandsFromTheLongestWaveToTheShortest)
{
    std::string all = "[m]\n";
    Names expected;
    for (const char* band : {"160", "80", "60", "40", "30", "20", "17", "15", "12", "10", "6", "2", "1.25", ".70"}) {
        all += "Gain"s + band + "=" + std::to_string(expected.size()) + "\n";
        expected.push_back(band + " Meters"s);
    }
    m_folder.Put("Antennas/W.DAT", all);
    EXPECT_EQ(Load("m"), expected);
    for (std::size_t place = 0; place < m_table.size(); ++place) {
        EXPECT_EQ(m_table.at(place).covered, "True");
        EXPECT_EQ(m_table.at(place).gain, std::to_string(place));
        EXPECT_EQ(m_table.at(place).unit, m_blank);
    }
}

TEST_F(BandTableTest, TakesCoveredBandsFiguresAndUnitFromTheFile)
{
    m_folder.Put("Antennas/W.DAT", "[Beam Four]\nGainType=dBi\nGain20=71\nNote=x\nGain.70=-5\nGain1.25=100\n");
    EXPECT_EQ(Load("beam four"), (Names{"20 Meters", ".70 Meters", "1.25 Meters"}));
    EXPECT_EQ(Column("20").covered, "True");
    EXPECT_EQ(Column("20").gain, "71");
    EXPECT_EQ(Column(".70").gain, "-5");
    EXPECT_EQ(Column("1.25").gain, "100");
    EXPECT_EQ(Column("17").covered, "False");
    EXPECT_EQ(Column("17").gain, m_blank);
    for (const BandColumn& column : m_table) {
        EXPECT_EQ(column.unit, "dBi");
    }
}

TEST_F(BandTableTest, ReadsKeysInAnyCase)
{
    m_folder.Put("Antennas/W.DAT", "[m]\ngain20=71\nGAINTYPE=dBd\n");
    EXPECT_EQ(Load("m"), Names{"20 Meters"});
    EXPECT_EQ(Column("20").covered, "True");
    EXPECT_EQ(Column("20").unit, "dBd");
}

TEST_F(BandTableTest, OfAModelWithGainTypeOnlyCoversNoBandAndHasTheUnitEverywhere)
{
    m_folder.Put("Antennas/W.DAT", "[m]\nGainType=dBi\n");
    EXPECT_EQ(Load("m"), Names());
    for (const BandColumn& column : m_table) {
        EXPECT_EQ(column.covered, "False");
        EXPECT_EQ(column.gain, m_blank);
        EXPECT_EQ(column.unit, "dBi");
    }
}

TEST_F(BandTableTest, OfAModelWithoutKeysKeepsFlagsThatAreNeitherTrueNorFalseAsGiven)
{
    m_folder.Put("Antennas/W.DAT", "[m]\n");
    for (const char* model : {"m", "missing", ""}) {
        m_table.fill({"True", "1", "dBi"});
        EXPECT_EQ(Load(model), Names());
        for (const BandColumn& column : m_table) {
            EXPECT_EQ(column.covered, m_blank);
            EXPECT_EQ(column.gain, m_blank);
            EXPECT_EQ(column.unit, m_blank);
        }
    }
}

TEST_F(BandTableTest, KeyFurtherOnLeavesACoveredBandCovered)
{
    m_folder.Put("Antennas/W.DAT", "[m]\nGain20=71\nNote=x\n");
    EXPECT_EQ(Load("m"), Names{"20 Meters"});
    EXPECT_EQ(Column("20").covered, "True");
    EXPECT_EQ(Column("160").covered, "False");
}

TEST_F(BandTableTest, CutsTextsTo25Characters)
{
    const std::string text(26, 'x');
    m_folder.Put("Antennas/W.DAT", "[m]\nGain20=" + text + "\nGainType=" + text + "\n");
    Load("m");
    EXPECT_EQ(Column("20").gain, text.substr(1));
    EXPECT_EQ(Column("20").unit, text.substr(1));
}

class CableTest : public CatalogueTest
{
protected:
    std::array<float, 9> m_coaxSpec{9, 9, 9, 9, 9, 9, 9, 9, 9};
};

TEST_F(CableTest, LossesAreReadIntoTheNinePoints)
{
    m_folder.Put("Coax/C.DAT", "[RG-8X]\nLoss1=0.3\nLoss10=1.0\nLoss50=2.5\nLoss100=3.7\nLoss200=5.4\nLoss400=8.0\n"
                               "Loss700=11.0\nLoss900=12.6\nLoss1000=13.5\nSpec1=.242\nSpec2=50\n");
    const CableFigures figures = m_catalogue.LoadCableLoss("C", "RG-8X", m_coaxSpec);
    EXPECT_EQ(m_coaxSpec, (std::array<float, 9>{0.3F, 1, 2.5F, 3.7F, 5.4F, 8, 11, 12.6F, 13.5F}));
    EXPECT_EQ(figures.Spec1, 0.242F);
    EXPECT_EQ(figures.Spec2, 50.0F);
}

TEST_F(CableTest, EmptyAndMissingLossesLeaveTheirPointsAsTheyWere)
{
    m_folder.Put("Coax/C.DAT", "[c]\nLoss1=\nLoss10=1\nLoss50=no number\nK1=7\n");
    const CableFigures figures = m_catalogue.LoadCableLoss("C", "c", m_coaxSpec);
    EXPECT_EQ(m_coaxSpec, (std::array<float, 9>{9, 1, 0, 9, 9, 9, 9, 9, 9}));
    EXPECT_EQ(figures.Spec1, std::nullopt);
    EXPECT_EQ(figures.Spec2, std::nullopt);
}

TEST_F(CableTest, KFactorsAreReadIntoPlacesOneAndTwo)
{
    m_folder.Put("Coax/TIMES MICROWAVE.DAT", "[LMR-400]\nK1=0.12229\nK2=0.00026\nLoss1=5\nSpec1=0.405\nSpec2=\n");
    const CableFigures figures = m_catalogue.LoadCableKFactors("TIMES MICROWAVE", "LMR-400", m_coaxSpec);
    EXPECT_EQ(m_coaxSpec, (std::array<float, 9>{9, 0.12229F, 0.00026F, 9, 9, 9, 9, 9, 9}));
    EXPECT_EQ(figures.Spec1, 0.405F);
    EXPECT_EQ(figures.Spec2, std::nullopt);
}

TEST_F(CableTest, EmptyKFactorLeavesItsPlaceAsItWas)
{
    m_folder.Put("Coax/C.DAT", "[c]\nK1=\nK2=2\n");
    m_catalogue.LoadCableKFactors("C", "c", m_coaxSpec);
    EXPECT_EQ(m_coaxSpec, (std::array<float, 9>{9, 9, 2, 9, 9, 9, 9, 9, 9}));
}

TEST(IsKFactorMaker, IsTheExactNameButForBlanksAround)
{
    EXPECT_TRUE(Catalogue::IsKFactorMaker("TIMES MICROWAVE", "LMR-400"));
    EXPECT_TRUE(Catalogue::IsKFactorMaker("  TIMES MICROWAVE   ", ""));
    EXPECT_FALSE(Catalogue::IsKFactorMaker("Times Microwave", "LMR-400"));
    EXPECT_FALSE(Catalogue::IsKFactorMaker("TIMES  MICROWAVE", "LMR-400"));
    EXPECT_FALSE(Catalogue::IsKFactorMaker("\tTIMES MICROWAVE", "LMR-400"));
    EXPECT_FALSE(Catalogue::IsKFactorMaker("", "LMR-400"));
}

} // namespace
} // namespace quillon::store
