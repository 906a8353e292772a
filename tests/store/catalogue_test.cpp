#include "store/profile_batch.h"
#include "tests/store/catalogue_fixture.h"
#include "tests/support/row_name.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using Names = std::vector<std::string>;

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

TEST_F(CatalogueTest, MakersThatDifferInCaseAloneAreTwo)
{
    m_folder.Put("Antennas/A.DAT", "[upper]\n");
    m_folder.Put("Antennas/a.dat", "[lower]\n");
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), (Names{"A", "a"}));
    EXPECT_EQ(m_catalogue.LoadAntennas("A"), Names{"upper"});
    EXPECT_EQ(m_catalogue.LoadAntennas("a"), Names{"lower"});
}

TEST_F(CatalogueTest, FilesThatDifferInTheCaseOfTheirExtensionAreOneMaker)
{
    m_folder.Put("Antennas/Foo.DAT", "[first]\n");
    m_folder.Put("Antennas/Foo.X.DAT", "");
    m_folder.Put("Antennas/Foo.dat", "[second]\n");
    EXPECT_EQ(m_catalogue.LoadAntennaMakers(), (Names{"Foo", "Foo.X"}));
    EXPECT_EQ(m_catalogue.LoadAntennas("Foo"), Names{"first"});
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
