#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QAccessible>

namespace quillon::ui {
namespace {

enum Row { ERP, AntennaPowerGain, FeedPointPower, SystemGain, AntennaGain, MismatchDB, MismatchW, CoaxDB, CoaxW };

enum class Side { None, One, Two, Both };

/// Both systems with the same antenna and coax: 234.40 W each.
class Markers : public WindowTest
{
protected:
    void SetUp() override { Open(); }

    void ChooseSystem(const std::string& system, const std::string& model)
    {
        Choose("cboSystem" + system + "Coax(0)", "CABLEWORKS");
        Choose("cboSystem" + system + "Coax(1)", "RG-8X");
        Choose("cboSystem" + system + "Antenna(0)", "WIRECRAFT");
        Choose("cboSystem" + system + "Antenna(1)", model);
        Choose("cboSystem" + system + "Antenna(2)", "20 Meters");
    }

    Side Filled(Row row)
    {
        const std::string index = "(" + std::to_string(row) + ")";
        const bool one = IsFilled("shpSystemOne" + index);
        const bool two = IsFilled("shpSystemTwo" + index);
        if (one && two) {
            return Side::Both;
        }
        return one ? Side::One : two ? Side::Two : Side::None;
    }
};

TEST_F(Markers, EqualSystemsAreMarkedOnBothSidesInEveryRow)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "BEAM FOUR");
    for (int row = ERP; row <= CoaxW; ++row) {
        EXPECT_EQ(Filled(static_cast<Row>(row)), Side::Both) << row;
    }
}

TEST_F(Markers, RowsAreNotComparedWhileOneSideIsZero)
{
    ChooseSystem("One", "BEAM FOUR");
    for (const Row row : {ERP, AntennaPowerGain, FeedPointPower, AntennaGain, MismatchDB, CoaxDB, CoaxW}) {
        EXPECT_EQ(Filled(row), Side::None) << row;
    }
}

TEST_F(Markers, SystemGainAndMismatchPowerAreComparedAlways)
{
    ChooseSystem("One", "BEAM FOUR");
    EXPECT_EQ(Filled(SystemGain), Side::One);
    EXPECT_EQ(Filled(MismatchW), Side::Both);
}

TEST_F(Markers, RowKeepsItsMarkersWhileOneSideIsZeroAgain)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "SEVENTEEN-LETTERS");
    ASSERT_EQ(Filled(ERP), Side::One);
    Paste("txtOutputPower(1)", "0");
    ASSERT_EQ(Text("lblERP(1)"), "0.00");
    EXPECT_EQ(Filled(ERP), Side::One);
}

TEST_F(Markers, NegativeSystemGainsAreComparedToo)
{
    Paste("txtSystemOneNumConnectors", "0");
    Paste("txtSystemTwoNumConnectors", "0");
    for (const char* system : {"One", "Two"}) {
        const std::string list = "cboSystem" + std::string(system) + "Antenna";
        Choose(list + "(0)", "WIRECRAFT");
        Choose(list + "(1)", system == std::string("One") ? "MINUS ONE" : "MINUS TWO");
        Choose(list + "(2)", "20 Meters");
    }
    ASSERT_EQ(Text("lblSystemGain(1)"), "-1");
    ASSERT_EQ(Text("lblSystemGain(2)"), "-2");
    EXPECT_EQ(Filled(SystemGain), Side::One);
}

TEST_F(Markers, ValuesAreComparedAsTheyAreShown)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "BEAM FOUR");
    Paste("txtSystemTwoCoaxLength", "100.3"); // 1.31393 dB
    ASSERT_NE(systems.Results[engine::SystemId::One].CoaxDBLoss, systems.Results[engine::SystemId::Two].CoaxDBLoss);
    EXPECT_EQ(Filled(CoaxDB), Side::Both);
    Paste("txtSystemTwoCoaxLength", "100.4"); // 1.31524 dB
    EXPECT_EQ(Filled(CoaxDB), Side::One);
}

TEST_F(Markers, ValueShownAsZeroIsNotCompared)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "BEAM FOUR");
    Paste("txtSystemTwoCoaxLength", "90");
    ASSERT_EQ(Filled(CoaxDB), Side::Two);
    Paste("txtSystemOneCoaxLength", "0.3"); // 0.00393 dB
    EXPECT_EQ(Filled(CoaxDB), Side::Two);
}

TEST_F(Markers, AreSpoken)
{
    ChooseSystem("One", "BEAM FOUR");
    EXPECT_EQ(AccessibleName("shpSystemOne(0)"), "");
    ChooseSystem("Two", "BEAM FOUR");
    EXPECT_EQ(AccessibleName("shpSystemOne(0)"), "equal");
    EXPECT_EQ(AccessibleName("shpSystemTwo(0)"), "equal");
    Paste("txtOutputPower(2)", "150");
    EXPECT_EQ(AccessibleName("shpSystemOne(0)"), "");
    EXPECT_EQ(AccessibleName("shpSystemTwo(0)"), "System 2 better");
    Paste("txtOutputPower(1)", "200");
    EXPECT_EQ(AccessibleName("shpSystemOne(0)"), "System 1 better");
    EXPECT_EQ(AccessibleName("shpSystemTwo(0)"), "");
}

TEST_F(Markers, AreSpokenWithTheCaptionOfTheirRow)
{
    ChooseSystem("One", "BEAM FOUR");
    EXPECT_EQ(AccessibleDescription("shpSystemOne(0)"), "");
    ChooseSystem("Two", "BEAM FOUR");
    Paste("txtOutputPower(2)", "150");
    EXPECT_EQ(AccessibleDescription("shpSystemOne(0)"), "");
    EXPECT_EQ(AccessibleDescription("shpSystemTwo(0)"), "Antenna System ERP");
    EXPECT_EQ(AccessibleDescription("shpSystemTwo(2)"), "Antenna Feedpoint Power");
}

TEST_F(Markers, ArePicturesToScreenReadersAndNotPartsOfTheLayout)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Find("shpSystemOne(0)"));
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::Graphic);
    EXPECT_EQ(spoken->text(QAccessible::Name), QString());
}

struct BetterRow
{
    const char* name;
    Row row;
    const char* input;  ///< box of System Two that is changed
    const char* better; ///< text that makes System Two the better one
    const char* worse;
};

class BetterSide : public Markers, public ::testing::WithParamInterface<BetterRow>
{
};

TEST_P(BetterSide, IsMarked)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "BEAM FOUR");
    Paste(GetParam().input, GetParam().better);
    EXPECT_EQ(Filled(GetParam().row), Side::Two);
    Paste(GetParam().input, GetParam().worse);
    EXPECT_EQ(Filled(GetParam().row), Side::One);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, BetterSide,
    ::testing::Values(BetterRow{"higher ERP", ERP, "txtOutputPower(2)", "101", "99"},
                      BetterRow{"higher antenna power gain", AntennaPowerGain, "txtOutputPower(2)", "101", "99"},
                      BetterRow{"higher feed point power", FeedPointPower, "txtOutputPower(2)", "101", "99"},
                      BetterRow{"higher system gain", SystemGain, "txtSystemTwoCoaxLength", "90", "110"},
                      BetterRow{"lower coax loss in dB", CoaxDB, "txtSystemTwoCoaxLength", "90", "110"},
                      BetterRow{"lower coax loss in W", CoaxW, "txtSystemTwoCoaxLength", "90", "110"}),
    support::RowName());

TEST_F(Markers, HigherAntennaGainIsMarked)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "SEVENTEEN-LETTERS");
    EXPECT_EQ(Filled(AntennaGain), Side::One);
    ChooseSystem("One", "WIDE ANGLE BEAM XL");
    EXPECT_EQ(Filled(AntennaGain), Side::Two);
}

TEST_F(Markers, LowerMismatchIsMarked)
{
    ChooseSystem("One", "BEAM FOUR");
    ChooseSystem("Two", "BEAM FOUR");
    ClickUp("vsVSWR(3)"); // 1.2
    EXPECT_EQ(Filled(MismatchDB), Side::One);
    EXPECT_EQ(Filled(MismatchW), Side::One);
    ClickUp("vsVSWR(1)", 2); // 1.3
    EXPECT_EQ(Filled(MismatchDB), Side::Two);
    EXPECT_EQ(Filled(MismatchW), Side::Two);
}

} // namespace
} // namespace quillon::ui
