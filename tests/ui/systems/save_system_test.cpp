#include "tests/support/row_name.h"
#include "tests/ui/systems/save_system_fixture.h"

#include <gmock/gmock.h>

namespace quillon::ui {
namespace {

using engine::SystemId;

TEST_F(SaveSystemTest, OpensWithBothSystemsAndTheFirstOnesAntennaAsName)
{
    Open();
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save Current Antenna System"));
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "Wirecraft / Beam Four");
    EXPECT_EQ(LinesOf(dialog, "lblSave"),
              "Wirecraft - Beam Four|Cableworks - RG-8X|Mastline - Vertical 5|TIMES MICROWAVE - LMR-400");
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Save System");
    EXPECT_EQ(TextOf(dialog, "cmdCancel"), "&Close");
    EXPECT_TRUE(MaySave());
    EXPECT_EQ(Focus(), "txtSystemName");
    EXPECT_TRUE(notifier.Messages().empty());
    EXPECT_TRUE(window.Calls().empty());
    EXPECT_EQ(Bytes(), "");
}

TEST_F(SaveSystemTest, TextsAreShownWithoutBlanksAndInLetters)
{
    window.Systems().Data[SystemId::One].AntennaBrand = "  M\xFChle ";
    window.Systems().Data[SystemId::One].AntennaModel = " <b>A & B</b>";
    Open();
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "Mühle / <b>A & B</b>");
    EXPECT_THAT(LinesOf(dialog, "lblSave"), testing::StartsWith("Mühle - <b>A & B</b>|"));
}

struct ProposalRow
{
    const char* name;
    const char* brandOne;
    const char* modelOne;
    const char* brandTwo;
    const char* modelTwo;
    const char* proposed;
};

class ProposedName : public SaveSystemTest, public ::testing::WithParamInterface<ProposalRow>
{
};

TEST_P(ProposedName, IsTheFirstAntennaThereIs)
{
    const ProposalRow& row = GetParam();
    window.Systems() = {};
    window.Systems().Data[SystemId::One].AntennaBrand = row.brandOne;
    window.Systems().Data[SystemId::One].AntennaModel = row.modelOne;
    window.Systems().Data[SystemId::Two].AntennaBrand = row.brandTwo;
    window.Systems().Data[SystemId::Two].AntennaModel = row.modelTwo;
    Open();
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), row.proposed);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Antennas, ProposedName, ::testing::Values(
    ProposalRow{"both systems", "A", "B", "C", "D", "A / B"},
    ProposalRow{"system two alone", "", "", "C", "D", "C / D"},
    ProposalRow{"brand alone", "A", "", "C", "D", "A / "},
    ProposalRow{"model alone", "", "B", "C", "D", " / B"},
    ProposalRow{"none", "", "", "", "", ""}), support::RowName());

// clang-format on

TEST_F(SaveSystemTest, WithoutAntennaThereIsNothingToSave)
{
    window.Systems() = {};
    Open();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{"There is no system configured to save!", "Saved Systems"})});
    EXPECT_FALSE(MaySave());
    EXPECT_EQ(Focus(), "cmdCancel");
    EXPECT_EQ(LinesOf(dialog, "lblSave"), " - | - | - | - ");
}

TEST_F(SaveSystemTest, WithoutFileNothingIsShownAndNothingCanBeSaved)
{
    std::filesystem::remove(folder / "QuillonSystems.dat");
    Open();
    EXPECT_EQ(notifier.Messages(), std::vector{(Message{MissingFileText(), "Data File Missing"})});
    EXPECT_FALSE(MaySave());
    EXPECT_EQ(Focus(), "cmdCancel");
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "");
    EXPECT_EQ(LinesOf(dialog, "lblSave"), "|||");
}

TEST_F(SaveSystemTest, EachOpeningStartsFromTheDesignedState)
{
    window.Systems() = {};
    Open();
    dialog.reject();
    window.Systems().Data = support::SamplePair();
    Open();
    EXPECT_TRUE(MaySave());
    Press();
    Press();
    window.Systems().Data[SystemId::One].AntennaModel = "Beam Five";
    Open();
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Save System");
    EXPECT_EQ(TextOf(dialog, "txtSystemName"), "Wirecraft / Beam Five");
    EXPECT_EQ(Focus(), "txtSystemName");
}

TEST_F(SaveSystemTest, CancelAndEscCloseWithoutWriting)
{
    Open();
    ClickOn(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    Open();
    test::Click(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Bytes(), "");
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(SaveSystemTest, EnterInTheNameSavesNothing)
{
    Open();
    test::Click(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Bytes(), "");
}

TEST_F(SaveSystemTest, EnterOnTheButtonPressesIt)
{
    Open();
    test::Click(dialog, Qt::Key_Tab);
    test::Click(dialog, Qt::Key_Return);
    EXPECT_EQ(TextOf(dialog, "cmdSave"), "&Close");
    test::Click(dialog, Qt::Key_Enter);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SaveSystemTest, IsModalUntilItIsClosed)
{
    bool isSeen = false;
    WhenModal([this, &isSeen](QWidget& modal) {
        isSeen = &modal == &dialog && TextOf(dialog, "txtSystemName") == "Wirecraft / Beam Four";
        dialog.reject();
    });
    dialog.Open();
    EXPECT_TRUE(isSeen);
}

} // namespace
} // namespace quillon::ui
