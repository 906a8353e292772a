#include "tests/ui/main/window_fixture.h"

#include "tests/support/row_name.h"
#include "tests/ui/main/test_catalogue.h"

#include <functional>

namespace quillon::ui {
namespace {

class ShownRecord : public EachSystem
{
protected:
    /// Puts a record into the window as loading a saved pair does.
    void Show(const std::function<void(engine::SystemData&)>& change = [](engine::SystemData&) {})
    {
        engine::SystemData data = SavedRecord();
        change(data);
        Data() = data;
        Results() = {};
        Window().ShowRecord(Number());
        Window().RefreshData(Number());
    }

    std::string CoaxList(int index) const { return Spelled("cboSystem%Coax", index); }

    std::string AntennaList(int index) const { return Spelled("cboSystem%Antenna", index); }

    void ExpectAntennaChosen(const std::string& brand, const std::string& model, const std::string& band)
    {
        EXPECT_EQ(Text(AntennaList(0)), brand);
        EXPECT_EQ(Text(AntennaList(1)), model);
        EXPECT_EQ(Text(AntennaList(2)), band);
    }
};

TEST_P(ShownRecord, ChoosesItsEntriesInAllLists)
{
    Show();
    ExpectAntennaChosen("WIRECRAFT", "BEAM FOUR", "20 Meters");
    EXPECT_EQ(Text(CoaxList(0)), "CABLEWORKS");
    EXPECT_EQ(Text(CoaxList(1)), "RG-8X");
    EXPECT_EQ(Data().UseAntennaList, engine::kTrue);
    EXPECT_EQ(Data().UseCoaxList, engine::kTrue);
    EXPECT_EQ(Data().GainType, "dBi");
    EXPECT_EQ(Data().CoaxLoss, 1.31F);
    EXPECT_TRUE(Box(Own("txtFrequency")).isReadOnly());
}

TEST_P(ShownRecord, GivesTheResultsOfTheSameChoicesByHand)
{
    Show();
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "1.31");
    EXPECT_EQ(Text(Own("lblAntennaGain")), "5.00");
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "74.13");
    EXPECT_EQ(Text(Own("lblERP")), "234.40");
}

TEST_P(ShownRecord, LeavesTheOtherSystemAlone)
{
    const engine::SystemId other = System() == engine::SystemId::One ? engine::SystemId::Two : engine::SystemId::One;
    const engine::SystemData before = systems.Data[other];
    Show();
    EXPECT_EQ(systems.Data[other], before);
}

TEST_P(ShownRecord, ShowsItsFiguresWithTheirMasks)
{
    Show([](engine::SystemData& data) {
        data.Frequency = 14.3F;
        data.XmitPower = 2.5F;
        data.VSWR = 1.5F;
        data.CoaxLength = 75.25F;
        data.Connectors = 4;
    });
    EXPECT_EQ(Text(Own("txtFrequency")), "14.300");
    EXPECT_EQ(Text(Own("txtOutputPower")), "3");
    EXPECT_EQ(Text(Own("txtVSWR")), "1.5");
    EXPECT_EQ(Text(Spelled("txtSystem%CoaxLength")), "75.3");
    EXPECT_EQ(ToolTip(Spelled("txtSystem%CoaxLength")), "23.0 m"); // 22.951
    EXPECT_EQ(Text(Spelled("txtSystem%NumConnectors")), "4");
}

TEST_P(ShownRecord, KeepsItsFiguresFinerThanTheBoxesShowThem)
{
    Show([](engine::SystemData& data) {
        data.XmitPower = 2.5F;
        data.CoaxLength = 75.25F;
        data.VSWR = 1.55F;
    });
    EXPECT_EQ(Data().XmitPower, 2.5F);
    EXPECT_EQ(Data().CoaxLength, 75.25F);
    EXPECT_EQ(Data().VSWR, 1.55F);
}

TEST_P(ShownRecord, ColoursItsPower)
{
    const std::string box = Own("txtOutputPower");
    const QColor usual = Box(box).palette().color(QPalette::Text);
    Show([](engine::SystemData& data) { data.XmitPower = 1600; });
    EXPECT_EQ(Box(box).palette().color(QPalette::Text), QColor(255, 0, 0));
    Show();
    EXPECT_EQ(Box(box).palette().color(QPalette::Text), usual);
}

TEST_P(ShownRecord, StoresTheLossOfItsConnectorsAtItsFrequency)
{
    Show([](engine::SystemData& data) { data.Connectors = 10; });
    EXPECT_FLOAT_EQ(Data().ConnectorLoss, 0.0652F); // 0.00652 dB each
    EXPECT_EQ(Data().Connectors, 10);
}

TEST_P(ShownRecord, TakesTheMarksOfTextsBeforeItAway)
{
    Paste(Own("txtOutputPower"), "12x");
    Paste(Spelled("txtSystem%CoaxLength"), "12x");
    Paste(Spelled("txtSystem%NumConnectors"), "12x");
    Show();
    EXPECT_FALSE(IsMarked(Own("txtOutputPower")));
    EXPECT_FALSE(IsMarked(Spelled("txtSystem%CoaxLength")));
    EXPECT_FALSE(IsMarked(Spelled("txtSystem%NumConnectors")));
}

TEST_P(ShownRecord, OffTheBandsFrequencyHasItsAntennaAndLeavesTheBandList)
{
    Show([](engine::SystemData& data) {
        data.Frequency = 14.3F;
        data.AntennaGain = 4.5F;
    });
    ExpectAntennaChosen("WIRECRAFT", "BEAM FOUR", "");
    EXPECT_EQ(Data().Frequency, 14.3F);
    EXPECT_EQ(Data().AntennaGain, 4.5F);
    EXPECT_EQ(Results().AntennaGainDBd, 4.5F);
    EXPECT_EQ(Data().UseAntennaList, engine::kTrue);
    EXPECT_EQ(Text(Own("lblAntennaBand")), "Gain = 4.5 dbd");
    EXPECT_EQ(Text(Own("lblAntennaGain")), "4.50");
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
}

TEST_P(ShownRecord, OfAModelWithoutGainInTheBandHasItsSavedGain)
{
    Show([](engine::SystemData& data) {
        data.Frequency = 7.23F; // 40 Meters, which BEAM FOUR does not have
        data.AntennaGain = 4.5F;
    });
    ExpectAntennaChosen("WIRECRAFT", "BEAM FOUR", "");
    EXPECT_EQ(Data().UseAntennaList, engine::kTrue);
    EXPECT_EQ(Results().AntennaGainDBd, 4.5F);
}

TEST_P(ShownRecord, OfAnUnknownModelShowsNoERPOfThePairBefore)
{
    Show();
    Show([](engine::SystemData& data) { data.AntennaModel = "SOLD OUT"; });
    ExpectAntennaChosen("WIRECRAFT", "", "20 Meters"); // a brand's click leaves the band list, as given
    EXPECT_EQ(Data().AntennaModel.Trimmed(), "SOLD OUT");
    EXPECT_EQ(Data().UseAntennaList, engine::kFalse);
    EXPECT_EQ(Text(Own("lblAntennaModel")), "SOLD OUT");
    EXPECT_EQ(Text(Own("lblAntennaBand")), "");
    EXPECT_EQ(Text(Own("lblERP")), "0.00");
}

TEST_P(ShownRecord, OfAnUnknownMakerLeavesTheAntennaLists)
{
    Show();
    Show([](engine::SystemData& data) { data.AntennaBrand = "GONE"; });
    ExpectAntennaChosen("WIRECRAFT", "BEAM FOUR", "20 Meters");
    EXPECT_EQ(Data().AntennaBrand.Trimmed(), "GONE");
    EXPECT_EQ(Data().UseAntennaList, engine::kFalse);
    EXPECT_EQ(Text(Own("lblAntennaBrand")), "GONE");
    EXPECT_FALSE(Box(Own("txtFrequency")).isReadOnly());
}

TEST_P(ShownRecord, OfAnUnknownCoaxKeepsTheSavedFigures)
{
    Show([](engine::SystemData& data) {
        data.CoaxModel = "SOLD OUT";
        data.CoaxLoss = 2.5F;
    });
    EXPECT_EQ(Text(CoaxList(0)), "CABLEWORKS");
    EXPECT_EQ(Text(CoaxList(1)), "");
    EXPECT_EQ(Data().CoaxModel.Trimmed(), "SOLD OUT");
    EXPECT_EQ(Data().CoaxLoss, 2.5F);
    EXPECT_EQ(Data().UseCoaxList, engine::kFalse);
}

TEST_P(ShownRecord, NeverTakesAnotherMakersCableOfTheSameName)
{
    Show();
    Show([](engine::SystemData& data) { data.CoaxBrand = "GONE"; });
    EXPECT_EQ(Data().CoaxBrand.Trimmed(), "GONE");
    EXPECT_EQ(Data().UseCoaxList, engine::kFalse);
    EXPECT_EQ(Text(Own("lblCoaxBrand")), "GONE");
}

TEST_P(ShownRecord, FindsAnEntryByItsCutName)
{
    Show([](engine::SystemData& data) {
        data.AntennaModel = "SEVENTEEN-LETTER"; // the record's sixteen characters
        data.CoaxBrand = "TIMES MICROWAVE";
        data.CoaxModel = "LMR-A";
    });
    ExpectAntennaChosen("WIRECRAFT", "SEVENTEEN-LETTERS", "20 Meters");
    EXPECT_FLOAT_EQ(Data().CoaxLoss, 0.457265F); // 0.12 * 3.774917 + 0.0003 * 14.25
}

TEST_P(ShownRecord, FindsItsEntriesInAnyLetterCase)
{
    folder.Put("Antennas/M\u00FCHLE.DAT", "[MODEL \xD6]\nGainType=dBd\nGain20=50\n");
    Window().LoadAntennaMakers();
    Show([](engine::SystemData& data) {
        data.AntennaBrand = "m\xFChle";
        data.AntennaModel = "Model \xF6";
        data.CoaxBrand = "CableWorks";
        data.CoaxModel = "rg-8x";
    });
    ExpectAntennaChosen("M\u00FCHLE", "MODEL \u00D6", "20 Meters");
    EXPECT_EQ(Text(CoaxList(0)), "CABLEWORKS");
    EXPECT_EQ(Text(CoaxList(1)), "RG-8X");
}

TEST_P(ShownRecord, OfNoNamesChoosesNothing)
{
    Show([](engine::SystemData& data) {
        data.AntennaBrand = "";
        data.AntennaModel = "";
        data.CoaxBrand = "";
        data.CoaxModel = "";
    });
    ExpectAntennaChosen("", "", "");
    EXPECT_EQ(Text(CoaxList(0)), "");
    EXPECT_EQ(Data().UseAntennaList, engine::kFalse);
    EXPECT_EQ(Data().UseCoaxList, engine::kFalse);
}

INSTANTIATE_TEST_SUITE_P(Systems, ShownRecord, BothSystems(), SystemName());

struct BandRow
{
    const char* name;
    float megahertz;
    const char* band;
};

class ShownBand : public WindowTest, public ::testing::WithParamInterface<BandRow>
{
};

TEST_P(ShownBand, FollowsTheExactWorkingFrequency)
{
    Open();
    engine::SystemData data = SavedRecord();
    data.AntennaModel = "ALL BANDS";
    data.Frequency = GetParam().megahertz;
    systems.Data[engine::SystemId::Two] = data;
    Window().ShowRecord(2);
    EXPECT_EQ(Text("cboSystemTwoAntenna(2)"), GetParam().band);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bands, ShownBand, ::testing::Values(
    BandRow{"70 centimetres", 432.1F, ".70 Meters"},
    BandRow{"1.25 metres", 222.1F, "1.25 Meters"},
    BandRow{"2 metres", 144.2F, "2 Meters"},
    BandRow{"6 metres", 50.125F, "6 Meters"},
    BandRow{"10 metres", 28.5F, "10 Meters"},
    BandRow{"12 metres", 24.95F, "12 Meters"},
    BandRow{"15 metres", 21.225F, "15 Meters"},
    BandRow{"17 metres", 18.14F, "17 Meters"},
    BandRow{"20 metres", 14.25F, "20 Meters"},
    BandRow{"30 metres", 10.125F, "30 Meters"},
    BandRow{"40 metres", 7.23F, "40 Meters"},
    BandRow{"60 metres", 5.368F, "60 Meters"},
    BandRow{"80 metres", 3.85F, "80 Meters"},
    BandRow{"160 metres", 1.9F, "160 Meters"},
    BandRow{"one kilohertz off is no band, as given", 14.251F, ""},
    BandRow{"the frequency of a cleared record is no band", 18.2F, ""}), support::RowName());

// clang-format on

class SavedFlags : public WindowTest
{
protected:
    void ExpectFlags(engine::Boolean value)
    {
        EXPECT_EQ(systems.State[engine::SystemId::One].Flag(engine::kSavedFlag), value);
        EXPECT_EQ(systems.State[engine::SystemId::Two].Flag(engine::kSavedFlag), value);
    }
};

TEST_F(SavedFlags, AreSetTogether)
{
    Open();
    ExpectFlags(engine::kFalse);
    Window().SetSavedFlags();
    ExpectFlags(engine::kTrue);
}

TEST_F(SavedFlags, AreClearedTogetherByAnyLaterChange)
{
    Open();
    Window().SetSavedFlags();
    Paste("txtOutputPower(2)", "150");
    ExpectFlags(engine::kFalse);
    Paste("txtOutputPower(2)", "100");
    ExpectFlags(engine::kFalse);
}

TEST_F(SavedFlags, StayWhileNothingChanges)
{
    Open();
    Window().SetSavedFlags();
    Window().RefreshData(1);
    Window().RefreshData(2);
    Paste("txtOutputPower(1)", "12x");
    ExpectFlags(engine::kTrue);
}

} // namespace
} // namespace quillon::ui
