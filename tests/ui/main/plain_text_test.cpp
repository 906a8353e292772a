#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QLabel>

namespace quillon::ui {
namespace {

struct NameRow
{
    const char* name; ///< stands for a maker, a model and a cable alike
};

class HostileName : public EachSystemRow<NameRow>
{
protected:
    void SetUp() override
    {
        const std::string name = Case().name;
        folder.Put("Antennas/" + name + ".DAT", "[" + name + "]\nGainType=dBd\nGain20=30\n");
        folder.Put("Coax/" + name + ".DAT", "[" + name + "]\nLoss10=1\nLoss50=1\nSpec2=50\n");
        Open();
        ChooseCoax(name, name);
        ChooseAntenna(name, name, "20 Meters");
    }
};

TEST_P(HostileName, IsShownAsItStands)
{
    const std::string name = Case().name;
    for (const std::string& shown :
         {Own("lblAntennaBrand"), Own("lblCoaxBrand"), Own("lblCoaxType"), Spelled("cboSystem%Antenna", 0),
          Spelled("cboSystem%Antenna", 1), Spelled("cboSystem%Coax", 0), Spelled("cboSystem%Coax", 1)}) {
        EXPECT_EQ(Text(shown), name) << shown;
    }
    EXPECT_EQ(Text(Own("lblAntennaModel")), name.substr(0, 16));
}

TEST_P(HostileName, IsFoundInTheCatalogue)
{
    EXPECT_EQ(Data().AntennaGain, 3.0F);
    EXPECT_EQ(Data().CoaxLoss, 1.01F);
}

INSTANTIATE_TEST_SUITE_P(Names, HostileName,
                         ::testing::Combine(BothSystems(), ::testing::Values(NameRow{"<b>X<b>"}, NameRow{"A & B && C"},
                                                                             NameRow{"%1 %2"}, NameRow{"&amp;"},
                                                                             NameRow{"<img src=x>"},
                                                                             NameRow{"a_very_long_name_of_one_word"})),
                         SystemName());

TEST_F(WindowTest, EveryLabelIsPlainText)
{
    Open();
    for (const QLabel* label : Window().findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
}

TEST_F(WindowTest, LabelsThatShowNamesHaveNoBuddyWhichWouldEatTheirAmpersands)
{
    Open();
    for (const char* name : {"lblAntennaBrand", "lblAntennaModel", "lblAntennaBand", "lblCoaxBrand", "lblCoaxType"}) {
        for (const char* index : {"(1)", "(2)"}) {
            EXPECT_EQ(Find<QLabel>(std::string(name) + index).buddy(), nullptr) << name;
        }
    }
}

TEST_F(WindowTest, TypedMarkupIsShownAsItStandsInTheToolTip)
{
    Open();
    Paste("txtOutputPower(1)", "<b>1</b>");
    EXPECT_EQ(AccessibleDescription("txtOutputPower(1)"), "“<b>1</b>” is not a number");
    const std::string tip = ToolTip("txtOutputPower(1)");
    EXPECT_NE(tip.find("&lt;b&gt;1&lt;/b&gt;"), std::string::npos) << tip;
    EXPECT_EQ(tip.find("<b>"), std::string::npos) << tip;
}

TEST_F(WindowTest, MarkupOfAListEntryIsShownAsItStandsInTheToolTip)
{
    folder.Put("Coax/HUGE.DAT", "[<b>Y</b>]\nLoss10=-3e38\nLoss50=3e38\n");
    Open();
    Choose("cboSystemOneCoax(0)", "HUGE");
    Choose("cboSystemOneCoax(1)", "<b>Y</b>");
    ASSERT_TRUE(IsMarked("cboSystemOneCoax(1)"));
    EXPECT_EQ(ToolTip("cboSystemOneCoax(1)").find("<b>"), std::string::npos);
}

TEST_F(WindowTest, NamesInTheFilesCodePageAreShownAsLetters)
{
    folder.Put("Antennas/K\xC3\x96LN.DAT", "[STRA\xDF"
                                           "E]\nGainType=dBd\nGain20=30\n"); // UTF-8 name, cp 1252 text
    Open();
    Choose("cboSystemOneAntenna(0)", "KÖLN");
    Choose("cboSystemOneAntenna(1)", "STRAßE");
    Choose("cboSystemOneAntenna(2)", "20 Meters");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaBrand.Trimmed(), "K\xD6LN");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaModel.Trimmed(), "STRA\xDF"
                                                                          "E");
    EXPECT_EQ(Text("lblAntennaModel(1)"), "STRAßE");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaGain, 3.0F);
}

TEST_F(WindowTest, MakersNameThatIsNoUtf8IsReadInTheFilesCodePage)
{
    folder.Put("Antennas/K\xD6LN.DAT", "[X]\nGainType=dBd\nGain20=30\n");
    Open();
    Choose("cboSystemOneAntenna(0)", "KÖLN");
    Choose("cboSystemOneAntenna(1)", "X");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaBrand.Trimmed(), "K\xD6LN");
}

TEST_F(WindowTest, LetterThatTheCodePageLacksIsStoredAsAQuestionMark)
{
    folder.Put("Antennas/ŁÓDŹ.DAT", "[X]\nGain20=30\n");
    Open();
    Choose("cboSystemOneAntenna(0)", "ŁÓDŹ");
    EXPECT_EQ(systems.Data[engine::SystemId::One].AntennaBrand.Trimmed(), "?\xD3"
                                                                          "D?");
    EXPECT_EQ(Text("lblAntennaBrand(1)"), "ŁÓDŹ");
}

} // namespace
} // namespace quillon::ui
