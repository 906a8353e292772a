#include "tests/support/row_name.h"
#include "tests/ui/editor/editor_fixture.h"

#include <QTest>

namespace quillon::ui {
namespace {

class BandsTest : public EditorTest
{
protected:
    void SetUp() override
    {
        Open();
        Edit("ACME", "XR-5");
    }

    bool IsChecked(int index) { return Find<QAbstractButton>(Of("chkBands", index)).isChecked(); }

    const Questions add{{"Add Gain Figure For This Band?", "Add Band Coverage?", true}};
    const Questions remove{{"Remove Gain Figure For This Band?", "Remove Band Coverage?", true}};
};

TEST_F(BandsTest, CheckingAsksAndOkGoesToTheGain)
{
    Answer(true);
    Click("chkBands(2)");
    EXPECT_EQ(questions, add);
    EXPECT_TRUE(IsChecked(2));
    EXPECT_EQ(Focus(), "txtGainFigure(2)");
}

TEST_F(BandsTest, CancelAfterCheckingUnchecks)
{
    Answer(false);
    Click("chkBands(2)");
    EXPECT_EQ(questions, add);
    EXPECT_FALSE(IsChecked(2));
}

TEST_F(BandsTest, UncheckingAsksAndOkGoesToSaving)
{
    Answer(true);
    Click("chkBands(6)");
    EXPECT_EQ(questions, remove);
    EXPECT_FALSE(IsChecked(6));
    EXPECT_EQ(Focus(), "cmdSave");
}

TEST_F(BandsTest, CancelAfterUncheckingChecksAgain)
{
    Answer(false);
    Click("chkBands(6)");
    EXPECT_EQ(questions, remove);
    EXPECT_TRUE(IsChecked(6));
    EXPECT_EQ(Text("txtGainFigure(6)"), "7.1");
}

TEST_F(BandsTest, SpaceBarAsksNothing)
{
    Find("chkBands(2)").setFocus();
    Answer(false);
    Press(Qt::Key_Space);
    QCoreApplication::processEvents();
    EXPECT_TRUE(questions.empty());
    EXPECT_TRUE(IsChecked(2));
}

TEST_F(BandsTest, OtherMouseButtonsAndLettingGoOutsideChangeAndAskNothing)
{
    QWidget& box = Find("chkBands(2)");
    Answer(true);
    QTest::mouseClick(&box, Qt::RightButton, Qt::NoModifier, QPoint(8, box.height() / 2));
    QCoreApplication::processEvents();
    Answer(true);
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    QCoreApplication::processEvents();
    EXPECT_TRUE(questions.empty());
    EXPECT_FALSE(IsChecked(2));
}

TEST_F(BandsTest, LockedBoxesDoNotChange)
{
    ChooseModel("A-99");
    Answer(true);
    Click("chkBands(2)");
    QCoreApplication::processEvents();
    EXPECT_TRUE(questions.empty());
    EXPECT_FALSE(IsChecked(2));
}

struct TypedRow
{
    const char* name;
    const char* typed;
    const char* text;
};

class TypedGain : public BandsTest, public ::testing::WithParamInterface<TypedRow>
{
};

TEST_P(TypedGain, IsFilteredAndGuarded)
{
    Paste("txtGainFigure(1)", "");
    Box("txtGainFigure(1)").setFocus();
    test::Type(dialog, QString::fromUtf8(GetParam().typed));
    EXPECT_EQ(Text("txtGainFigure(1)"), GetParam().text);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Keys, TypedGain, ::testing::Values(
    TypedRow{"digits and point", "12.5", "12.5"},
    TypedRow{"minus in front", "-1.6", "-1.6"},
    TypedRow{"letters are swallowed", "1a b2e+/3", "123"},
    TypedRow{"minus behind a digit takes it away, as given", "5-", "-"},
    TypedRow{"second minus, as given", "-5-", "-"},
    TypedRow{"minus within a number, as given", "12-34", "-34"},
    TypedRow{"two minuses", "--", "-"}), support::RowName());

TEST_F(BandsTest, CommaIsSwallowedWhereItIsNotTheDecimalSign)
{
    dialog.setLocale(QLocale::c());
    Paste("txtGainFigure(1)", "");
    Box("txtGainFigure(1)").setFocus();
    test::Type(dialog, QStringLiteral("12,3"));
    EXPECT_EQ(Box("txtGainFigure(1)").text(), QStringLiteral("123"));
}

class PastedGain : public BandsTest, public ::testing::WithParamInterface<TypedRow>
{
};

TEST_P(PastedGain, IsGuarded)
{
    Paste("txtGainFigure(1)", GetParam().typed);
    EXPECT_EQ(Text("txtGainFigure(1)"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Texts, PastedGain, ::testing::Values(
    TypedRow{"no minus", "12.5", "12.5"},
    TypedRow{"minus in front", "-1.6", "-1.6"},
    TypedRow{"several", "1-2-3", "-3"},
    TypedRow{"at the end", "-5-", "-"},
    TypedRow{"no number stays to be told", "abc", "abc"}), support::RowName());

// clang-format on

TEST_F(BandsTest, LongPastedMinusSignsEndAsOne)
{
    Paste("txtGainFigure(1)", std::string(30000, '-'));
    EXPECT_EQ(Text("txtGainFigure(1)"), "-");
}

TEST_F(BandsTest, LockedGainBoxesTakeNoKeys)
{
    ChooseModel("A-99");
    Box("txtGainFigure(10)").setFocus();
    test::Type(dialog, QStringLiteral("5"));
    EXPECT_EQ(Text("txtGainFigure(10)"), "-1.6");
}

TEST_F(BandsTest, TextThatIsNoNumberIsMarkedUntilItIsOne)
{
    auto& box = Box("txtGainFigure(6)");
    Paste("txtGainFigure(6)", "-");
    EXPECT_TRUE(box.property("marked").toBool());
    EXPECT_EQ(box.toolTip(), QStringLiteral("“-” is not a number"));
    Paste("txtGainFigure(6)", "9999");
    EXPECT_EQ(box.toolTip(), QStringLiteral("“9999” is too large"));
    for (const char* good : {"-1", ""}) {
        Paste("txtGainFigure(6)", "x");
        Paste("txtGainFigure(6)", good);
        EXPECT_FALSE(box.property("marked").toBool()) << good;
    }
}

} // namespace
} // namespace quillon::ui
