#include "tests/ui/main/window_fixture.h"

#include <QTest>

namespace quillon::ui {
namespace {

class PowerSpin : public EachSystem
{
protected:
    std::string Coarse() const { return Pair("vsOutputPower", 0); }

    std::string Fine() const { return Pair("vsOutputPower", 1); }

    void ExpectPower(const std::string& text, float watts)
    {
        EXPECT_EQ(Text(Own("txtOutputPower")), text);
        EXPECT_EQ(Data().XmitPower, watts);
    }
};

TEST_P(PowerSpin, CoarseStepsByTenWatts)
{
    ClickUp(Coarse());
    ExpectPower("110", 110);
    ClickUp(Coarse());
    ExpectPower("120", 120);
    ClickDown(Coarse(), 3);
    ExpectPower("90", 90);
}

TEST_P(PowerSpin, FineStepsByOneWatt)
{
    ClickUp(Fine());
    ExpectPower("101", 101);
    ClickDown(Fine(), 2);
    ExpectPower("99", 99);
}

TEST_P(PowerSpin, FineAddsToTheCoarsePosition)
{
    ClickUp(Coarse());
    ClickDown(Fine());
    ExpectPower("109", 109);
}

TEST_P(PowerSpin, CoarseIgnoresTheFinePositionAsGiven)
{
    ClickDown(Fine(), 3);
    ExpectPower("97", 97);
    ClickUp(Coarse());
    ExpectPower("110", 110);
    ClickDown(Fine());
    ExpectPower("106", 106);
}

TEST_P(PowerSpin, RoundsToWholeWattsHalvesUp)
{
    Spin(Fine()).setValue(5); // 1500 - 1400.5
    ExpectPower("100", 100);
    Spin(Fine()).setValue(6); // 1500 - 1400.6
    ExpectPower("99", 99);
}

TEST_P(PowerSpin, NeverGoesBelowOneWatt)
{
    Spin(Coarse()).setValue(1499);
    ExpectPower("1", 1);
    Spin(Fine()).setValue(10); // 1500 - 1500
    ExpectPower("1", 1);
    Spin(Fine()).setValue(1499);
    ExpectPower("1", 1);
}

TEST_P(PowerSpin, TurnsUpTo1510WattsInRed)
{
    QTest::keyClick(&Spin(Coarse()), Qt::Key_Home);
    ExpectPower("1510", 1510);
    EXPECT_EQ(Box(Own("txtOutputPower")).palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST_P(PowerSpin, IsNotMovedByTypingAndStartsFromItsOwnPosition)
{
    Type(Own("txtOutputPower"), "500");
    EXPECT_EQ(Spin(Coarse()).value(), 1400);
    EXPECT_EQ(Spin(Fine()).value(), 0);
    ClickUp(Coarse());
    ExpectPower("110", 110);
}

TEST_P(PowerSpin, ComputesItsSystemOnly)
{
    const engine::SystemResults other = systems.Results[Other(System())];
    ClickUp(Coarse());
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "110.00");
    EXPECT_EQ(systems.Results[Other(System())], other);
}

INSTANTIATE_TEST_SUITE_P(Turning, PowerSpin, BothSystems(), SystemName());

using PowerText = EachSystem;

TEST_P(PowerText, IsStoredAndComputed)
{
    Type(Own("txtOutputPower"), "250.5");
    EXPECT_EQ(Data().XmitPower, 250.5F);
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "250.50");
}

TEST_P(PowerText, EmptyKeepsThePowerAndComputesAnew)
{
    Data().VSWR = 1.5F;
    Clear(Own("txtOutputPower"));
    EXPECT_EQ(Data().XmitPower, 100.0F);
    EXPECT_EQ(Text(Own("lblFeedPointPower")), "97.44");
    EXPECT_FALSE(IsMarked(Own("txtOutputPower")));
}

TEST_P(PowerText, PointRaisesTheMessageAndIsTypedAllTheSame)
{
    Type(Own("txtOutputPower"), "2.5");
    const std::vector<support::RecordingNotifier::Message> message{{"Please Enter Only Numbers!", "Input Error"}};
    EXPECT_EQ(notifier.Messages(), message);
    EXPECT_EQ(Text(Own("txtOutputPower")), "2.5");
    EXPECT_EQ(Data().XmitPower, 2.5F);
}

TEST_P(PowerText, KeypadPointIsTypedWithoutAMessage)
{
    Type(Own("txtOutputPower"), "2");
    QTest::keyClick(&Box(Own("txtOutputPower")), Qt::Key_Period, Qt::KeypadModifier);
    QTest::keyClick(&Box(Own("txtOutputPower")), Qt::Key_5, Qt::KeypadModifier);
    EXPECT_TRUE(notifier.Messages().empty());
    EXPECT_EQ(Data().XmitPower, 2.5F);
}

TEST_P(PowerText, OtherBoxesTakePointsWithoutAMessage)
{
    Type(Own("txtFrequency"), "7.1");
    Type(Spelled("txtSystem%CoaxLength"), "50.5");
    EXPECT_TRUE(notifier.Messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Typing, PowerText, BothSystems(), SystemName());

struct KeyRow
{
    const char* name;
    Qt::Key key;
    bool message;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

using PowerKey = EachSystemRow<KeyRow>;

TEST_P(PowerKey, RaisesTheMessageOrNot)
{
    QTest::keyClick(&Box(Own("txtOutputPower")), Case().key, Case().modifiers);

    EXPECT_EQ(notifier.Messages().size(), Case().message ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PowerKey,
    ::testing::Combine(BothSystems(),
                       ::testing::Values(KeyRow{"digit 0", Qt::Key_0, false}, KeyRow{"digit 9", Qt::Key_9, false},
                                         KeyRow{"keypad 0", Qt::Key_0, false, Qt::KeypadModifier},
                                         KeyRow{"keypad 9", Qt::Key_9, false, Qt::KeypadModifier},
                                         KeyRow{"Return", Qt::Key_Return, false},
                                         KeyRow{"keypad Enter", Qt::Key_Enter, false, Qt::KeypadModifier},
                                         KeyRow{"Backspace", Qt::Key_Backspace, false},
                                         KeyRow{"Delete", Qt::Key_Delete, false}, KeyRow{"Left", Qt::Key_Left, false},
                                         KeyRow{"Right", Qt::Key_Right, false}, KeyRow{"Tab", Qt::Key_Tab, false},
                                         KeyRow{"Shift alone", Qt::Key_Shift, false},
                                         KeyRow{"comma", Qt::Key_Comma, true}, KeyRow{"minus", Qt::Key_Minus, true},
                                         KeyRow{"letter", Qt::Key_A, true}, KeyRow{"exponent", Qt::Key_E, true},
                                         KeyRow{"blank", Qt::Key_Space, true}, KeyRow{"Up", Qt::Key_Up, true},
                                         KeyRow{"Home", Qt::Key_Home, true},
                                         KeyRow{"keypad plus", Qt::Key_Plus, true, Qt::KeypadModifier})),
    SystemName());

struct ColourRow
{
    const char* name;
    const char* text;
    bool red;
};

class PowerColour : public EachSystemRow<ColourRow>
{
protected:
    QColor Usual() const { return System() == engine::SystemId::One ? QColor(0, 0, 128) : QColor(64, 64, 64); }

    QColor Shown(QPalette::ColorGroup group)
    {
        return Box(Own("txtOutputPower")).palette().color(group, QPalette::Text);
    }
};

TEST_P(PowerColour, IsRedOnlyAbove1500Watts)
{
    const QColor expected = Case().red ? QColor(255, 0, 0) : Usual();
    Paste(Own("txtOutputPower"), Case().text);

    EXPECT_EQ(Shown(QPalette::Active), expected);
    EXPECT_EQ(Shown(QPalette::Inactive), expected);
}

TEST_P(PowerColour, IsToldInWordsToo)
{
    Paste(Own("txtOutputPower"), Case().text);

    const std::string words = Case().red ? "over 1500 W" : "";
    EXPECT_EQ(ToolTip(Own("txtOutputPower")), words);
    EXPECT_EQ(AccessibleDescription(Own("txtOutputPower")), words);
}

TEST_P(PowerColour, GoesBackWithTheNextPower)
{
    Paste(Own("txtOutputPower"), Case().text);
    Paste(Own("txtOutputPower"), "5");

    EXPECT_EQ(Shown(QPalette::Active), Usual());
    EXPECT_EQ(ToolTip(Own("txtOutputPower")), "");
}

INSTANTIATE_TEST_SUITE_P(
    Powers, PowerColour,
    ::testing::Combine(BothSystems(), ::testing::Values(ColourRow{"1500 is within the limit", "1500", false},
                                                        ColourRow{"1501 is over it", "1501", true},
                                                        ColourRow{"1500.5 rounds to the even 1500", "1500.5", false},
                                                        ColourRow{"1500.6 rounds to 1501", "1500.6", true},
                                                        ColourRow{"40000 does not overflow the test", "40000", true},
                                                        ColourRow{"-2000 is not over it", "-2000", false})),
    SystemName());

} // namespace
} // namespace quillon::ui
