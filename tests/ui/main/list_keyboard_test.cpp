#include "tests/ui/main/window_fixture.h"

#include <QAbstractItemView>
#include <QTest>

namespace quillon::ui {
namespace {

class ListKeyboard : public EachSystem
{
protected:
    std::string Antenna(int index) const { return Spelled("cboSystem%Antenna", index); }

    std::string Coax(int index) const { return Spelled("cboSystem%Coax", index); }

    void Focus(const std::string& list) { List(list).setFocus(Qt::TabFocusReason); }

    bool IsOpen(const std::string& list) { return List(list).view()->isVisible(); }

    /// Also while the list is open, when its entries take the keys.
    bool HasFocus(const std::string& list) { return Window().focusWidget() == &List(list); }

    int Caret(const std::string& list) { return List(list).lineEdit()->cursorPosition(); }
};

TEST_P(ListKeyboard, HaCompletesToTheFirstBrandThatBeginsSo)
{
    Focus(Antenna(0));
    Type("ha");
    EXPECT_EQ(Text(Antenna(0)), "HALO");
    EXPECT_EQ(Caret(Antenna(0)), 2);
    Type("m");
    EXPECT_EQ(Text(Antenna(0)), "Hamwire");
    EXPECT_EQ(Caret(Antenna(0)), 3);
}

TEST_P(ListKeyboard, SmallLettersBecomeCapitals)
{
    Focus(Antenna(0));
    Type("zx");
    EXPECT_EQ(Text(Antenna(0)), "ZX");
}

TEST_P(ListKeyboard, TypingAloneChoosesNothing)
{
    Focus(Antenna(0));
    Type("wire");
    EXPECT_EQ(Text(Antenna(0)), "WIRECRAFT");
    EXPECT_EQ(List(Antenna(1)).count(), 0);
    EXPECT_EQ(Data().AntennaBrand.Trimmed(), "");
}

TEST_P(ListKeyboard, EnterGoesFromBrandToModelToBandAndStopsThere)
{
    Focus(Antenna(0));
    Type("wire");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().AntennaBrand.Trimmed(), "WIRECRAFT");
    EXPECT_TRUE(HasFocus(Antenna(1)));
    EXPECT_TRUE(IsOpen(Antenna(1)));

    Type("beam");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().AntennaModel.Trimmed(), "BEAM FOUR");
    EXPECT_TRUE(HasFocus(Antenna(2)));
    EXPECT_TRUE(IsOpen(Antenna(2)));

    Type("15");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().AntennaGain, 5.7F);
    EXPECT_TRUE(HasFocus(Antenna(2)));
    EXPECT_FALSE(IsOpen(Antenna(2)));
}

TEST_P(ListKeyboard, EnterGoesFromCoaxBrandToTypeToTheAntennaBrandOfTheSameSystem)
{
    Focus(Coax(0));
    Type("cable");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().CoaxBrand.Trimmed(), "CABLEWORKS");
    EXPECT_TRUE(HasFocus(Coax(1)));
    EXPECT_TRUE(IsOpen(Coax(1)));

    Type("rg-5");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().CoaxModel.Trimmed(), "RG-58");
    EXPECT_TRUE(HasFocus(Antenna(0)));
    EXPECT_TRUE(IsOpen(Antenna(0)));
}

TEST_P(ListKeyboard, UnknownTextWithEnterNeitherSelectsNorMovesOn)
{
    Focus(Antenna(0));
    Type("zx");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().AntennaBrand.Trimmed(), "");
    EXPECT_TRUE(HasFocus(Antenna(0)));
    EXPECT_FALSE(IsOpen(Antenna(1)));
}

TEST_P(ListKeyboard, EnterOnTheChosenEntryTakesItAgain)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Paste(Own("txtFrequency"), "144.3");
    Focus(Coax(1));
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().CoaxLoss, 3.71F);
}

TEST_P(ListKeyboard, F4OpensTheList)
{
    Focus(Coax(0));
    Press(Qt::Key_F4);
    EXPECT_TRUE(IsOpen(Coax(0)));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen(Coax(0)));
}

TEST_P(ListKeyboard, MousePicksFromTheOpenList)
{
    Focus(Coax(0));
    Press(Qt::Key_F4);
    auto& list = List(Coax(0));
    const QModelIndex entry = list.model()->index(1, 0);
    QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {}, list.view()->visualRect(entry).center());
    EXPECT_EQ(Data().CoaxBrand.Trimmed(), "TIMES MICROWAVE");
    EXPECT_EQ(Entries(Coax(1)), "LMR-A");
}

TEST_P(ListKeyboard, WholeSystemIsChosenFromTheKeyboardAlone)
{
    Focus(Coax(0));
    for (const char* text : {"cable", "rg-8x", "wire", "beam", "20"}) {
        Type(text);
        Press(Qt::Key_Return);
    }
    EXPECT_EQ(Text(Own("lblERP")), "234.40");
}

TEST_P(ListKeyboard, NamesTypedAreFoundWithoutRegardToCase)
{
    Focus(Antenna(0));
    Type("alpha");
    Press(Qt::Key_Return);
    EXPECT_EQ(Data().AntennaBrand.Trimmed(), "alpha");
}

INSTANTIATE_TEST_SUITE_P(Lists, ListKeyboard, BothSystems(), SystemName());

} // namespace
} // namespace quillon::ui
