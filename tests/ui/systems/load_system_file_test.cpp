#include "tests/support/row_name.h"
#include "tests/ui/systems/load_system_fixture.h"

namespace quillon::ui {
namespace {

using engine::SystemId;

TEST_F(LoadSystemTest, MissingFileIsToldAndTheListIsEmpty)
{
    dialog.Prepare();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{MissingFileText(), "Data File Missing"})});
    EXPECT_EQ(Entries(), "");
    EXPECT_EQ(TextOf(dialog, "cmdLoad"), "C&lose");
    EXPECT_FALSE(IsEnabled("cmdCancel"));
}

TEST_F(LoadSystemTest, LoadedRecordsHoldNothingOfTheOldOnes)
{
    Open(kTwoPairs);
    ClickOn(dialog, "cmdLoad");
    for (const SystemId system : engine::kBothSystems) {
        EXPECT_EQ(window.Systems().Data[system].GainType, "");
        EXPECT_EQ(window.Systems().Data[system].UseAntennaList, engine::kFalse);
        EXPECT_EQ(window.Systems().Data[system].UseCoaxList, engine::kFalse);
        EXPECT_EQ(window.Systems().Data[system].ConnectorLoss, 0.0F);
    }
}

struct DamageRow
{
    const char* name;
    const char* from; ///< what a good file holds in its place
    const char* to;
    const char* message;
};

class DamagedPair : public LoadSystemTest, public ::testing::WithParamInterface<DamageRow>
{
protected:
    static std::string File()
    {
        std::string bytes = kTwoPairs;
        const std::string from = GetParam().from;
        bytes.replace(bytes.rfind(from), from.size(), GetParam().to);
        return bytes;
    }
};

TEST_P(DamagedPair, IsRefusedBeforeARecordIsTouched)
{
    Open(File());
    test::Click(dialog, Qt::Key_Down);
    const Message message{GetParam().message, "Load an Antenna System"};
    EXPECT_EQ(notifier.Messages(), std::vector{message});
    EXPECT_EQ(LinesOf(dialog, "lblSelect"), "Mühle - | - | - | - ");
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(notifier.Messages(), (std::vector{message, message}));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(RecordsAreUntouched());
    EXPECT_TRUE(window.Calls().empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Values, DamagedPair, ::testing::Values(
    DamageRow{"gain missing", "System1AntennaGain=1\n", "",
              "“Field Day” cannot be loaded: its System1AntennaGain is missing."},
    DamageRow{"gain of system two empty", "System2AntennaGain=-2.5", "System2AntennaGain=",
              "“Field Day” cannot be loaded: its System2AntennaGain is missing."},
    DamageRow{"coax type no number", "System2CoaxType=1", "System2CoaxType=%1<b>",
              "“Field Day” cannot be loaded: its System2CoaxType is “%1<b>”, which is not a number."},
    DamageRow{"coax type too large", "System2CoaxType=1", "System2CoaxType=32768",
              "“Field Day” cannot be loaded: its System2CoaxType is “32768”, which is too large."},
    DamageRow{"coax loss no number", "System1CoaxLoss=2", "System1CoaxLoss=two",
              "“Field Day” cannot be loaded: its System1CoaxLoss is “two”, which is not a number."},
    DamageRow{"results that would overflow", "System2CoaxLoss=0\nSystem2CoaxLength=0",
              "System2CoaxLoss=3e38\nSystem2CoaxLength=3e38",
              "“Field Day” cannot be loaded: the figures of its System2 cannot be computed with."},
    DamageRow{"coax length missing", "System2CoaxLength=0\n", "",
              "“Field Day” cannot be loaded: its System2CoaxLength is missing."}), support::RowName());

// clang-format on

TEST_F(LoadSystemTest, MissingConnectorsAndVSWRHaveTheirDefaults)
{
    std::string bytes = kTwoPairs;
    for (const std::string line : {"System1Connectors=2\n", "System1VSWR=1.5\n", "System2Connectors=4\n"}) {
        bytes.erase(bytes.find(line), line.size());
    }
    Open(bytes);
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(window.Systems().Data[SystemId::One].Connectors, 2);
    EXPECT_EQ(window.Systems().Data[SystemId::Two].Connectors, 2);
    EXPECT_EQ(window.Systems().Data[SystemId::One].VSWR, 1.1F);
}

TEST_F(LoadSystemTest, FirstEntryWithoutSectionIsShownBlankAndToldOnlyWhenLoaded)
{
    Open("[SavedSystems]\nSystem:1=Gone\n");
    EXPECT_EQ(LinesOf(dialog, "lblSelect"), " - | - | - | - ");
    EXPECT_TRUE(notifier.Messages().empty());
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{"“Gone” cannot be loaded: its System1AntennaGain is missing.",
                                                        "Load an Antenna System"})});
    EXPECT_TRUE(RecordsAreUntouched());
}

TEST_F(LoadSystemTest, FileThatHasGoneMeanwhileIsToldAndNothingIsLoaded)
{
    Open(kTwoPairs);
    std::filesystem::remove(folder / "QuillonSystems.dat");
    ClickOn(dialog, "cmdLoad");
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{MissingFileText(), "Data File Missing"})});
    EXPECT_TRUE(RecordsAreUntouched());
    EXPECT_TRUE(dialog.isVisible());
}

} // namespace
} // namespace quillon::ui
