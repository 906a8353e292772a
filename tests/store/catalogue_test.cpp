#include "store/catalogue.h"

#include "store/profile_batch.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using Names = std::vector<std::string>;

class CatalogueTest : public ::testing::Test
{
protected:
    CatalogueTest()
    {
        fs::create_directory(m_folder / "Antennas");
        fs::create_directory(m_folder / "Coax");
    }

    [[nodiscard]] Names Antennas() const
    {
        Names names;
        for (const auto& entry : fs::directory_iterator(m_folder / "Antennas")) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    support::TempFolder m_folder;
    Catalogue m_catalogue{ProgramFolder(m_folder / "Quillon")};
};

TEST_F(CatalogueTest, MakersAreTheNamesOfTheFilesJoinedByBars)
{
    for (const char* name : {"b.DAT", "A.DAT", "c.DAT"}) {
        m_folder.Put("Antennas/"s + name, "");
    }
    m_folder.Put("Coax/BELDEN.DAT", "");
    EXPECT_EQ(m_catalogue.GetDataFileList("Antennas"), "A|b|c");
    EXPECT_EQ(m_catalogue.GetDataFileList("Cables"), "BELDEN");
    EXPECT_EQ(m_catalogue.GetDataFileList("Coax"), "");
}

TEST_F(CatalogueTest, MakersAreSortedByCharacterCode)
{
    for (const char* name : {"b.DAT", "A.DAT", "c.DAT", "Z.DAT"}) {
        m_folder.Put("Antennas/"s + name, "");
        m_folder.Put("Coax/x"s + name, "");
    }
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), (Names{"A", "Z", "b", "c"}));
    EXPECT_EQ(m_catalogue.LoadCableMakers(), (Names{"xA", "xZ", "xb", "xc"}));
}

TEST_F(CatalogueTest, FolderWithoutMakersGivesEmptyLists)
{
    m_folder.Put("Antennas/ANTENNAS.ZEP", "");
    EXPECT_EQ(m_catalogue.GetDataFileList("Antennas"), "");
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), Names());
    EXPECT_EQ(m_catalogue.LoadCableMakers(), Names());
}

TEST_F(CatalogueTest, ExtensionCountsInAnyCaseAndWholeOnly)
{
    for (const char* name : {"Foo.dat", "Bar.DaT", "no.DATA", "noDAT", "DAT", ".DAT", "x.DAT.DAT", "no.ZEP"}) {
        m_folder.Put("Coax/"s + name, "");
    }
    EXPECT_EQ(m_catalogue.LoadCableMakers(), (Names{"Bar", "Foo", "x.DAT"}));
}

TEST_F(CatalogueTest, FileNamesThatAreNoMakersAreNotListed)
{
    for (const char* name : {"a|b.DAT", "back\\slash.DAT", "end .DAT", "end..DAT", "..DAT", "...DAT", "tab\t.DAT",
                             "<b>bold & \xFC.DAT", "A NAME OF MORE THAN TWENTY-FIVE CHARACTERS.DAT"}) {
        m_folder.Put("Antennas/"s + name, "[m]\n");
    }
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), (Names{"<b>bold & \xFC", "A NAME OF MORE THAN TWENTY-FIVE CHARACTERS"}));
    EXPECT_EQ(m_catalogue.LoadAntennas("A NAME OF MORE THAN TWENTY-FIVE CHARACTERS"), Names{"m"});
    EXPECT_EQ(m_catalogue.LoadAntennas("<b>bold & \xFC"), Names{"m"});
}

TEST_F(CatalogueTest, FolderNamedAsAMakersFileIsNotListedAndReadsAsEmpty)
{
    fs::create_directory(m_folder / "Antennas/X.DAT");
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), Names());
    EXPECT_EQ(m_catalogue.LoadAntennas("X"), Names());
    EXPECT_TRUE(fs::is_directory(m_folder / "Antennas/X.DAT"));
}

TEST_F(CatalogueTest, LinkThatLeadsNowhereAndPipeAreListedAndReadAsEmpty)
{
    fs::create_symlink("nowhere", m_folder / "Antennas/L.DAT");
    ASSERT_EQ(::mkfifo((m_folder / "Antennas/P.DAT").c_str(), 0600), 0);
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), (Names{"L", "P"}));
    EXPECT_EQ(m_catalogue.LoadAntennas("L"), Names());
    EXPECT_EQ(m_catalogue.LoadAntennas("P"), Names());
    EXPECT_EQ(Antennas().size(), 2U);
}

TEST_F(CatalogueTest, ModelsComeInFileOrderWithoutEmptyNames)
{
    m_folder.Put("Antennas/W.DAT", "[Zeta]\n[]\n[ ]\n[alpha]\n[Beam Four]\n");
    EXPECT_EQ(m_catalogue.LoadAntennas("W"), (Names{"Zeta", "alpha", "Beam Four"}));
}

TEST_F(CatalogueTest, NulInASectionNamePartsItAndLeavesNoEmptyName)
{
    m_folder.Put("Antennas/W.DAT", "[a\0\0b]\n[c]\n"s);
    EXPECT_EQ(m_catalogue.LoadAntennas("W"), (Names{"a", "b", "c"}));
}

TEST_F(CatalogueTest, TypesComeInFileOrder)
{
    m_folder.Put("Coax/Foo.dat", "[RG-8X]\nLoss1=0.3\n[9913]\n");
    EXPECT_EQ(m_catalogue.LoadCableTypes("Foo"), (Names{"RG-8X", "9913"}));
    EXPECT_FALSE(fs::exists(m_folder / "Coax/Foo.DAT"));
}

TEST_F(CatalogueTest, MakerWithoutAFileGetsAnEmptyOneAsGiven)
{
    EXPECT_EQ(m_catalogue.LoadAntennas("NEW"), Names());
    EXPECT_EQ(m_folder.Get("Antennas/NEW.DAT"), "");
    EXPECT_EQ(m_catalogue.LoadCableTypes("NEW"), Names());
    EXPECT_EQ(m_folder.Get("Coax/NEW.DAT"), "");
}

struct HostileRow
{
    const char* name;
    const char* maker;
};

/// Names that must not become part of a path.
class HostileMaker : public CatalogueTest, public ::testing::WithParamInterface<HostileRow>
{
};

TEST_P(HostileMaker, HasNothingAndReachesNoFile)
{
    m_folder.Put("secret.DAT", "[m]\nGainType=dBi\nGain20=1\nLoss1=1\nK1=1\n");
    BandTable table;
    std::array<float, 9> coaxSpec{};
    const std::string maker = GetParam().maker;
    EXPECT_EQ(m_catalogue.LoadAntennas(maker), Names());
    EXPECT_EQ(m_catalogue.LoadAntennaGainType(maker, "m"), "");
    EXPECT_EQ(m_catalogue.LoadAntennaGain(maker, "m", table), Names());
    EXPECT_EQ(m_catalogue.LoadCableTypes(maker), Names());
    EXPECT_EQ(m_catalogue.LoadCableLoss(maker, "m", coaxSpec).Spec1, std::nullopt);
    EXPECT_EQ(m_catalogue.LoadCableKFactors(maker, "m", coaxSpec).Spec1, std::nullopt);
    EXPECT_EQ(coaxSpec, (std::array<float, 9>{}));
    EXPECT_EQ(m_folder.Names(), (Names{"Antennas", "Coax", "secret.DAT"}));
    EXPECT_TRUE(fs::is_empty(m_folder / "Antennas"));
    EXPECT_TRUE(fs::is_empty(m_folder / "Coax"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, HostileMaker, ::testing::Values(
    HostileRow{"empty", ""},
    HostileRow{"way out of the folder", "../secret"},
    HostileRow{"way out of the folder by a detour", "a/../../secret"},
    HostileRow{"way out of the folder with backslash", "..\\secret"},
    HostileRow{"the folder itself", "."},
    HostileRow{"the folder above", ".."},
    HostileRow{"two makers", "a|b"},
    HostileRow{"line end", "a\nb"},
    HostileRow{"blank", " "},
    HostileRow{"point at the end", "a."},
    HostileRow{"path from the root", "/no-such-folder/secret"}), support::RowName());

// clang-format on

/// A folder that takes no new files.
class ReadOnlyCalls : public FileCalls
{
public:
    int Open(const char* path, int flags, mode_t mode) override
    {
        if ((flags & O_CREAT) != 0) {
            errno = EROFS;
            return -1;
        }
        return FileCalls::Open(path, flags, mode);
    }
};

TEST_F(CatalogueTest, FolderThatTakesNoFilesGivesEmptyListsForMissingMakersAndReadsTheOthers)
{
    m_folder.Put("Antennas/W.DAT", "[m]\nGainType=dBd\n");
    ReadOnlyCalls calls;
    const Catalogue catalogue(ProgramFolder(m_folder / "Quillon"), std::make_shared<ProfileStore>(calls));
    EXPECT_EQ(catalogue.LoadAntennas("NEW"), Names());
    EXPECT_EQ(catalogue.LoadCableTypes("NEW"), Names());
    EXPECT_EQ(catalogue.LoadAntennas("W"), Names{"m"});
    EXPECT_EQ(catalogue.LoadAntennaGainType("W", "m"), "dBd");
    EXPECT_EQ(Antennas(), Names{"W.DAT"});
}

TEST_F(CatalogueTest, MissingFoldersGiveEmptyListsAndNoError)
{
    const Catalogue catalogue(ProgramFolder(m_folder / "missing/Quillon"));
    BandTable table;
    std::array<float, 9> coaxSpec{};
    EXPECT_EQ(catalogue.LoadAntennaMakers(), Names());
    EXPECT_EQ(catalogue.LoadAntennas("A"), Names());
    EXPECT_EQ(catalogue.LoadAntennaGainType("A", "m"), "");
    EXPECT_EQ(catalogue.LoadAntennaGain("A", "m", table), Names());
    EXPECT_EQ(catalogue.LoadCableMakers(), Names());
    EXPECT_EQ(catalogue.LoadCableTypes("A"), Names());
    EXPECT_EQ(catalogue.LoadCableLoss("A", "m", coaxSpec).Spec2, std::nullopt);
    EXPECT_FALSE(fs::exists(m_folder / "missing"));
}

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

TEST_F(CatalogueTest, FilesAreSeenAsTheyAreNow)
{
    m_folder.Put("Antennas/W.DAT", "[a]\n");
    EXPECT_EQ(m_catalogue.LoadAntennas("W"), Names{"a"});
    m_folder.Put("Antennas/W.DAT", "[b]\n");
    EXPECT_EQ(m_catalogue.LoadAntennas("W"), Names{"b"});
}

TEST_F(CatalogueTest, SharedStoreShowsTheEditsOfAnOpenBatch)
{
    const auto store = std::make_shared<ProfileStore>();
    const ProgramFolder folder(m_folder / "Quillon");
    const Catalogue catalogue(folder, store);
    m_folder.Put("Antennas/W.DAT", "[a]\n");
    const ProfileBatch batch(*store, folder.AntennaFile("W"));
    store->Edit(folder.AntennaFile("W"), {"b", "GainType", "dBd"});
    EXPECT_EQ(catalogue.LoadAntennas("W"), (Names{"a", "b"}));
    EXPECT_EQ(m_catalogue.LoadAntennas("W"), Names{"a"});
}

} // namespace
} // namespace quillon::store
