#include "tests/ui/main/test_catalogue.h"
#include "tests/ui/main/window_fixture.h"

#include <filesystem>

namespace quillon::ui {
namespace {

namespace fs = std::filesystem;

/// A maker's file that cannot be read just when its figures are to be taken over: the record, which may be saved, keeps
/// those it has.
class Unreadable : public EachSystem
{
protected:
    std::string Brands() const { return Spelled("cboSystem%Antenna", 0); }

    std::string Bands() const { return Spelled("cboSystem%Antenna", 2); }

    std::string Types() const { return Spelled("cboSystem%Coax", 1); }

    /// Puts a folder in a file's place, which nobody can read.
    void Take(const std::string& file)
    {
        fs::rename(folder / file, folder / "kept");
        fs::create_directory(folder / file);
    }

    void Return(const std::string& file)
    {
        fs::remove(folder / file);
        fs::rename(folder / "kept", folder / file);
    }

    const std::string m_maker = "Antennas/WIRECRAFT.DAT";
    const std::string m_cables = "Coax/CABLEWORKS.DAT";
};

TEST_P(Unreadable, BandIsMarkedAndNotTaken)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    const engine::SystemData data = Data();
    const engine::SystemResults results = Results();
    Take(m_maker);
    Choose(Bands(), "15 Meters");
    EXPECT_EQ(Data(), data);
    EXPECT_EQ(Results(), results);
    EXPECT_EQ(Text(Own("txtFrequency")), "14.250");
    EXPECT_TRUE(IsMarked(Bands()));
    EXPECT_EQ(AccessibleDescription(Bands()), "The file of “WIRECRAFT” could not be read");
}

TEST_P(Unreadable, BandIsTakenOnceItsFileCanBeReadAgain)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    Take(m_maker);
    Choose(Bands(), "15 Meters");
    Return(m_maker);
    Choose(Bands(), "15 Meters");
    EXPECT_FALSE(IsMarked(Bands()));
    EXPECT_EQ(Data().AntennaGain, 5.7F);
}

TEST_P(Unreadable, CableIsMarkedAndNotTaken)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    const engine::SystemData data = Data();
    Take(m_cables);
    Choose(Types(), "RG-58");
    EXPECT_EQ(Data(), data);
    EXPECT_TRUE(IsMarked(Types()));
    EXPECT_EQ(AccessibleDescription(Types()), "The file of “CABLEWORKS” could not be read");
    Return(m_cables);
    Choose(Types(), "RG-58");
    EXPECT_FALSE(IsMarked(Types()));
    EXPECT_EQ(Data().CoaxModel.Trimmed(), "RG-58");
}

TEST_P(Unreadable, MakerThatIsReloadedLeavesTheRecord)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    const engine::SystemData data = Data();
    Take(m_maker);
    Window().ReloadAntennas("WIRECRAFT");
    EXPECT_EQ(Data(), data);
}

TEST_P(Unreadable, ChangedGainIsTakenOverWholeOrNotWhateverCallFails)
{
    constexpr const char* kBefore = "[M]\nGainType=dBd\nGain20=50\n";
    constexpr const char* kAfter = "[M]\nGainType=dBi\nGain20=100\n";
    int followed = 0;
    int kept = 0;
    for (int failing = 1; failing < 160; ++failing) {
        folder.Put("Antennas/HALO.DAT", kBefore);
        ChooseAntenna("HALO", "M", "20 Meters");
        ASSERT_EQ(Data().AntennaGain, 5.0F);
        folder.Put("Antennas/HALO.DAT", kAfter);
        calls.FailAt(failing, EIO);
        Window().ReloadAntennas("HALO");
        calls.FailAt(0, 0);
        const bool isNew = Data().AntennaGain == 7.9F && Data().GainType == "dBi"; // 10 - 2.15 = 7.85
        EXPECT_TRUE(isNew || (Data().AntennaGain == 5.0F && Data().GainType == "dBd")) << failing;
        followed += isNew ? 1 : 0;
        kept += isNew ? 0 : 1;
    }
    EXPECT_GE(followed, 5);
    EXPECT_GE(kept, 5);
}

TEST_P(Unreadable, SavedFiguresStandWhateverCallFailsWhileTheyAreShown)
{
    engine::SystemData saved = SavedRecord();
    saved.AntennaGain = 4.5F;
    saved.CoaxLoss = 2.5F;
    int kept = 0;
    for (int failing = 1; failing < 160; ++failing) {
        Data() = saved;
        Results() = {};
        calls.FailAt(failing, EIO);
        Window().ShowRecord(Number());
        calls.FailAt(0, 0);
        EXPECT_TRUE(Data().AntennaGain == 5.0F || Data().AntennaGain == 4.5F) << failing;
        EXPECT_TRUE(Data().UseAntennaList == engine::kFalse || Results().AntennaGainDBd == Data().AntennaGain)
            << failing;
        EXPECT_TRUE(Data().CoaxLoss == 1.31F || Data().CoaxLoss == 2.5F) << failing;
        EXPECT_TRUE(!IsMarked(Bands()) || Data().UseAntennaList == engine::kTrue) << failing;
        kept += IsMarked(Bands()) || IsMarked(Types()) ? 1 : 0;
    }
    EXPECT_GE(kept, 4) << "looking at the file, opening it, asking for its size, reading it; more while it is new";
}

INSTANTIATE_TEST_SUITE_P(Files, Unreadable, BothSystems(), SystemName());

} // namespace
} // namespace quillon::ui
