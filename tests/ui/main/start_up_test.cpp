#include "tests/ui/main/window_fixture.h"

namespace quillon::ui {
namespace {

using engine::kFalse;
using engine::kTrue;

using StartUp = EachSystem;

TEST_P(StartUp, ShowsTheDefaultInputs)
{
    EXPECT_EQ(Text(Own("txtOutputPower")), "100");
    EXPECT_EQ(Text(Own("txtFrequency")), "14.250");
    EXPECT_EQ(Text(Own("txtVSWR")), "1.1");
    EXPECT_EQ(Text(Spelled("txtSystem%CoaxLength")), "100");
    EXPECT_EQ(Text(Spelled("txtSystem%NumConnectors")), "2");
}

TEST_P(StartUp, StoresTheDefaultInputs)
{
    EXPECT_EQ(Data().XmitPower, 100.0F);
    EXPECT_EQ(Data().Frequency, 14.25F);
    EXPECT_EQ(Data().VSWR, 1.1F);
    EXPECT_EQ(Data().CoaxLength, 100.0F);
    EXPECT_EQ(Data().Connectors, 2);
    EXPECT_EQ(Data().AntennaGain, 0.0F);
    EXPECT_EQ(Data().CoaxLoss, 0.0F);
    EXPECT_EQ(Data().UseAntennaList, kFalse);
    EXPECT_EQ(Data().UseCoaxList, kFalse);
    EXPECT_EQ(Data().AntennaBrand.Padded(), std::string(25, ' '));
    EXPECT_EQ(Data().CoaxBrand.Padded(), std::string(15, ' '));
}

TEST_P(StartUp, WorksOutTheConnectorLossInBothRecords)
{
    EXPECT_EQ(Data().ConnectorLoss, 0.01304F); // 2 x 0.00652
    EXPECT_EQ(Results().ConnectorLoss, 0.01304F);
}

TEST_P(StartUp, ComputesNothingElse)
{
    engine::SystemResults untouched;
    untouched.ConnectorLoss = 0.01304F;

    EXPECT_EQ(Results(), untouched);
    EXPECT_EQ(hooks.Record(), "");
    EXPECT_TRUE(notifier.Messages().empty());
}

TEST_P(StartUp, SetsTheStateFlags)
{
    const engine::SystemState& state = systems.State[System()];

    EXPECT_EQ(state.Flag(1), kTrue);
    EXPECT_EQ(state.Flag(2), kTrue);
    EXPECT_EQ(state.Flag(3), kTrue);
    EXPECT_EQ(state.Flag(4), kFalse);
    EXPECT_EQ(state.Flag(5), kFalse);
    EXPECT_EQ(state.Flag(6), kFalse);
}

TEST_P(StartUp, FillsTheBrandListsSortedByCharacterCodeAndChoosesNothing)
{
    EXPECT_EQ(Entries(Spelled("cboSystem%Antenna", 0)), "HALO|Hamwire|WIRECRAFT|alpha");
    EXPECT_EQ(Entries(Spelled("cboSystem%Coax", 0)), "CABLEWORKS|TIMES MICROWAVE");
    for (const std::string& list : {Spelled("cboSystem%Antenna", 0), Spelled("cboSystem%Coax", 0)}) {
        EXPECT_EQ(Text(list), "");
        EXPECT_FALSE(List(list).HasChoice());
    }
}

TEST_P(StartUp, LeavesTheOtherListsEmpty)
{
    for (const std::string& list :
         {Spelled("cboSystem%Antenna", 1), Spelled("cboSystem%Antenna", 2), Spelled("cboSystem%Coax", 1)}) {
        EXPECT_EQ(List(list).count(), 0) << list;
        EXPECT_EQ(Text(list), "") << list;
    }
}

TEST_P(StartUp, LeavesTheLabelsOfTheChoiceEmpty)
{
    for (const char* label : {"lblAntennaBrand", "lblAntennaModel", "lblAntennaBand", "lblCoaxBrand", "lblCoaxType"}) {
        EXPECT_EQ(Text(Own(label)), "") << label;
    }
    for (const int index : {2 * Number() - 1, 2 * Number()}) {
        EXPECT_EQ(Text("lblCoaxSpecs(" + std::to_string(index) + ")"), "");
    }
}

TEST_P(StartUp, LetsTheFrequencyBeTypedAndTurned)
{
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
    EXPECT_TRUE(Spin(Own("vsFrequency")).isEnabled());
}

TEST_P(StartUp, MarksNoBox)
{
    for (const std::string& box : {Own("txtOutputPower"), Own("txtFrequency"), Own("txtVSWR"),
                                   Spelled("txtSystem%CoaxLength"), Spelled("txtSystem%NumConnectors")}) {
        EXPECT_FALSE(IsMarked(box)) << box;
        const std::string hint = box == Spelled("txtSystem%CoaxLength") ? "30.5 m" : "";
        EXPECT_EQ(ToolTip(box), hint) << box;
        EXPECT_EQ(AccessibleDescription(box), hint) << box;
    }
}

TEST_P(StartUp, LeavesTheFiguresOfTheSavedFieldsAlone)
{
    EXPECT_EQ(Data().AntennaModel.Trimmed(), "");
    EXPECT_EQ(Data().CoaxModel.Trimmed(), "");
    EXPECT_EQ(Data().CoaxType, 0);
    EXPECT_EQ(Data().GainType, "");
}

TEST_P(StartUp, LetsTheFirstFigureBeTypedAtOnce)
{
    Type("250");
    EXPECT_EQ(Text("txtOutputPower(1)"), "250");
}

INSTANTIATE_TEST_SUITE_P(Window, StartUp, BothSystems(), SystemName());

TEST_F(WindowTest, IsLoadedOnlyAfterItsStartUpSequence)
{
    Make();
    EXPECT_FALSE(Window().FormLoaded());
    EXPECT_EQ(systems.State[engine::SystemId::One].Flag(3), kFalse);

    Window().Load();
    EXPECT_TRUE(Window().FormLoaded());
}

TEST_F(WindowTest, StartsWithCatalogueDataChosenAndTypedFiguresAtZero)
{
    Open();

    EXPECT_EQ(Text("txtAntennaGain"), "0");
    EXPECT_EQ(Text("txtCoaxLoss"), "0");
    EXPECT_TRUE(Find("optAntenna(1)").property("checked").toBool());
    EXPECT_TRUE(Find("optCoaxCable(1)").property("checked").toBool());
}

TEST_F(WindowTest, BothSystemsStartAlike)
{
    Open();

    EXPECT_EQ(systems.Data[engine::SystemId::One], systems.Data[engine::SystemId::Two]);
    EXPECT_EQ(systems.Results[engine::SystemId::One], systems.Results[engine::SystemId::Two]);
}

TEST_F(WindowTest, StartClearsTheBrandsThatARecordHeld)
{
    systems.Data[engine::SystemId::Two].AntennaBrand = "SOMEONE";
    systems.Data[engine::SystemId::Two].CoaxBrand = "SOMEONE";
    systems.Data[engine::SystemId::Two].UseAntennaList = kTrue;

    Open();

    EXPECT_EQ(systems.Data[engine::SystemId::Two].AntennaBrand.Trimmed(), "");
    EXPECT_EQ(systems.Data[engine::SystemId::Two].CoaxBrand.Trimmed(), "");
    EXPECT_EQ(systems.Data[engine::SystemId::Two].UseAntennaList, kFalse);
}

TEST_F(WindowTest, RefreshDataTakesSystemNumbersOneAndTwoOnly)
{
    Open();

    EXPECT_NO_THROW(Window().RefreshData(1));
    EXPECT_NO_THROW(Window().RefreshData(2));
    EXPECT_THROW(Window().RefreshData(0), std::out_of_range);
    EXPECT_THROW(Window().RefreshData(3), std::out_of_range);
}

} // namespace
} // namespace quillon::ui
