#include "tests/support/row_name.h"
#include "tests/ui/editor/editor_fixture.h"

#include <QAbstractItemView>
#include <QLabel>

namespace quillon::ui {
namespace {

class ChoosingTest : public EditorTest
{
protected:
    void SetUp() override { Open(); }
};

TEST_F(ChoosingTest, MakerShowsItsModelsAndItsIndexEntry)
{
    ChooseMaker("ACME");
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99");
    EXPECT_EQ(Text("cboAntennaModels"), "");
    EXPECT_EQ(FileInfo(), "2|03/14/2003|11/02/2003");
    EXPECT_TRUE(Find("cmdAddNewModel").isEnabled());
    EXPECT_FALSE(Find("cmdEdit").isEnabled());
    EXPECT_TRUE(window.Calls().empty());
}

TEST_F(ChoosingTest, MakerThatIsNotInTheIndexShowsNoFigures)
{
    ChooseMaker("ACME");
    ChooseMaker("Mühle");
    EXPECT_EQ(FileInfo(), "||");
}

TEST_F(ChoosingTest, ModelShowsItsBandsGainsAndUnitAndStaysLocked)
{
    ChooseMaker("ACME");
    ChooseModel("XR-5");
    EXPECT_EQ(Gains(), "|||||7.1||7.8||||||");
    EXPECT_EQ(Bands(), ".....x.x...... 2");
    EXPECT_TRUE(Find("cmdEdit").isEnabled());
    EXPECT_FALSE(IsEditable());
    ChooseModel("A-99");
    EXPECT_EQ(Gains(), "|||||||||-1.6||||");
    EXPECT_EQ(Bands(), ".........x.... 1");
}

TEST_F(ChoosingTest, ShowingAModelAsksNothing)
{
    Answer(false);
    ChooseMaker("ACME");
    ChooseModel("XR-5");
    ChooseModel("A-99");
    QCoreApplication::processEvents();
    EXPECT_TRUE(questions.empty());
}

TEST_F(ChoosingTest, EditSelectionOpensTheFields)
{
    Edit("ACME", "XR-5");
    EXPECT_TRUE(IsEditable());
}

TEST_F(ChoosingTest, AccessKeyOfEditSelectionOpensTheFields)
{
    ChooseMaker("ACME");
    ChooseModel("XR-5");
    Press(Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsEditable(); }));
}

TEST_F(ChoosingTest, AnotherModelOrMakerLocksTheFieldsAgain)
{
    Edit("ACME", "XR-5");
    ChooseModel("A-99");
    EXPECT_FALSE(IsEditable());
    Click("cmdEdit");
    ChooseMaker("Mühle");
    EXPECT_FALSE(IsEditable());
    EXPECT_FALSE(Find("cmdEdit").isEnabled());
    EXPECT_EQ(Gains(), kNoGains);
    EXPECT_EQ(Bands(), kNoBands);
}

TEST_F(ChoosingTest, EnterInTheMakersListOpensTheModelsAndThereStartsEditing)
{
    List("cboAntennaMakers").setFocus();
    test::Type(dialog, QStringLiteral("ac"));
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    Press(Qt::Key_Return);
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99");
    EXPECT_TRUE(List("cboAntennaModels").view()->isVisible());
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text("cboAntennaModels"), "XR-5");
    EXPECT_TRUE(IsEditable());
}

TEST_F(ChoosingTest, EnterOnATypedModelStartsEditing)
{
    ChooseMaker("ACME");
    List("cboAntennaModels").setFocus();
    test::Type(dialog, QStringLiteral("a-99"));
    EXPECT_FALSE(IsEditable());
    Press(Qt::Key_Return);
    EXPECT_EQ(Gains(), "|||||||||-1.6||||");
    EXPECT_TRUE(IsEditable());
}

TEST_F(ChoosingTest, EnterOnWhatIsNoModelDoesNothing)
{
    ChooseMaker("ACME");
    List("cboAntennaModels").setFocus();
    test::Type(dialog, QStringLiteral("q"));
    Press(Qt::Key_Return);
    EXPECT_FALSE(IsEditable());
    EXPECT_FALSE(Find("cmdEdit").isEnabled());
}

TEST_F(ChoosingTest, ListThatIsLeftShowsWhatIsChosenInIt)
{
    ChooseMaker("ACME");
    List("cboAntennaMakers").setFocus();
    test::Type(dialog, QStringLiteral("Q"));
    EXPECT_EQ(Text("cboAntennaMakers"), "Q");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99");
}

TEST_F(ChoosingTest, TypedMakerStaysWhenTheDropDownListOpensAndIsTakenByEnterThere)
{
    List("cboAntennaMakers").setFocus();
    test::Type(dialog, QStringLiteral("ac"));
    Press(Qt::Key_F4);
    ASSERT_TRUE(List("cboAntennaMakers").view()->isVisible());
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    Press(Qt::Key_Return);
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99");
}

TEST_F(ChoosingTest, EscapeClosesTheDropDownListFirstAndThenTheWindow)
{
    ChooseMaker("ACME");
    List("cboAntennaMakers").setFocus();
    Press(Qt::Key_F4);
    ASSERT_TRUE(List("cboAntennaMakers").view()->isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(List("cboAntennaMakers").view()->isVisible());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ChoosingTest, TypedMakerStaysWhileAnotherWindowIsInFront)
{
    List("cboAntennaMakers").setFocus();
    test::Type(dialog, QStringLiteral("ac"));
    QFocusEvent leaving(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&List("cboAntennaMakers"), &leaving);
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    EXPECT_EQ(Entries("cboAntennaModels"), "");
}

TEST_F(ChoosingTest, TypedMakerIsTakenWhenTheListIsLeft)
{
    ChooseMaker("Mühle");
    List("cboAntennaMakers").setFocus();
    test::Type(dialog, QStringLiteral("ACME"));
    Press(Qt::Key_Tab);
    EXPECT_EQ(Text("cboAntennaMakers"), "ACME");
    EXPECT_EQ(Entries("cboAntennaModels"), "XR-5|A-99");
}

struct ModelRow
{
    const char* name;
    const char* section;
    const char* gains;
    const char* bands;
};

class ShownModel : public EditorTest, public ::testing::WithParamInterface<ModelRow>
{
};

TEST_P(ShownModel, IsWhatItsSectionSays)
{
    folder.Put("Antennas/X.DAT", std::string("[M]\n") + GetParam().section);
    Open();
    ChooseMaker("X");
    ChooseModel("M");
    EXPECT_EQ(Gains(), GetParam().gains);
    EXPECT_EQ(Bands(), GetParam().bands);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Sections, ShownModel, ::testing::Values(
    ModelRow{"no keys", "", "|||||||||||||", ".............. 2"},
    ModelRow{"no unit counts as dBi, as given", "Gain6=50\n", "||||||||||5.0|||", "..........x... 2"},
    ModelRow{"unit in other letters", "GAINTYPE=DBD\n", "|||||||||||||", ".............. 1"},
    ModelRow{"other unit", "GainType=dB\n", "|||||||||||||", ".............. 2"},
    ModelRow{"key in other letters", "gain20=71\n", "|||||7.1||||||||", ".....x........ 2"},
    ModelRow{"key 80 is the band captioned 75", "Gain80=10\n", "|1.0||||||||||||", ".x............ 2"},
    ModelRow{"shortest bands", "Gain1.25=125\nGain.70=150\n", "||||||||||||12.5|15.0", "............xx 2"},
    ModelRow{"zero, small and negative", "Gain160=0\nGain80=3\nGain60=-4\nGain40=-215\n", "0.0|0.3|-0.4|-21.5||||||||||",
             "xxxx.......... 2"},
    ModelRow{"tenths of tenths are rounded", "Gain20=51.5\n", "|||||5.2||||||||", ".....x........ 2"},
    ModelRow{"no number is 0", "Gain20=<b>\n", "|||||0.0||||||||", ".....x........ 2"},
    ModelRow{"empty gain is 0", "Gain20=\n", "|||||0.0||||||||", ".....x........ 2"}), support::RowName());

// clang-format on

TEST_F(EditorTest, GainBeyondWhatCanBeSavedIsShownMarked)
{
    folder.Put("Antennas/X.DAT", "[M]\nGain20=99999\n");
    Open();
    Edit("X", "M");
    EXPECT_EQ(Text("txtGainFigure(6)"), "9999.9");
    EXPECT_TRUE(Find("txtGainFigure(6)").property("marked").toBool());
}

TEST_F(EditorTest, HostileNamesAndFiguresAreShownAsTheyStand)
{
    folder.Put("Antennas/<b>X & Y %1.DAT", "[<i>m & n]\nGain20=71\n");
    folder.Put("Antennas/ANTENNAS.ZEP", "[<b>X & Y %1]\n=\nNumEntries=<u>1 & 2</u>\nDateCreated=%1\nLastModified=" +
                                            std::string(300, 'x') + "\n");
    Open();
    const QSize size = dialog.size();
    ChooseMaker("<b>X & Y %1");
    ChooseModel("<i>m & n");
    EXPECT_EQ(Text("cboAntennaMakers"), "<b>X & Y %1");
    EXPECT_EQ(Text("cboAntennaModels"), "<i>m & n");
    EXPECT_EQ(FileInfo(), "<u>1 & 2</u>|%1|" + std::string(254, 'x'));
    EXPECT_EQ(dialog.size(), size);
    EXPECT_LE(dialog.minimumSizeHint().width(), size.width()) << "long figures are elided";
}

TEST_F(EditorTest, MakerWhoseFileIsGoneShowsNoModels)
{
    Open();
    std::filesystem::remove(folder / "Antennas/ACME.DAT");
    ChooseMaker("ACME");
    EXPECT_EQ(Entries("cboAntennaModels"), "");
    EXPECT_EQ(File("ACME.DAT"), "") << "as given";
}

} // namespace
} // namespace quillon::ui
