#include "tests/ui/main/window_fixture.h"

namespace quillon::ui {
namespace {

struct BadRow
{
    const char* name;
    const char* text;
    const char* words;
};

const char* const kBoxes[] = {"txtOutputPower", "txtFrequency", "txtSystem%CoaxLength", "txtSystem%NumConnectors"};

class BadText : public EachSystemRow<BadRow>
{
protected:
    std::vector<std::string> Boxes() const
    {
        std::vector<std::string> boxes;
        for (const std::string box : kBoxes) {
            boxes.push_back(box.find('%') == std::string::npos ? Own(box) : Spelled(box));
        }
        return boxes;
    }

    void ExpectKept(const std::string& box, const engine::SystemData& data, const engine::SystemResults& results)
    {
        EXPECT_EQ(Data(), data) << box;
        EXPECT_EQ(Results(), results) << box;
        EXPECT_EQ(Text(box), Case().text);
    }
};

TEST_P(BadText, LeavesRecordAndResultsAsTheyWere)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    ChooseCoax("CABLEWORKS", "RG-8X");
    Choose(Spelled("cboSystem%Antenna", 0), "HALO"); // frees the frequency
    const engine::SystemData data = Data();
    const engine::SystemResults results = Results();
    for (const std::string& box : Boxes()) {
        Paste(box, Case().text);
        ExpectKept(box, data, results);
    }
}

TEST_P(BadText, IsMarkedInWords)
{
    for (const std::string& box : Boxes()) {
        Paste(box, Case().text);
        EXPECT_TRUE(IsMarked(box)) << box;
        EXPECT_EQ(AccessibleDescription(box), Case().words) << box;
        EXPECT_EQ(ToolTip(box), Case().words) << box;
    }
}

TEST_P(BadText, LosesItsMarkWithTheNextGoodText)
{
    for (const std::string& box : Boxes()) {
        Paste(box, Case().text);
        Paste(box, "5");
        EXPECT_FALSE(IsMarked(box)) << box;
        const std::string hint = box == Spelled("txtSystem%CoaxLength") ? "1.5 m" : "";
        EXPECT_EQ(AccessibleDescription(box), hint) << box;
        EXPECT_EQ(ToolTip(box), hint) << box;
    }
}

TEST_P(BadText, LosesItsMarkWhenEmptied)
{
    for (const std::string& box : Boxes()) {
        Paste(box, Case().text);
        Clear(box);
        EXPECT_FALSE(IsMarked(box)) << box;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadText,
    ::testing::Combine(BothSystems(),
                       ::testing::Values(BadRow{"letters behind", "12.5abc", "“12.5abc” is not a number"},
                                         BadRow{"two points", "1.2.3", "“1.2.3” is not a number"},
                                         BadRow{"grouping", "1'500", "“1'500” is not a number"},
                                         BadRow{"point alone", ".", "“.” is not a number"},
                                         BadRow{"sign alone", "-", "“-” is not a number"},
                                         BadRow{"blank", " ", "“ ” is not a number"},
                                         BadRow{"infinity", "inf", "“inf” is not a number"},
                                         BadRow{"no number", "nan", "“nan” is not a number"},
                                         BadRow{"hexadecimal", "0x10", "“0x10” is not a number"},
                                         BadRow{"percent signs", "%1 %2", "“%1 %2” is not a number"},
                                         BadRow{"beyond a float", "1e39", "“1e39” is too large"},
                                         BadRow{"beyond a double", "1e999", "“1e999” is too large"},
                                         BadRow{"far below", "-1e39", "“-1e39” is too large"})),
    SystemName());

struct CountRow
{
    const char* name;
};

using TooManyConnectors = EachSystemRow<CountRow>;

TEST_P(TooManyConnectors, AreMarkedAndNotStored)
{
    const std::string box = Spelled("txtSystem%NumConnectors");
    Paste(box, Case().name);
    EXPECT_EQ(Data().Connectors, 2);
    EXPECT_EQ(Results().ConnectorLoss, 0.01304F);
    EXPECT_EQ(AccessibleDescription(box), "“" + std::string(Case().name) + "” is too large");
}

INSTANTIATE_TEST_SUITE_P(Beyond16Bits, TooManyConnectors,
                         ::testing::Combine(BothSystems(), ::testing::Values(CountRow{"32768"}, CountRow{"32767.5"},
                                                                             CountRow{"-32769"}, CountRow{"1e9"})),
                         SystemName());

class Overflow : public EachSystem
{
protected:
    /// A cable whose loss is just within a float.
    void ChooseHugeCable()
    {
        folder.Put("Coax/HUGE.DAT", "[HUGE]\nLoss10=3e38\nLoss50=3e38\n");
        Window().LoadCableMakers();
        ChooseCoax("HUGE", "HUGE");
        ASSERT_EQ(Data().CoaxLoss, 3e38F);
    }
};

TEST_P(Overflow, PowerThatCannotBeComputedIsMarkedAndNotTaken)
{
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "20 Meters");
    const engine::SystemData data = Data();
    const engine::SystemResults results = Results();
    const std::string shown = Text(Own("lblERP"));

    Paste(Own("txtOutputPower"), "3e38");

    EXPECT_EQ(Data(), data);
    EXPECT_EQ(Results(), results);
    EXPECT_EQ(Text(Own("lblERP")), shown);
    EXPECT_TRUE(IsMarked(Own("txtOutputPower")));
    EXPECT_EQ(AccessibleDescription(Own("txtOutputPower")), "“3e38” is too large");
}

TEST_P(Overflow, BandThatCannotBeComputedIsMarkedAndNotTaken)
{
    Paste(Own("txtOutputPower"), "3e38");
    Choose(Spelled("cboSystem%Antenna", 0), "WIRECRAFT");
    Choose(Spelled("cboSystem%Antenna", 1), "BEAM FOUR");
    const engine::SystemData data = Data();
    const engine::SystemResults results = Results();

    Choose(Spelled("cboSystem%Antenna", 2), "15 Meters");

    EXPECT_EQ(Data(), data);
    EXPECT_EQ(Results(), results);
    EXPECT_TRUE(IsMarked(Spelled("cboSystem%Antenna", 2)));
}

TEST_P(Overflow, BandThatIsNotTakenLeavesTheFrequencyOnShowAndFree)
{
    Paste(Own("txtOutputPower"), "3e38");
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");

    EXPECT_EQ(Text(Own("txtFrequency")), "14.250");
    EXPECT_FALSE(IsMarked(Own("txtFrequency")));
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
    EXPECT_TRUE(Spin(Own("vsFrequency")).isEnabled());
    EXPECT_EQ(Text(Own("lblAntennaBand")), "");
}

TEST_P(Overflow, BandIsTakenOnceThePowerIsGoodAgain)
{
    Paste(Own("txtOutputPower"), "3e38");
    ChooseAntenna("WIRECRAFT", "BEAM FOUR", "15 Meters");
    Paste(Own("txtOutputPower"), "100");
    Choose(Spelled("cboSystem%Antenna", 2), "15 Meters");
    EXPECT_FALSE(IsMarked(Spelled("cboSystem%Antenna", 2)));
    EXPECT_EQ(Text(Own("txtFrequency")), "21.225");
}

TEST_P(Overflow, LengthTurnedTooFarIsMarkedAndNotTaken)
{
    ChooseHugeCable();
    Spin(Spelled("vsSystem%CoaxLength")).setValue(3500 - 150);
    EXPECT_EQ(Data().CoaxLength, 100.0F);
    EXPECT_EQ(Results().CoaxDBLoss, 3e38F);
    EXPECT_TRUE(IsMarked(Spelled("txtSystem%CoaxLength")));
}

TEST_P(Overflow, NothingFailsAfterALengthTurnedTooFar)
{
    ChooseHugeCable();
    Spin(Spelled("vsSystem%CoaxLength")).setValue(3500 - 150);

    Choose(Spelled("cboSystem%Antenna", 0), "WIRECRAFT");
    Choose(Spelled("cboSystem%Antenna", 1), "BEAM FOUR");
    ClickUp(Spelled("vsSystem%NumConnectors"));
    EXPECT_EQ(Data().Connectors, 3);
    EXPECT_FALSE(IsMarked(Spelled("txtSystem%NumConnectors")));
    EXPECT_EQ(Data().AntennaModel.Trimmed(), "BEAM FOUR");
}

TEST_P(Overflow, CableThatCannotBeComputedIsMarkedAndNotTaken)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    folder.Put("Coax/HUGE.DAT", "[HUGE]\nLoss10=-3e38\nLoss50=3e38\n");
    Window().LoadCableMakers();
    Choose(Spelled("cboSystem%Coax", 0), "HUGE");
    const engine::SystemData data = Data();

    Choose(Spelled("cboSystem%Coax", 1), "HUGE");

    EXPECT_EQ(Data(), data);
    EXPECT_TRUE(IsMarked(Spelled("cboSystem%Coax", 1)));
    EXPECT_EQ(Text(Own("lblCoaxType")), "RG-8X");
}

INSTANTIATE_TEST_SUITE_P(Figures, Overflow, BothSystems(), SystemName());

TEST_F(WindowTest, TypedGainTurnedTooFarIsMarkedAndNotTaken)
{
    Open();
    Paste("txtOutputPower(1)", "3e38");
    const engine::SystemData data = systems.Data[engine::SystemId::One];

    Spin("vsAntennaGain(0)").setValue(50);

    EXPECT_EQ(systems.Data[engine::SystemId::One], data);
    EXPECT_TRUE(IsMarked("txtAntennaGain"));
    EXPECT_NO_THROW(Choose("cboSystemOneAntenna(0)", "WIRECRAFT"));
}

TEST_F(WindowTest, BadTypedFiguresAreMarkedAndNotTaken)
{
    Open();
    Paste("txtAntennaGain", "x");
    Paste("txtCoaxLoss", "x");
    EXPECT_TRUE(IsMarked("txtAntennaGain"));
    EXPECT_TRUE(IsMarked("txtCoaxLoss"));
    EXPECT_EQ(systems.Data[engine::SystemId::One].UseAntennaList, engine::kFalse);
    EXPECT_EQ(systems.Data[engine::SystemId::One].CoaxLoss, 0.0F);
}

} // namespace
} // namespace quillon::ui
