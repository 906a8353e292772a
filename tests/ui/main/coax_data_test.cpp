#include "tests/ui/main/window_fixture.h"

#include <QTest>

#include <algorithm>

namespace quillon::ui {
namespace {

class CoaxLength : public EachSystem
{
protected:
    std::string LengthBox() const { return Spelled("txtSystem%CoaxLength"); }

    std::string LengthSpin() const { return Spelled("vsSystem%CoaxLength"); }

    void ExpectLength(const std::string& text, float feet)
    {
        EXPECT_EQ(Text(LengthBox()), text);
        EXPECT_EQ(Data().CoaxLength, feet);
    }
};

TEST_P(CoaxLength, StepsByOneFoot)
{
    ClickUp(LengthSpin());
    ExpectLength("101", 101);
    ClickDown(LengthSpin(), 2);
    ExpectLength("99", 99);
}

TEST_P(CoaxLength, PagesByTenFeet)
{
    QTest::keyClick(&Spin(LengthSpin()), Qt::Key_PageUp);
    ExpectLength("110", 110);
    QTest::keyClick(&Spin(LengthSpin()), Qt::Key_PageDown);
    ExpectLength("100", 100);
}

TEST_P(CoaxLength, GoesFrom0To3499Feet)
{
    Spin(LengthSpin()).setValue(3500);
    ExpectLength("0", 0);
    Spin(LengthSpin()).setValue(1);
    ExpectLength("3499", 3499);
}

TEST_P(CoaxLength, ZeroGivesNoCoaxLoss)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Spin(LengthSpin()).setValue(3500);
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "0.00");
    EXPECT_EQ(Text(Own("lblCoaxPowerLoss")), "0.00");
}

TEST_P(CoaxLength, TypingIsStoredAndComputed)
{
    ChooseCoax("CABLEWORKS", "RG-8X");
    Type(LengthBox(), "123.4");
    EXPECT_EQ(Data().CoaxLength, 123.4F);
    EXPECT_EQ(Text(Own("lblCoaxDBLoss")), "1.62"); // 1.234 * 1.31
}

TEST_P(CoaxLength, TypingDoesNotMoveTheSpinControl)
{
    Type(LengthBox(), "5000");
    ExpectLength("5000", 5000);
    EXPECT_EQ(Spin(LengthSpin()).value(), 3400);
    ClickUp(LengthSpin());
    ExpectLength("101", 101);
}

TEST_P(CoaxLength, EmptyKeepsTheLengthAndComputes)
{
    Clear(LengthBox());
    EXPECT_EQ(Data().CoaxLength, 100.0F);
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "100.00");
    EXPECT_FALSE(IsMarked(LengthBox()));
}

TEST_P(CoaxLength, IsTakenAlsoWhenTheTextStaysTheSame)
{
    Paste(LengthBox(), "101");
    Data().CoaxLength = 7;
    ClickUp(LengthSpin());
    ExpectLength("101", 101);
}

TEST_P(CoaxLength, IsToldInMetresOfTheFigureThatIsTurnedTo)
{
    ClickDown(LengthSpin());
    EXPECT_EQ(ToolTip(LengthBox()), "30.2 m"); // 99 ft
}

TEST_P(CoaxLength, IsToldInMetresKeyByKey)
{
    Type(LengthBox(), "2");
    EXPECT_EQ(ToolTip(LengthBox()), "0.6 m");
    Type("5");
    EXPECT_EQ(ToolTip(LengthBox()), "7.6 m");
}

TEST_P(CoaxLength, IsNotToldInMetresWhereItIsNoNumber)
{
    Paste(LengthBox(), "12.5abc");
    EXPECT_EQ(ToolTip(LengthBox()), "“12.5abc” is not a number");
    Clear(LengthBox());
    EXPECT_EQ(ToolTip(LengthBox()), "");
    EXPECT_EQ(AccessibleDescription(LengthBox()), "");
}

INSTANTIATE_TEST_SUITE_P(Input, CoaxLength, BothSystems(), SystemName());

TEST_F(WindowTest, TurningTheLengthComputesForTheTextAndForTheSpinControlAsGiven)
{
    Open();
    ClickUp("vsSystemOneCoaxLength");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 2 * 3);
}

struct MetresRow
{
    const char* name;
    const char* feet;
    const char* metres;
};

class Metres : public EachSystemRow<MetresRow>
{
};

TEST_P(Metres, AreToldOfTheLengthTyped)
{
    Paste(Spelled("txtSystem%CoaxLength"), Case().feet);
    EXPECT_EQ(ToolTip(Spelled("txtSystem%CoaxLength")), Case().metres);
    EXPECT_EQ(AccessibleDescription(Spelled("txtSystem%CoaxLength")), Case().metres);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Metres,
    ::testing::Combine(BothSystems(), ::testing::Values(MetresRow{"rounded up", "100", "30.5 m"},             // 30.48
                                                        MetresRow{"rounded down", "150.4", "45.8 m"},         // 45.842
                                                        MetresRow{"half away from zero", "-62.5", "-19.1 m"}, // -19.05
                                                        MetresRow{"whole", "10000", "3048.0 m"},
                                                        MetresRow{"below a metre", "1", "0.3 m"}, // 0.3048
                                                        MetresRow{"nothing", "0", "0.0 m"},
                                                        MetresRow{"unfinished", "12.", "3.7 m"}, // 3.6576
                                                        MetresRow{"empty", "", ""})),
    SystemName());

class Connectors : public EachSystem
{
protected:
    std::string CountBox() const { return Spelled("txtSystem%NumConnectors"); }

    std::string CountSpin() const { return Spelled("vsSystem%NumConnectors"); }

    void ExpectConnectors(const std::string& text, int count, float loss)
    {
        EXPECT_EQ(Text(CountBox()), text);
        EXPECT_EQ(Data().Connectors, count);
        EXPECT_EQ(Data().ConnectorLoss, loss);
        EXPECT_EQ(Results().ConnectorLoss, loss);
    }
};

TEST_P(Connectors, StepByOne)
{
    ClickUp(CountSpin());
    ExpectConnectors("3", 3, 0.00652F * 3);
    ClickDown(CountSpin(), 2);
    ExpectConnectors("1", 1, 0.00652F);
}

TEST_P(Connectors, GoFrom0To24)
{
    Spin(CountSpin()).setValue(25);
    ExpectConnectors("0", 0, 0);
    Spin(CountSpin()).setValue(1);
    ExpectConnectors("24", 24, 0.00652F * 24);
}

TEST_P(Connectors, AreTakenAlsoWhenTheTextStaysTheSame)
{
    Paste(CountBox(), "3");
    ClickUp(CountSpin());
    ExpectConnectors("3", 3, 0.00652F * 3); // and not the position, 22
}

TEST_P(Connectors, TypingIsStoredWithTheLossAtTheFrequency)
{
    Paste(Own("txtFrequency"), "50.125");
    Type(CountBox(), "4");
    ExpectConnectors("4", 4, 0.01131F * 4);
}

TEST_P(Connectors, HaveNoLossOnABoundOfTheTable)
{
    Paste(Own("txtFrequency"), "1.001");
    Paste(CountBox(), "4");
    ExpectConnectors("4", 4, 0);
}

TEST_P(Connectors, TypingDoesNotMoveTheSpinControl)
{
    Type(CountBox(), "30");
    EXPECT_EQ(Spin(CountSpin()).value(), 23);
    ClickUp(CountSpin());
    EXPECT_EQ(Data().Connectors, 3);
}

TEST_P(Connectors, EmptyTakesTheLossOutOfTheResultsOnly)
{
    Clear(CountBox());
    EXPECT_EQ(Data().Connectors, 2);
    EXPECT_EQ(Data().ConnectorLoss, 0.01304F);
    EXPECT_EQ(Results().ConnectorLoss, 0.0F);
    EXPECT_EQ(Text(Own("lblSystemGain")), "0");
    EXPECT_FALSE(IsMarked(CountBox()));
}

TEST_P(Connectors, TakeTheLossIntoTheSystemGain)
{
    Paste(CountBox(), "10");
    EXPECT_EQ(Text(Own("lblSystemGain")), "-0.07"); // 10 * 0.00652
}

INSTANTIATE_TEST_SUITE_P(Input, Connectors, BothSystems(), SystemName());

TEST_F(WindowTest, TurningTheConnectorsComputesForTheTextAndForTheSpinControlAsGiven)
{
    Open();
    ClickUp("vsSystemOneNumConnectors");
    EXPECT_EQ(std::ranges::count(hooks.Record(), 'B'), 2 * 3);
}

struct WholeRow
{
    const char* name;
    const char* text;
    int count;
};

using WholeConnectors = EachSystemRow<WholeRow>;

TEST_P(WholeConnectors, AreRoundedHalvesToEven)
{
    Paste(Spelled("txtSystem%NumConnectors"), Case().text);
    EXPECT_EQ(Data().Connectors, Case().count);
    EXPECT_FALSE(IsMarked(Spelled("txtSystem%NumConnectors")));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, WholeConnectors,
    ::testing::Combine(BothSystems(),
                       ::testing::Values(WholeRow{"2.5 is 2", "2.5", 2}, WholeRow{"3.5 is 4", "3.5", 4},
                                         WholeRow{"0.4 is 0", "0.4", 0}, WholeRow{"largest", "32767", 32767},
                                         WholeRow{"rounds to the largest", "32767.4", 32767},
                                         WholeRow{"smallest", "-32768", -32768})),
    SystemName());

} // namespace
} // namespace quillon::ui
