#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <set>

namespace quillon::ui {
namespace {

TEST_F(WindowTest, EveryNameStandsForOneControl)
{
    Open();
    std::set<QString> names;
    for (const QWidget* widget : Window().findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        const bool ours = name.contains(u'(') || name.startsWith(u"txt") || name.startsWith(u"vs") ||
                          name.startsWith(u"lbl") || name.startsWith(u"shp") || name.startsWith(u"Frame");
        EXPECT_TRUE(!ours || names.insert(name).second) << name.toStdString();
    }
}

struct SpokenRow
{
    const char* name;
    const char* spoken;
};

class Spoken : public WindowTest, public ::testing::WithParamInterface<SpokenRow>
{
};

TEST_P(Spoken, HasItsName)
{
    Open();
    EXPECT_EQ(AccessibleName(GetParam().name), GetParam().spoken);
}

INSTANTIATE_TEST_SUITE_P(SpinControls, Spoken,
                         ::testing::Values(SpokenRow{"vsOutputPower(0)", "System 1 power, coarse"},
                                           SpokenRow{"vsOutputPower(1)", "System 1 power, fine"},
                                           SpokenRow{"vsOutputPower(2)", "System 2 power, coarse"},
                                           SpokenRow{"vsOutputPower(3)", "System 2 power, fine"},
                                           SpokenRow{"vsFrequency(1)", "System 1 frequency"},
                                           SpokenRow{"vsFrequency(2)", "System 2 frequency"},
                                           SpokenRow{"vsVSWR(0)", "System 1 VSWR, whole part"},
                                           SpokenRow{"vsVSWR(1)", "System 1 VSWR, tenths"},
                                           SpokenRow{"vsVSWR(2)", "System 2 VSWR, whole part"},
                                           SpokenRow{"vsVSWR(3)", "System 2 VSWR, tenths"},
                                           SpokenRow{"vsSystemOneCoaxLength", "System 1 coax length"},
                                           SpokenRow{"vsSystemTwoCoaxLength", "System 2 coax length"},
                                           SpokenRow{"vsSystemOneNumConnectors", "System 1 connectors"},
                                           SpokenRow{"vsSystemTwoNumConnectors", "System 2 connectors"},
                                           SpokenRow{"vsAntennaGain(0)", "System 1 typed antenna gain, coarse"},
                                           SpokenRow{"vsAntennaGain(1)", "System 1 typed antenna gain, fine"},
                                           SpokenRow{"vsCoaxLoss", "System 1 typed coax loss"}),
                         support::RowName());

INSTANTIATE_TEST_SUITE_P(OptionsOfOneCaption, Spoken,
                         ::testing::Values(SpokenRow{"optCoaxCable(0)", "System 1 coax loss, user data"},
                                           SpokenRow{"optAntenna(0)", "System 1 antenna gain, user data"}),
                         support::RowName());

INSTANTIATE_TEST_SUITE_P(Lists, Spoken,
                         ::testing::Values(SpokenRow{"cboSystemOneAntenna(0)", "System 1 antenna brand"},
                                           SpokenRow{"cboSystemOneAntenna(1)", "System 1 antenna model"},
                                           SpokenRow{"cboSystemOneAntenna(2)", "System 1 antenna band"},
                                           SpokenRow{"cboSystemTwoAntenna(0)", "System 2 antenna brand"},
                                           SpokenRow{"cboSystemTwoAntenna(1)", "System 2 antenna model"},
                                           SpokenRow{"cboSystemTwoAntenna(2)", "System 2 antenna band"},
                                           SpokenRow{"cboSystemOneCoax(0)", "System 1 coax brand"},
                                           SpokenRow{"cboSystemOneCoax(1)", "System 1 coax type"},
                                           SpokenRow{"cboSystemTwoCoax(0)", "System 2 coax brand"},
                                           SpokenRow{"cboSystemTwoCoax(1)", "System 2 coax type"}),
                         support::RowName());

/// The figure that a screen reader reads at a spin control, and the one that it sets at most.
struct FigureRow
{
    const char* name;
    double figure;
    double next; ///< after the upper arrow
    double highest;
};

class SpokenFigure : public WindowTest, public ::testing::WithParamInterface<FigureRow>
{
};

TEST_P(SpokenFigure, IsTheOneInTheBoxAndRisesWithTheUpperArrow)
{
    Open();
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Spin(GetParam().name));
    ASSERT_NE(spoken->valueInterface(), nullptr);
    EXPECT_EQ(spoken->valueInterface()->currentValue().toDouble(), GetParam().figure);
    EXPECT_EQ(spoken->valueInterface()->maximumValue().toDouble(), GetParam().highest);
    ClickUp(GetParam().name);
    EXPECT_EQ(spoken->valueInterface()->currentValue().toDouble(), GetParam().next);
}

INSTANTIATE_TEST_SUITE_P(
    Spins, SpokenFigure,
    ::testing::Values(FigureRow{"vsOutputPower(0)", 100, 110, 1510}, FigureRow{"vsOutputPower(1)", 100, 101, 101},
                      FigureRow{"vsOutputPower(2)", 100, 110, 1510}, FigureRow{"vsOutputPower(3)", 100, 101, 101},
                      FigureRow{"vsFrequency(1)", 14.25, 18.14, 432.1},
                      FigureRow{"vsFrequency(2)", 14.25, 18.14, 432.1}, FigureRow{"vsVSWR(0)", 1.1, 2.1, 3.1},
                      FigureRow{"vsVSWR(1)", 1.1, 1.2, 1.9}, FigureRow{"vsVSWR(2)", 1.1, 2.1, 3.1},
                      FigureRow{"vsVSWR(3)", 1.1, 1.2, 1.9}, FigureRow{"vsSystemOneCoaxLength", 100, 101, 3499},
                      FigureRow{"vsSystemTwoCoaxLength", 100, 101, 3499},
                      FigureRow{"vsSystemOneNumConnectors", 2, 3, 24}, FigureRow{"vsSystemTwoNumConnectors", 2, 3, 24}),
    support::RowName());

TEST_F(WindowTest, EverySpinControlTakesTheFocusByKeyboard)
{
    Open();
    int spins = 0;
    for (const QAbstractSlider* spin : Window().findChildren<QAbstractSlider*>()) {
        if (spin->objectName().startsWith(u"vs")) {
            EXPECT_TRUE(spin->focusPolicy() & Qt::TabFocus) << spin->objectName().toStdString();
            ++spins;
        }
    }
    EXPECT_EQ(spins, 17);
}

TEST_F(WindowTest, EveryTextBoxHasAName)
{
    Open();
    for (const QLineEdit* box : Window().findChildren<QLineEdit*>()) {
        if (box->objectName().startsWith(u"txt")) {
            EXPECT_FALSE(box->accessibleName().isEmpty()) << box->objectName().toStdString();
        }
    }
}

struct BuddyRow
{
    const char* name; ///< of the control
    const char* label;
};

class Buddy : public WindowTest, public ::testing::WithParamInterface<BuddyRow>
{
protected:
    QLabel* LabelOf(const QWidget& control)
    {
        for (QLabel* label : Window().findChildren<QLabel*>()) {
            if (label->buddy() == &control) {
                return label;
            }
        }
        return nullptr;
    }
};

TEST_P(Buddy, IsTheLabelOfItsControl)
{
    Open();
    const QLabel* label = LabelOf(Find(GetParam().name));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text().toStdString(), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(
    Labels, Buddy,
    ::testing::Values(BuddyRow{"cboSystemOneAntenna(0)", "Brand"}, BuddyRow{"cboSystemOneAntenna(1)", "Model"},
                      BuddyRow{"cboSystemOneAntenna(2)", "Band"}, BuddyRow{"cboSystemTwoAntenna(0)", "Brand"},
                      BuddyRow{"cboSystemTwoAntenna(1)", "Model"}, BuddyRow{"cboSystemTwoAntenna(2)", "Band"},
                      BuddyRow{"cboSystemOneCoax(0)", "Brand"}, BuddyRow{"cboSystemOneCoax(1)", "Type"},
                      BuddyRow{"cboSystemTwoCoax(0)", "Brand"}, BuddyRow{"cboSystemTwoCoax(1)", "Type"},
                      BuddyRow{"txtFrequency(1)", "Transmit Frequency in Mhz"},
                      BuddyRow{"txtFrequency(2)", "Transmit Frequency in Mhz"},
                      BuddyRow{"txtSystemOneCoaxLength", "Coax Length in '"},
                      BuddyRow{"txtSystemTwoCoaxLength", "Coax Length in '"},
                      BuddyRow{"txtSystemOneNumConnectors", "# of Connectors"},
                      BuddyRow{"txtSystemTwoNumConnectors", "# of Connectors"}),
    support::RowName());

class TabOrder : public WindowTest
{
protected:
    /// Names of what takes the focus when Tab is pressed, from a control on, once round.
    std::vector<std::string> TabRound(const std::string& first)
    {
        std::vector<std::string> names;
        Find(first).setFocus(Qt::TabFocusReason);
        for (int step = 0; step < 100; ++step) {
            names.push_back(QApplication::focusWidget()->objectName().toStdString());
            Press(Qt::Key_Tab);
            if (QApplication::focusWidget()->objectName().toStdString() == first) {
                break;
            }
        }
        return names;
    }
};

TEST_F(TabOrder, GoesDownSystemOneThenDownSystemTwoThenToTheButtons)
{
    Open();
    const std::vector<std::string> expected{"txtOutputPower(1)",
                                            "vsOutputPower(0)",
                                            "vsOutputPower(1)",
                                            "txtVSWR(1)",
                                            "vsVSWR(0)",
                                            "vsVSWR(1)",
                                            "txtFrequency(1)",
                                            "vsFrequency(1)",
                                            "cboSystemOneCoax(0)",
                                            "cboSystemOneCoax(1)",
                                            "txtSystemOneCoaxLength",
                                            "vsSystemOneCoaxLength",
                                            "txtSystemOneNumConnectors",
                                            "vsSystemOneNumConnectors",
                                            "cboSystemOneAntenna(0)",
                                            "cboSystemOneAntenna(1)",
                                            "cboSystemOneAntenna(2)",
                                            "txtOutputPower(2)",
                                            "vsOutputPower(2)",
                                            "vsOutputPower(3)",
                                            "txtVSWR(2)",
                                            "vsVSWR(2)",
                                            "vsVSWR(3)",
                                            "txtFrequency(2)",
                                            "vsFrequency(2)",
                                            "cboSystemTwoCoax(0)",
                                            "cboSystemTwoCoax(1)",
                                            "txtSystemTwoCoaxLength",
                                            "vsSystemTwoCoaxLength",
                                            "txtSystemTwoNumConnectors",
                                            "vsSystemTwoNumConnectors",
                                            "cboSystemTwoAntenna(0)",
                                            "cboSystemTwoAntenna(1)",
                                            "cboSystemTwoAntenna(2)",
                                            "cmdSaveSystem",
                                            "cmdLoadSystem",
                                            "cmdPrint",
                                            "cmdEditAntennas",
                                            "cmddBTable",
                                            "cmdCalculator",
                                            "cmdClose"};
    EXPECT_EQ(TabRound("txtOutputPower(1)"), expected);
}

TEST_F(TabOrder, TakesTheTypedFiguresAtTheirPlaces)
{
    Open();
    Find("FrameCoaxLoss").show();
    Find("FrameAntennaGain").show();
    Find("optCoaxCable(0)").setProperty("checked", true);
    const std::vector<std::string> round = TabRound("vsSystemOneNumConnectors");
    const std::vector<std::string> loss(round.begin(), round.begin() + 4);
    EXPECT_EQ(loss,
              (std::vector<std::string>{"vsSystemOneNumConnectors", "txtCoaxLoss", "vsCoaxLoss", "optCoaxCable(0)"}));

    Find("optAntenna(0)").setProperty("checked", true);
    const std::vector<std::string> gain = TabRound("txtAntennaGain");
    EXPECT_EQ(std::vector<std::string>(gain.begin(), gain.begin() + 5),
              (std::vector<std::string>{"txtAntennaGain", "vsAntennaGain(0)", "vsAntennaGain(1)", "optAntenna(0)",
                                        "txtOutputPower(2)"}));
}

} // namespace
} // namespace quillon::ui
