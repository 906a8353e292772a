#include "tests/ui/main/window_fixture.h"

#include <filesystem>
#include <fstream>
#include <map>

namespace quillon::ui {
namespace {

namespace fs = std::filesystem;

/// What stands in a folder: the bytes of files, "link" and "folder" for the rest.
std::map<std::string, std::string> Contents(const fs::path& folder)
{
    std::map<std::string, std::string> contents;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        std::string& bytes = contents[entry.path().string()];
        if (entry.is_symlink()) {
            bytes = "link";
        } else if (entry.is_directory()) {
            bytes = "folder";
        } else {
            std::ifstream file(entry.path(), std::ios::binary);
            bytes.assign(std::istreambuf_iterator<char>(file), {});
        }
    }
    return contents;
}

class HostileFolder : public WindowTest
{
protected:
    /// Chooses every entry of every list of a system, so that every file is read.
    void ChooseEverything()
    {
        for (int brand = 0; brand < List("cboSystemOneAntenna(0)").count(); ++brand) {
            List("cboSystemOneAntenna(0)").Choose(brand);
            for (int model = 0; model < List("cboSystemOneAntenna(1)").count(); ++model) {
                List("cboSystemOneAntenna(1)").Choose(model);
                for (int band = 0; band < List("cboSystemOneAntenna(2)").count(); ++band) {
                    List("cboSystemOneAntenna(2)").Choose(band);
                }
            }
        }
        for (int brand = 0; brand < List("cboSystemTwoCoax(0)").count(); ++brand) {
            List("cboSystemTwoCoax(0)").Choose(brand);
            for (int type = 0; type < List("cboSystemTwoCoax(1)").count(); ++type) {
                List("cboSystemTwoCoax(1)").Choose(type);
            }
        }
    }

    void ExpectInputsWork()
    {
        Choose("cboSystemOneAntenna(0)", "HALO");
        Paste("txtOutputPower(1)", "50");
        EXPECT_EQ(systems.Data[engine::SystemId::One].XmitPower, 50.0F);
    }
};

TEST_F(HostileFolder, MissingFoldersGiveEmptyLists)
{
    fs::remove_all(folder / "Antennas");
    fs::remove_all(folder / "Coax");
    Open();
    EXPECT_EQ(List("cboSystemOneAntenna(0)").count(), 0);
    EXPECT_EQ(List("cboSystemTwoCoax(0)").count(), 0);
    EXPECT_TRUE(Window().FormLoaded());
    EXPECT_TRUE(folder.Names().empty());
    Paste("txtOutputPower(1)", "50");
    EXPECT_EQ(Text("lblFeedPointPower(1)"), "50.00");
}

TEST_F(HostileFolder, EmptyFoldersGiveEmptyLists)
{
    fs::remove_all(folder / "Antennas");
    fs::remove_all(folder / "Coax");
    fs::create_directory(folder / "Antennas");
    fs::create_directory(folder / "Coax");
    Open();
    EXPECT_EQ(List("cboSystemOneAntenna(0)").count(), 0);
    EXPECT_EQ(List("cboSystemTwoCoax(0)").count(), 0);
    EXPECT_TRUE(fs::is_empty(folder / "Antennas"));
}

TEST_F(HostileFolder, StrangeFilesAreReadWithoutHarmAndLeftAsTheyAre)
{
    std::string binary;
    for (int byte = 0; byte < 4096; ++byte) {
        binary.push_back(static_cast<char>(byte * 7 % 256));
    }
    for (const std::string kind : {"Antennas/", "Coax/"}) {
        fs::create_directory(folder / (kind + "FOLDER.DAT"));
        folder.Put(kind + "BINARY.DAT", binary);
        folder.Put(kind + "EMPTY.DAT", "");
        folder.Put(kind + "ENDLESS.DAT", "[" + std::string(100000, 'x'));
        folder.Put(kind + "VALUES.DAT", "[X]\nGainType=\nGain20=abc\nGain10=99999999999\nLoss10=abc\nLoss50=1e99\n");
        folder.Put(kind + "lower.dat", "[X]\nGain20=10\nLoss10=1\n");
        folder.Put(kind + ".DAT", "[X]\nGain20=10\nLoss10=1\n");
        folder.Put(kind + "NOT.DATA", "[X]\n");
        fs::create_symlink("/nowhere/at/all", folder / (kind + "DANGLING.DAT"));
        fs::create_symlink("ROUND.DAT", folder / (kind + "ROUND.DAT"));
        fs::create_symlink("/dev/zero", folder / (kind + "DEVICE.DAT"));
    }
    const auto before = Contents(folder.Path());

    Open();
    ChooseEverything();

    EXPECT_EQ(Contents(folder.Path()), before);
    ExpectInputsWork();
}

TEST_F(HostileFolder, FolderAndFilesWithoutABaseNameAreNoMakers)
{
    fs::create_directory(folder / "Antennas/FOLDER.DAT");
    folder.Put("Antennas/.DAT", "[X]\n");
    folder.Put("Antennas/NOT.DATA", "[X]\n");
    folder.Put("Antennas/lower.dat", "[X]\nGain20=10\n");
    Open();
    EXPECT_EQ(Entries("cboSystemOneAntenna(0)"), "HALO|Hamwire|WIRECRAFT|alpha|lower");
    Choose("cboSystemOneAntenna(0)", "lower");
    EXPECT_EQ(Entries("cboSystemOneAntenna(1)"), "X");
}

TEST_F(HostileFolder, GainThatIsNoNumberIsZero)
{
    folder.Put("Antennas/VALUES.DAT", "[X]\nGainType=dBd\nGain20=abc\n");
    Open();
    Choose("cboSystemOneAntenna(0)", "VALUES");
    Choose("cboSystemOneAntenna(1)", "X");
    Choose("cboSystemOneAntenna(2)", "20 Meters");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaGain, 0.0F);
    EXPECT_EQ(Text("lblERP(1)"), "100.00");
}

TEST_F(HostileFolder, FileThatGoesAwayLeavesAnEmptyChoice)
{
    Open();
    fs::remove(folder / "Coax/CABLEWORKS.DAT");
    Choose("cboSystemOneCoax(0)", "CABLEWORKS");
    EXPECT_EQ(List("cboSystemOneCoax(1)").count(), 0);
    EXPECT_EQ(systems.Data[engine::SystemId::One].UseCoaxList, engine::kFalse);
}

TEST_F(HostileFolder, FolderThatGoesAwayIsNoHarm)
{
    Open();
    Choose("cboSystemOneAntenna(0)", "WIRECRAFT");
    Choose("cboSystemOneAntenna(1)", "BEAM FOUR");
    fs::remove_all(folder / "Antennas");
    Choose("cboSystemOneAntenna(2)", "20 Meters");
    Choose("cboSystemOneAntenna(0)", "HALO");
    EXPECT_EQ(List("cboSystemOneAntenna(1)").count(), 0);
    Window().LoadAntennaMakers();
    EXPECT_EQ(List("cboSystemOneAntenna(0)").count(), 0);
}

} // namespace
} // namespace quillon::ui
