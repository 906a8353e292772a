#include "engine/calculations.h"
#include "engine/coax_model.h"
#include "engine/mask.h"
#include "engine/number_text.h"
#include "store/catalogue.h"
#include "tests/support/recording_display.h"
#include "tests/support/recording_hooks.h"
#include "tests/ui/help/shipped_help.h"

#include <gmock/gmock.h>

namespace quillon::ui {
namespace {

using engine::SystemId;

/// The help's first comparison through the engine and the shipped catalogues. By hand: RG-58C/U has 1.4 dB at 10 MHz
/// and 3.3 at 50, so 1.4 + 0.01 + 0.2 * 1.9 = 1.79 at 14.25 MHz; RG-213/U 0.55 + 0.01 + 0.2 * 0.75 = 0.71. 1.8 dB pass
/// 0.6605, 0.7 dB 0.8511. TH3MK3 has 7.1 dBi, 5.0 dBd, and 5.0 dB make 3.162 of 1.
class FirstComparison : public ::testing::Test
{
protected:
    void SetUp() override
    {
        calculations.BuildDBTable();
        calculations.BuildVSWRTable();
        Choose(SystemId::One, "RG-58C/U");
        Choose(SystemId::Two, "RG-213/U");
    }

    void Choose(SystemId system, const std::string& cable)
    {
        engine::SystemData& data = systems.Data[system];
        data.XmitPower = 100;
        data.Frequency = 14.25F;
        data.VSWR = 1.1F;
        data.CoaxLength = 100;
        data.CoaxBrand = "GENERIC";
        catalogue.LoadCableLoss("GENERIC", cable, systems.CoaxSpec);
        data.CoaxLoss = engine::CoaxLossOf(data, systems.CoaxSpec);
        data.UseAntennaList = engine::kTrue;
        data.GainType = catalogue.LoadAntennaGainType("HY-GAIN", "TH3MK3");
        data.AntennaGain = engine::GainToDBd(GainOn20Meters(), data.GainType);
        systems.Results[system].AntennaGainDBd = data.AntennaGain;
        systems.Results[system].ConnectorLoss = 2 * engine::ConnectorLossPerConnector(data.Frequency);
        systems.State[system].SetFlag(engine::kComputeFlag, engine::kTrue);
        calculations.RefreshData(Number(system));
    }

    float GainOn20Meters()
    {
        store::BandTable bands;
        catalogue.LoadAntennaGain("HY-GAIN", "TH3MK3", bands);
        return engine::NumberFromText(bands.at(5).gain);
    }

    /// The column of a system in the help's table, from top to bottom.
    std::vector<std::string> Computed(SystemId system)
    {
        std::vector<std::string> texts;
        for (int label = 0; label < engine::kResultLabelCount; ++label) {
            texts.push_back(display.Result(static_cast<engine::ResultLabel>(label), system));
        }
        return texts;
    }

    /// The same column as the help has it. @param column  1 or 2
    static std::vector<std::string> Written(int column)
    {
        const QStringList cells =
            test::Cells(test::ElementOfClass(test::ShippedHelp(), QStringLiteral("table"), QStringLiteral("figures")));
        std::vector<std::string> texts;
        for (qsizetype row = 0; row + 2 < cells.size(); row += 3) {
            texts.push_back(cells.at(row + column).toStdString());
        }
        return texts;
    }

    engine::AntennaSystems systems;
    support::RecordingDisplay display;
    support::RecordingHooks hooks;
    engine::Calculations calculations{systems, display, hooks};
    store::Catalogue catalogue{store::ProgramFolder(test::ShippedData() / "Quillon")};
};

using Column = std::vector<std::string>;

const Column kSystemOne{"0.00", "0.0100", "1.79", "33.95", "5.00", "142.80", "3.2", "66.05", "208.85"};
const Column kSystemTwo{"0.00", "0.0100", "0.71", "14.89", "5.00", "184.01", "4.28", "85.11", "269.12"};

TEST_F(FirstComparison, GivesTheFiguresOfTheHelp)
{
    EXPECT_EQ(Computed(SystemId::One), kSystemOne);
    EXPECT_EQ(Computed(SystemId::Two), kSystemTwo);
    EXPECT_EQ(Written(1), kSystemOne);
    EXPECT_EQ(Written(2), kSystemTwo);
}

TEST_F(FirstComparison, DiffersByWhatTheHelpSays)
{
    const float more = systems.Results[SystemId::Two].ERP - systems.Results[SystemId::One].ERP;
    EXPECT_EQ(engine::FormatWithMask(more, "0.00"), "60.27");
    EXPECT_TRUE(test::ReadText(test::ShippedHelp()).contains(QStringLiteral("RG-213 makes 60.27 W more ERP")));
    EXPECT_TRUE(test::ReadText(test::ShippedHelp()).contains(QStringLiteral("\"System 2 ERP is + 60.27 Watts\"")));
}

// 85.11 * 0.9 = 76.599 W, and * 3.162 = 242.206 W.
TEST_F(FirstComparison, FallsWithTheVSWRAsTheHelpSays)
{
    systems.Data[SystemId::Two].VSWR = 2;
    calculations.RefreshData(2);
    EXPECT_EQ(engine::FormatWithMask(systems.Results[SystemId::Two].ERP, "0.00"), "242.21");
    EXPECT_TRUE(test::ReadText(test::ShippedHelp()).contains(QStringLiteral("Its ERP falls to 242.21 W")));
}

} // namespace
} // namespace quillon::ui
