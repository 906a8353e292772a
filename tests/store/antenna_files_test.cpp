#include "store/antenna_files.h"

#include "engine/arithmetic_error.h"
#include "tests/store/failing_calls.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_literals;

constexpr auto kToday = 2026y / 3 / 7;

class AntennaFilesTest : public ::testing::Test
{
protected:
    AntennaFilesTest() { fs::create_directory(folder / "Antennas"); }

    std::string Brand(const std::string& name) { return folder.Get("Antennas/" + name).value_or("no file"); }

    std::string Index() { return Brand("ANTENNAS.ZEP"); }

    /// How often a command has put a new file in the place of an old one.
    [[nodiscard]] auto Replacements() const { return std::ranges::count(calls.Made(), "rename"); }

    support::TempFolder folder;
    FailingCalls calls;
    ProfileStore store{calls};
    AntennaFiles files{ProgramFolder(folder / "Quillon"), store};
};

struct TenthsRow
{
    const char* name;
    double decibels;
    int tenths;
};

class GainTenths : public ::testing::TestWithParam<TenthsRow>
{
};

TEST_P(GainTenths, AreRoundedWithHalvesToEven)
{
    EXPECT_EQ(ToGainTenths(GetParam().decibels), GetParam().tenths);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Figures, GainTenths, ::testing::Values(
    TenthsRow{"zero", 0, 0},
    TenthsRow{"tenths stay", 7.1, 71},
    TenthsRow{"51.5 goes up to the even 52", 5.15, 52},
    TenthsRow{"22.5 goes down to the even 22", 2.25, 22},
    TenthsRow{"50.5 goes down to the even 50", 5.05, 50},
    TenthsRow{"3.5 goes up to the even 4", 0.35, 4},
    TenthsRow{"below the half", 5.149, 51},
    TenthsRow{"negative half to even", -2.25, -22},
    TenthsRow{"negative", -1.6, -16},
    TenthsRow{"largest", 3276.7, 32767},
    TenthsRow{"rounded before it is judged", 3276.74, 32767},
    TenthsRow{"smallest", -3276.8, -32768}), support::RowName());

// clang-format on

TEST(GainTenths, BeyondSixteenBitsIsAnError)
{
    EXPECT_THROW((void)ToGainTenths(3276.8), engine::ArithmeticError);
    EXPECT_THROW((void)ToGainTenths(-3276.9), engine::ArithmeticError);
    EXPECT_THROW((void)ToGainTenths(1e300), engine::ArithmeticError);
}

TEST_F(AntennaFilesTest, NewMakerGetsAnEmptyFile)
{
    EXPECT_FALSE(files.BrandFileExists("Acme"));
    EXPECT_TRUE(files.CreateBrandFile("Acme"));
    EXPECT_TRUE(files.BrandFileExists("Acme"));
    EXPECT_EQ(Brand("Acme.DAT"), "");
}

TEST_F(AntennaFilesTest, OverwritingAMakerKeepsItsModelsAsGiven)
{
    folder.Put("Antennas/Acme.DAT", "[XR-5]\nGain20=71\n");
    EXPECT_TRUE(files.BrandFileExists("Acme"));
    EXPECT_TRUE(files.CreateBrandFile("Acme"));
    EXPECT_EQ(Brand("Acme.DAT"), "[XR-5]\nGain20=71\n");
}

TEST_F(AntennaFilesTest, MakerIsFoundWhateverTheCaseOfItsFileName)
{
    folder.Put("Antennas/foo.dat", "[M]\n");
    EXPECT_TRUE(files.BrandFileExists("FOO"));
    EXPECT_TRUE(files.CreateBrandFile("FOO"));
    EXPECT_TRUE(files.AddModel("FOO", "M2", IfModelFound::Replace));
    EXPECT_EQ(Brand("foo.dat"), "[M]\n[M2]\nGainType=dBd\n");
    EXPECT_FALSE(fs::exists(folder / "Antennas/FOO.DAT"));
}

class HostileBrand : public AntennaFilesTest, public ::testing::WithParamInterface<const char*>
{
};

TEST_P(HostileBrand, ReachesNoFile)
{
    folder.Put("X.DAT", "[m]\nGainType=dBi\n");
    EXPECT_FALSE(files.BrandFileExists(GetParam()));
    EXPECT_FALSE(files.CreateBrandFile(GetParam()));
    EXPECT_EQ(files.FirstModelWith(GetParam(), "m"), std::nullopt);
    EXPECT_FALSE(files.AddModel(GetParam(), "m", IfModelFound::Replace));
    EXPECT_FALSE(files.SaveChanges(GetParam(), "m", {"dBd", {}}));
    EXPECT_FALSE(files.UpdateIndex(GetParam(), kToday));
    EXPECT_EQ(folder.Get("X.DAT"), "[m]\nGainType=dBi\n");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"Antennas", "X.DAT"}));
    EXPECT_TRUE(fs::is_empty(folder / "Antennas"));
}

INSTANTIATE_TEST_SUITE_P(Names, HostileBrand,
                         ::testing::Values("", ".", "..", "../X", "/X", "a\\b", "a|b", "a\nb", "a.", "a "));

TEST_F(AntennaFilesTest, NamesOfMoreThan25CharactersAreReadButNotMade)
{
    const std::string name(26, 'n');
    EXPECT_FALSE(files.CreateBrandFile(name));
    EXPECT_FALSE(files.BrandFileExists(name));
    folder.Put("Antennas/" + name + ".DAT", "[M]\n");
    EXPECT_EQ(files.FirstModelWith(name, "m"), "M");
    EXPECT_TRUE(files.UpdateIndex(name, kToday));
}

struct SearchRow
{
    const char* name;
    const char* model;
    std::optional<std::string> found;
};

class ModelSearch : public AntennaFilesTest, public ::testing::WithParamInterface<SearchRow>
{
};

TEST_P(ModelSearch, FindsTheFirstNameThatContainsIt)
{
    folder.Put("Antennas/Acme.DAT", "[XR-5]\nGain20=71\n[A-99]\n[a-99 b]\n[M\xFC"
                                    "hle]\n");
    EXPECT_EQ(files.FirstModelWith("Acme", GetParam().model), GetParam().found);
    EXPECT_EQ(std::ranges::count(calls.Made(), "write"), 0);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, ModelSearch, ::testing::Values(
    SearchRow{"whole name", "XR-5", "XR-5"},
    SearchRow{"part of a name, as given", "X", "XR-5"},
    SearchRow{"part inside", "r-", "XR-5"},
    SearchRow{"first of several, as given", "A", "A-99"},
    SearchRow{"other letters", "a-99", "A-99"},
    SearchRow{"longer than any", "XR-5 MKII", std::nullopt},
    SearchRow{"longer than the first only", "A-99 B", "a-99 b"},
    SearchRow{"capital of the code page", "M\xDC" "H", "M\xFC" "hle"},
    SearchRow{"other", "Q", std::nullopt}), support::RowName());

// clang-format on

TEST_F(AntennaFilesTest, NewModelStartsAsDBdInOneReplacement)
{
    folder.Put("Antennas/Acme.DAT", "[XR-5]\r\nGainType=dBi\r\n");
    calls.FailAt(0, 0);
    EXPECT_TRUE(files.AddModel("Acme", "Loop (M\xFChle)", IfModelFound::Refuse));
    EXPECT_EQ(Brand("Acme.DAT"), "[XR-5]\r\nGainType=dBi\r\n[Loop (M\xFChle)]\r\nGainType=dBd\r\n");
    EXPECT_EQ(Replacements(), 1);
}

TEST_F(AntennaFilesTest, ReplacingAModelSetsItsTypeAndKeepsItsGainsAsGiven)
{
    folder.Put("Antennas/Acme.DAT", "[XR-5]\nGainType=dBi\nGain20=71\n");
    EXPECT_TRUE(files.AddModel("Acme", "xr-5", IfModelFound::Replace));
    EXPECT_EQ(Brand("Acme.DAT"), "[XR-5]\nGainType=dBd\nGain20=71\n");
}

TEST_F(AntennaFilesTest, ModelIsNotReplacedUnasked)
{
    folder.Put("Antennas/Acme.DAT", "[XR-5]\nGainType=dBi\nGain20=71\n");
    EXPECT_FALSE(files.AddModel("Acme", "xr-5", IfModelFound::Refuse));
    EXPECT_FALSE(files.AddModel("Acme", "X", IfModelFound::Refuse));
    EXPECT_EQ(Brand("Acme.DAT"), "[XR-5]\nGainType=dBi\nGain20=71\n");
}

TEST_F(AntennaFilesTest, ModelNamesThatWouldNotReadBackAreNotAdded)
{
    for (const char* name : {"", " M", "M ", "\"M\"", "a\nb", "a\tb"}) {
        EXPECT_FALSE(files.AddModel("Acme", name, IfModelFound::Replace)) << name;
    }
    EXPECT_EQ(Brand("Acme.DAT"), "");
}

TEST_F(AntennaFilesTest, SavingWritesCoveredBandsAndRemovesTheOthersInOneReplacement)
{
    folder.Put("Antennas/Acme.DAT", "[A]\r\nGain20=1\r\n[B]\r\nGainType=dBd\r\nGain40=33\r\nGain20=71\r\nNote=x\r\n");
    ModelFigures figures{"dBi", {}};
    figures.GainTenths[5] = std::int16_t{52};
    figures.GainTenths[1] = std::int16_t{0};
    figures.GainTenths[13] = std::int16_t{-16};
    calls.FailAt(0, 0);
    EXPECT_TRUE(files.SaveChanges("Acme", "B", figures));
    EXPECT_EQ(Brand("Acme.DAT"), "[A]\r\nGain20=1\r\n"
                                 "[B]\r\nGainType=dBi\r\nGain20=52\r\nNote=x\r\nGain80=0\r\nGain.70=-16\r\n");
    EXPECT_EQ(Replacements(), 1);
}

TEST_F(AntennaFilesTest, EveryBandHasItsKey)
{
    folder.Put("Antennas/Acme.DAT", "");
    ModelFigures figures{"dBd", {}};
    for (std::size_t place = 0; place < figures.GainTenths.size(); ++place) {
        figures.GainTenths.at(place) = static_cast<std::int16_t>(10 + place);
    }
    EXPECT_TRUE(files.SaveChanges("Acme", "B", figures));
    EXPECT_EQ(Brand("Acme.DAT"), "[B]\r\nGainType=dBd\r\nGain160=10\r\nGain80=11\r\nGain60=12\r\nGain40=13\r\n"
                                 "Gain30=14\r\nGain20=15\r\nGain17=16\r\nGain15=17\r\nGain12=18\r\nGain10=19\r\n"
                                 "Gain6=20\r\nGain2=21\r\nGain1.25=22\r\nGain.70=23\r\n");
}

TEST_F(AntennaFilesTest, SavingAModelWithoutNameWritesNothing)
{
    folder.Put("Antennas/Acme.DAT", "[A]\n");
    EXPECT_FALSE(files.SaveChanges("Acme", "", {"dBd", {}}));
    EXPECT_EQ(Brand("Acme.DAT"), "[A]\n");
}

} // namespace
} // namespace quillon::store
