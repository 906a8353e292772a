#include "tests/ui/main/window_fixture.h"
#include "tests/ui/systems/systems_fixture.h"
#include "ui/systems/load_system.h"
#include "ui/systems/save_system.h"

#include <array>
#include <optional>
#include <random>

namespace quillon::ui {
namespace {

using engine::SystemId;

struct Antenna
{
    const char* brand;
    const char* model;
    const char* band;
};

struct Coax
{
    const char* brand;
    const char* type;
};

constexpr std::array kAntennas{Antenna{"WIRECRAFT", "BEAM FOUR", "10 Meters"},
                               Antenna{"WIRECRAFT", "ALL BANDS", "160 Meters"},
                               Antenna{"WIRECRAFT", "ALL BANDS", "1.25 Meters"},
                               Antenna{"WIRECRAFT", "SEVENTEEN-LETTERS", "20 Meters"},
                               Antenna{"HALO", "LOOP", "6 Meters"},
                               Antenna{"Hamwire", "DIPOLE", "40 Meters"}};
constexpr std::array kCables{Coax{"CABLEWORKS", "RG-8X"}, Coax{"CABLEWORKS", "RG-58"}, Coax{"CABLEWORKS", "OPEN LINE"},
                             Coax{"TIMES MICROWAVE", "LMR-A"}};
constexpr std::array kPowers{"1", "100", "1500", "2000"};
constexpr std::array kLengths{"1", "62.5", "100", "350"};
constexpr std::array kConnectors{"0", "2", "7"};

/// The real window, whose pairs are saved and loaded with the real dialogs.
class RoundTrip : public WindowTest
{
protected:
    void SetUp() override
    {
        folder.Put("QuillonSystems.dat", "");
        Open();
        save.emplace(Window(), readWrite, store, notifier);
        load.emplace(Window(), readWrite, store, notifier);
    }

    void SetUpSystems(unsigned seed)
    {
        std::mt19937 random(seed);
        const auto pick = [&random](const auto& choices) { return choices.at(random() % choices.size()); };
        for (const SystemId system : engine::kBothSystems) {
            const std::string name = system == SystemId::One ? "SystemOne" : "SystemTwo";
            const std::string index = "(" + std::to_string(Number(system)) + ")";
            const Antenna antenna = pick(kAntennas);
            const Coax coax = pick(kCables);
            Paste("txtOutputPower" + index, pick(kPowers));
            Paste("txt" + name + "CoaxLength", pick(kLengths));
            Choose("cbo" + name + "Coax(0)", coax.brand);
            Choose("cbo" + name + "Coax(1)", coax.type);
            Choose("cbo" + name + "Antenna(0)", antenna.brand);
            Choose("cbo" + name + "Antenna(1)", antenna.model);
            Choose("cbo" + name + "Antenna(2)", antenna.band);
            Paste("txt" + name + "NumConnectors", pick(kConnectors));
            ClickUp("vsVSWR(" + std::to_string(2 * Number(system) - 1) + ")", static_cast<int>(random() % 9));
        }
    }

    /// All results of both systems as they are shown, one a line.
    std::string Shown()
    {
        std::string shown;
        for (const char* label :
             {"lblVSWRReturnLoss(1)", "lblVSWRReturnLoss(2)", "lblVSWRReturnLoss(3)", "lblVSWRReturnLoss(4)",
              "lblCoaxDBLoss(1)", "lblCoaxDBLoss(2)", "lblCoaxPowerLoss(1)", "lblCoaxPowerLoss(2)", "lblAntennaGain(1)",
              "lblAntennaGain(2)", "lblAntennaWGain(1)", "lblAntennaWGain(2)", "lblSystemGain(1)", "lblSystemGain(2)",
              "lblFeedPointPower(1)", "lblFeedPointPower(2)", "lblERP(1)", "lblERP(2)"}) {
            shown.append(label).append(" ").append(Text(label)).append("\n");
        }
        return shown;
    }

    void Save()
    {
        save->Prepare();
        save->show();
        ClickOn(*save, "cmdSave");
        ClickOn(*save, "cmdSave");
    }

    void Load()
    {
        load->Prepare();
        load->show();
        ClickOn(*load, "cmdLoad");
    }

    store::ProfileStore store;
    store::ReadWrite readWrite{store::ProgramFolder(folder / "Quillon"), store, notifier};
    std::optional<SaveSystem> save;
    std::optional<LoadSystem> load;
};

TEST_F(RoundTrip, LoadedPairHasTheRecordsAndResultsThatWereSaved)
{
    for (unsigned seed = 0; seed < 12; ++seed) {
        folder.Put("QuillonSystems.dat", "");
        SetUpSystems(seed);
        const auto data = systems.Data;
        const auto results = systems.Results;
        const std::string shown = Shown();
        Save();
        SetUpSystems(seed + 100);
        EXPECT_NE(Shown(), shown);
        Load();
        EXPECT_EQ(Shown(), shown) << seed;
        EXPECT_EQ(systems.Data, data) << seed;
        EXPECT_EQ(systems.Results, results) << seed;
    }
}

} // namespace
} // namespace quillon::ui
