#include "tests/ui/main/window_fixture.h"

#include <QRadioButton>
#include <QTest>

namespace quillon::ui {
namespace {

using engine::kFalse;
using engine::kTrue;

/// The typed figures of System One, shown.
class TypedFigures : public WindowTest
{
protected:
    void SetUp() override
    {
        Open();
        Find("FrameAntennaGain").show();
        Find("FrameCoaxLoss").show();
    }

    void Click(const std::string& option) { Find<QRadioButton>(option).click(); }

    void ExpectEnabled(bool enabled, const std::vector<std::string>& names)
    {
        for (const std::string& name : names) {
            EXPECT_EQ(Find(name).isEnabled(), enabled) << name;
        }
    }

    engine::SystemData& Data() { return systems.Data[engine::SystemId::One]; }

    engine::SystemResults& Results() { return systems.Results[engine::SystemId::One]; }

    const std::vector<std::string> gainInputs{"txtAntennaGain", "vsAntennaGain(0)", "vsAntennaGain(1)"};
    const std::vector<std::string> antennaLists{"cboSystemOneAntenna(0)", "cboSystemOneAntenna(1)",
                                                "cboSystemOneAntenna(2)"};
    const std::vector<std::string> lossInputs{"txtCoaxLoss", "vsCoaxLoss"};
    const std::vector<std::string> coaxLists{"cboSystemOneCoax(0)", "cboSystemOneCoax(1)"};
    const std::vector<std::string> otherLists{"cboSystemTwoAntenna(0)", "cboSystemTwoAntenna(1)",
                                              "cboSystemTwoAntenna(2)", "cboSystemTwoCoax(0)", "cboSystemTwoCoax(1)"};
};

TEST_F(TypedFigures, CatalogueDataIsChosenAtStart)
{
    ExpectEnabled(false, gainInputs);
    ExpectEnabled(true, antennaLists);
    ExpectEnabled(false, lossInputs);
    ExpectEnabled(true, coaxLists);
}

TEST_F(TypedFigures, AntennaOptionsSwitchListsAndTypedGain)
{
    Click("optAntenna(0)");
    ExpectEnabled(true, gainInputs);
    ExpectEnabled(false, antennaLists);
    ExpectEnabled(true, coaxLists);
    Click("optAntenna(1)");
    ExpectEnabled(false, gainInputs);
    ExpectEnabled(true, antennaLists);
}

TEST_F(TypedFigures, CoaxOptionsSwitchListsAndTypedLoss)
{
    Click("optCoaxCable(0)");
    ExpectEnabled(true, lossInputs);
    ExpectEnabled(false, coaxLists);
    ExpectEnabled(true, antennaLists);
    Click("optCoaxCable(1)");
    ExpectEnabled(false, lossInputs);
    ExpectEnabled(true, coaxLists);
}

TEST_F(TypedFigures, UserDataLeavesSystemTwoAlone)
{
    Click("optAntenna(0)");
    Click("optCoaxCable(0)");
    ExpectEnabled(true, otherLists);
}

TEST_F(TypedFigures, TypedGainGivesSystemOneAnAntenna)
{
    Click("optAntenna(0)");
    Type("txtAntennaGain", "3");
    EXPECT_EQ(Data().UseAntennaList, kTrue);
    EXPECT_EQ(Data().AntennaGain, 3.0F);
    EXPECT_EQ(Text("lblAntennaGain(1)"), "3.00");
    EXPECT_EQ(Text("lblERP(1)"), "199.50"); // 100 * 1.995
    EXPECT_EQ(systems.Data[engine::SystemId::Two].UseAntennaList, kFalse);
}

TEST_F(TypedFigures, TypedGainDoesNotEnterTheSystemGainAsGiven)
{
    Paste("txtAntennaGain", "3");
    EXPECT_EQ(Results().AntennaGainDBd, 0.0F);
    EXPECT_EQ(Text("lblSystemGain(1)"), "-0.01");
}

TEST_F(TypedFigures, TypedGainGivesNoAntennaWhileFlag3IsFalse)
{
    systems.State[engine::SystemId::One].SetFlag(3, kFalse);
    Paste("txtAntennaGain", "3");
    EXPECT_EQ(Data().UseAntennaList, kFalse);
    EXPECT_EQ(Data().AntennaGain, 3.0F);
}

TEST_F(TypedFigures, EmptyGainStoresNothingButComputes)
{
    Paste("txtAntennaGain", "");
    EXPECT_EQ(Data().UseAntennaList, kFalse);
    EXPECT_EQ(Text("lblFeedPointPower(1)"), "100.00");
}

TEST_F(TypedFigures, GainSpinShowsTenMinusATenthOfItsPosition)
{
    Click("optAntenna(0)");
    ClickUp("vsAntennaGain(0)"); // position 0
    EXPECT_EQ(Text("txtAntennaGain"), "10");
    EXPECT_EQ(Data().AntennaGain, 10.0F);
    Spin("vsAntennaGain(0)").setValue(10);
    EXPECT_EQ(Text("txtAntennaGain"), "9");
    EXPECT_EQ(Data().AntennaGain, 9.0F);
}

TEST_F(TypedFigures, GainSpinGoesFrom0To30)
{
    Spin("vsAntennaGain(0)").setValue(100);
    EXPECT_EQ(Text("txtAntennaGain"), "0");
    EXPECT_EQ(Data().AntennaGain, 0.0F);
    Spin("vsAntennaGain(0)").setValue(-200);
    EXPECT_EQ(Text("txtAntennaGain"), "30");
    EXPECT_EQ(Data().AntennaGain, 30.0F);
}

TEST_F(TypedFigures, GainOfTenthsIsShownInPlainForm)
{
    Spin("vsAntennaGain(0)").setValue(97);
    EXPECT_EQ(Text("txtAntennaGain"), "0.3");
    EXPECT_EQ(Data().AntennaGain, 0.3F);
}

TEST_F(TypedFigures, SecondGainSpinReadsTheFirstAsGiven)
{
    Spin("vsAntennaGain(1)").setValue(-50);
    EXPECT_EQ(Text("txtAntennaGain"), "9"); // position 10 of the first
    EXPECT_EQ(Data().AntennaGain, 9.0F);
}

TEST_F(TypedFigures, TypedLossIsStoredAndComputed)
{
    Click("optCoaxCable(0)");
    Type("txtCoaxLoss", "2.5");
    EXPECT_EQ(Data().CoaxLoss, 2.5F);
    EXPECT_EQ(Text("lblCoaxDBLoss(1)"), "2.50");
    EXPECT_EQ(Data().UseCoaxList, kFalse);
}

TEST_F(TypedFigures, LossOfAPointAloneStoresNothing)
{
    Paste("txtCoaxLoss", "2");
    Paste("txtCoaxLoss", ".");
    EXPECT_EQ(Data().CoaxLoss, 2.0F);
    EXPECT_FALSE(IsMarked("txtCoaxLoss"));
}

TEST_F(TypedFigures, PastedLossWithTwoPointsLosesItsEndUntilOneIsLeft)
{
    Paste("txtCoaxLoss", "1.2.3");
    EXPECT_EQ(Text("txtCoaxLoss"), "1.2");
    EXPECT_EQ(Data().CoaxLoss, 1.2F);
}

TEST_F(TypedFigures, SecondPointTypedIntoTheLossGoesAtOnce)
{
    Click("optCoaxCable(0)");
    Type("txtCoaxLoss", "1.2.");
    EXPECT_EQ(Text("txtCoaxLoss"), "1.2");
    EXPECT_EQ(Data().CoaxLoss, 1.2F);
}

TEST_F(TypedFigures, LossWithATrailingPointIsANumber)
{
    Paste("txtCoaxLoss", "1.");
    EXPECT_EQ(Data().CoaxLoss, 1.0F);
    EXPECT_FALSE(IsMarked("txtCoaxLoss"));
}

TEST_F(TypedFigures, EmptyLossStoresNothing)
{
    Paste("txtCoaxLoss", "2");
    Paste("txtCoaxLoss", "");
    EXPECT_EQ(Data().CoaxLoss, 2.0F);
}

TEST_F(TypedFigures, LossSpinHasNoEffectAsGiven)
{
    Click("optCoaxCable(0)");
    const engine::SystemData data = Data();
    ClickUp("vsCoaxLoss", 3);
    EXPECT_EQ(Spin("vsCoaxLoss").value(), 996);
    EXPECT_EQ(Text("txtCoaxLoss"), "0");
    EXPECT_EQ(Data(), data);
    EXPECT_EQ(hooks.Record(), "");
}

TEST_F(TypedFigures, GainOf20DecibelsGivesNoPower)
{
    Paste("txtAntennaGain", "3");
    Paste("txtAntennaGain", "20");
    EXPECT_EQ(Text("lblAntennaWGain(1)"), "0.00");
    EXPECT_EQ(Text("lblERP(1)"), "0.00");
    EXPECT_EQ(ToolTip("lblAntennaWGain(1)"), "(100 * 1.995) - 100 = 99.5");
}

} // namespace
} // namespace quillon::ui
