#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

namespace quillon::ui {
namespace {

TEST_F(WindowTest, CaptionOfTheWindow)
{
    Open();

    EXPECT_EQ(Window().windowTitle(), QStringLiteral("ERP / Attenuation Calculator"));
    EXPECT_EQ(Window().objectName(), QStringLiteral("Quillon"));
}

struct FrameRow
{
    const char* name;
    const char* caption;
};

class Frame : public WindowTest, public ::testing::WithParamInterface<FrameRow>
{
};

TEST_P(Frame, HasItsCaption)
{
    Open();

    EXPECT_EQ(Find<QGroupBox>(GetParam().name).title().toStdString(), GetParam().caption);
}

INSTANTIATE_TEST_SUITE_P(
    Frames, Frame,
    ::testing::Values(
        FrameRow{"FrameXmitPower(1)", "System 1 Xmit Pwr"}, FrameRow{"FrameXmitPower(2)", "System 2 Xmit Pwr"},
        FrameRow{"FrameFrequency(1)", "System 1 Xmit Freq"}, FrameRow{"FrameFrequency(2)", "System 2 Xmit Freq"}, //
        FrameRow{"FrameVSWR(1)", "System 1 VSWR"},                                                                //
        FrameRow{"FrameVSWR(2)", "System 2 VSWR"},
        FrameRow{"FrameSystemOneAntenna", "Choose Brand && Model of System 1 Antenna"},
        FrameRow{"FrameSystemTwoAnt", "Choose Brand && Model of System 2 Antenna"},
        FrameRow{"FrameSystemOneCoax", "Choose Brand && Type of System 1 Coax"},
        FrameRow{"FrameSystemTwoCoax", "Choose Brand && Type of System 2 Coax"},
        FrameRow{"FrameSysOneCoax", "System 1 Coax data"}, FrameRow{"FrameSysTwoCoax", "System 2 Coax data"}, //
        FrameRow{"FrameCoaxLoss", "Coax dB Loss/100 Ft"}, FrameRow{"FrameAntennaGain", "Antenna Gain in dB"},
        FrameRow{"FrameControls", ""},
        FrameRow{"FrameDisplay", "System #1--- Antenna System Performance Calculations--- System #2"}),
    support::RowName());

struct ControlRow
{
    const char* name;
    const char* frame;
    const char* kind;
};

class Control : public WindowTest, public ::testing::WithParamInterface<ControlRow>
{
};

TEST_P(Control, StandsInItsFrame)
{
    Open();
    auto& control = Find(GetParam().name);

    EXPECT_TRUE(Find(GetParam().frame).isAncestorOf(&control));
    EXPECT_TRUE(control.inherits(GetParam().kind)) << control.metaObject()->className();
}

INSTANTIATE_TEST_SUITE_P(Power, Control,
                         ::testing::Values(ControlRow{"txtOutputPower(1)", "FrameXmitPower(1)", "QLineEdit"},
                                           ControlRow{"txtOutputPower(2)", "FrameXmitPower(2)", "QLineEdit"},
                                           ControlRow{"vsOutputPower(0)", "FrameXmitPower(1)", "QAbstractSlider"},
                                           ControlRow{"vsOutputPower(1)", "FrameXmitPower(1)", "QAbstractSlider"},
                                           ControlRow{"vsOutputPower(2)", "FrameXmitPower(2)", "QAbstractSlider"},
                                           ControlRow{"vsOutputPower(3)", "FrameXmitPower(2)", "QAbstractSlider"},
                                           ControlRow{"txtVSWR(1)", "FrameVSWR(1)", "QLineEdit"},
                                           ControlRow{"txtVSWR(2)", "FrameVSWR(2)", "QLineEdit"},
                                           ControlRow{"txtVSWRSuffix(0)", "FrameVSWR(1)", "QLineEdit"},
                                           ControlRow{"txtVSWRSuffix(1)", "FrameVSWR(2)", "QLineEdit"},
                                           ControlRow{"vsVSWR(0)", "FrameVSWR(1)", "QAbstractSlider"},
                                           ControlRow{"vsVSWR(1)", "FrameVSWR(1)", "QAbstractSlider"},
                                           ControlRow{"vsVSWR(2)", "FrameVSWR(2)", "QAbstractSlider"},
                                           ControlRow{"vsVSWR(3)", "FrameVSWR(2)", "QAbstractSlider"},
                                           ControlRow{"txtFrequency(1)", "FrameFrequency(1)", "QLineEdit"},
                                           ControlRow{"txtFrequency(2)", "FrameFrequency(2)", "QLineEdit"},
                                           ControlRow{"vsFrequency(1)", "FrameFrequency(1)", "QAbstractSlider"},
                                           ControlRow{"vsFrequency(2)", "FrameFrequency(2)", "QAbstractSlider"},
                                           ControlRow{"lblFrequency(1)", "FrameFrequency(1)", "QLabel"},
                                           ControlRow{"lblFrequency(2)", "FrameFrequency(2)", "QLabel"}),
                         support::RowName());

INSTANTIATE_TEST_SUITE_P(Antenna, Control,
                         ::testing::Values(ControlRow{"cboSystemOneAntenna(0)", "FrameSystemOneAntenna", "QComboBox"},
                                           ControlRow{"cboSystemOneAntenna(1)", "FrameSystemOneAntenna", "QComboBox"},
                                           ControlRow{"cboSystemOneAntenna(2)", "FrameSystemOneAntenna", "QComboBox"},
                                           ControlRow{"cboSystemTwoAntenna(0)", "FrameSystemTwoAnt", "QComboBox"},
                                           ControlRow{"cboSystemTwoAntenna(1)", "FrameSystemTwoAnt", "QComboBox"},
                                           ControlRow{"cboSystemTwoAntenna(2)", "FrameSystemTwoAnt", "QComboBox"},
                                           ControlRow{"lblAntennaBrand(1)", "FrameSystemOneAntenna", "QLabel"},
                                           ControlRow{"lblAntennaModel(1)", "FrameSystemOneAntenna", "QLabel"},
                                           ControlRow{"lblAntennaBand(1)", "FrameSystemOneAntenna", "QLabel"},
                                           ControlRow{"lblAntennaBrand(2)", "FrameSystemTwoAnt", "QLabel"},
                                           ControlRow{"lblAntennaModel(2)", "FrameSystemTwoAnt", "QLabel"},
                                           ControlRow{"lblAntennaBand(2)", "FrameSystemTwoAnt", "QLabel"},
                                           ControlRow{"txtAntennaGain", "FrameAntennaGain", "QLineEdit"},
                                           ControlRow{"vsAntennaGain(0)", "FrameAntennaGain", "QAbstractSlider"},
                                           ControlRow{"vsAntennaGain(1)", "FrameAntennaGain", "QAbstractSlider"},
                                           ControlRow{"optAntenna(0)", "FrameAntennaGain", "QRadioButton"},
                                           ControlRow{"optAntenna(1)", "FrameAntennaGain", "QRadioButton"}),
                         support::RowName());

INSTANTIATE_TEST_SUITE_P(Coax, Control,
                         ::testing::Values(ControlRow{"cboSystemOneCoax(0)", "FrameSystemOneCoax", "QComboBox"},
                                           ControlRow{"cboSystemOneCoax(1)", "FrameSystemOneCoax", "QComboBox"},
                                           ControlRow{"cboSystemTwoCoax(0)", "FrameSystemTwoCoax", "QComboBox"},
                                           ControlRow{"cboSystemTwoCoax(1)", "FrameSystemTwoCoax", "QComboBox"},
                                           ControlRow{"lblCoaxBrand(1)", "FrameSystemOneCoax", "QLabel"},
                                           ControlRow{"lblCoaxType(1)", "FrameSystemOneCoax", "QLabel"},
                                           ControlRow{"lblCoaxSpecs(1)", "FrameSystemOneCoax", "QLabel"},
                                           ControlRow{"lblCoaxSpecs(2)", "FrameSystemOneCoax", "QLabel"},
                                           ControlRow{"lblCoaxBrand(2)", "FrameSystemTwoCoax", "QLabel"},
                                           ControlRow{"lblCoaxType(2)", "FrameSystemTwoCoax", "QLabel"},
                                           ControlRow{"lblCoaxSpecs(3)", "FrameSystemTwoCoax", "QLabel"},
                                           ControlRow{"lblCoaxSpecs(4)", "FrameSystemTwoCoax", "QLabel"},
                                           ControlRow{"txtSystemOneCoaxLength", "FrameSysOneCoax", "QLineEdit"},
                                           ControlRow{"vsSystemOneCoaxLength", "FrameSysOneCoax", "QAbstractSlider"},
                                           ControlRow{"txtSystemOneNumConnectors", "FrameSysOneCoax", "QLineEdit"},
                                           ControlRow{"vsSystemOneNumConnectors", "FrameSysOneCoax", "QAbstractSlider"},
                                           ControlRow{"txtSystemTwoCoaxLength", "FrameSysTwoCoax", "QLineEdit"},
                                           ControlRow{"vsSystemTwoCoaxLength", "FrameSysTwoCoax", "QAbstractSlider"},
                                           ControlRow{"txtSystemTwoNumConnectors", "FrameSysTwoCoax", "QLineEdit"},
                                           ControlRow{"vsSystemTwoNumConnectors", "FrameSysTwoCoax", "QAbstractSlider"},
                                           ControlRow{"lblLength(1)", "FrameSysOneCoax", "QLabel"},
                                           ControlRow{"lblLength(2)", "FrameSysTwoCoax", "QLabel"},
                                           ControlRow{"lblNumCOnnectors(1)", "FrameSysOneCoax", "QLabel"},
                                           ControlRow{"lblNumCOnnectors(2)", "FrameSysTwoCoax", "QLabel"},
                                           ControlRow{"txtCoaxLoss", "FrameCoaxLoss", "QLineEdit"},
                                           ControlRow{"vsCoaxLoss", "FrameCoaxLoss", "QAbstractSlider"},
                                           ControlRow{"optCoaxCable(0)", "FrameCoaxLoss", "QRadioButton"},
                                           ControlRow{"optCoaxCable(1)", "FrameCoaxLoss", "QRadioButton"}),
                         support::RowName());

struct TextRow
{
    const char* name;
    const char* text;
};

class FixedCaption : public WindowTest, public ::testing::WithParamInterface<TextRow>
{
};

TEST_P(FixedCaption, ReadsAsGiven)
{
    Open();

    EXPECT_EQ(Text(GetParam().name), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Captions, FixedCaption,
                         ::testing::Values(TextRow{"lblFrequency(1)", "Transmit Frequency in Mhz"},
                                           TextRow{"lblFrequency(2)", "Transmit Frequency in Mhz"}, //
                                           TextRow{"lblLength(1)", "Coax Length in '"},             //
                                           TextRow{"lblLength(2)", "Coax Length in '"},             //
                                           TextRow{"lblNumCOnnectors(1)", "# of Connectors"},       //
                                           TextRow{"lblNumCOnnectors(2)", "# of Connectors"},       //
                                           TextRow{"txtVSWRSuffix(0)", ":1"},                       //
                                           TextRow{"txtVSWRSuffix(1)", ":1"},                       //
                                           TextRow{"optAntenna(0)", "User Data"},                   //
                                           TextRow{"optAntenna(1)", "Antenna Data"},                //
                                           TextRow{"optCoaxCable(0)", "User Data"},                 //
                                           TextRow{"optCoaxCable(1)", "Coax Data"}),
                         support::RowName());

class SpecTip : public WindowTest, public ::testing::WithParamInterface<TextRow>
{
};

TEST_P(SpecTip, SaysWhatTheFigureIs)
{
    Open();

    EXPECT_EQ(ToolTip(GetParam().name), GetParam().text);
}

constexpr const char* kJacket = "Outside diameter of cable jacket measured in inches.";
constexpr const char* kImpedance = "Impedance / Physical length required / electrical wavelength.";

INSTANTIATE_TEST_SUITE_P(Tips, SpecTip,
                         ::testing::Values(TextRow{"lblCoaxSpecs(1)", kJacket}, TextRow{"lblCoaxSpecs(2)", kImpedance},
                                           TextRow{"lblCoaxSpecs(3)", kJacket}, TextRow{"lblCoaxSpecs(4)", kImpedance}),
                         support::RowName());

TEST_F(WindowTest, TypedFiguresExistForSystemOneOnly)
{
    Open();

    EXPECT_EQ(Window().findChildren<QRadioButton*>().size(), 4);
    EXPECT_TRUE(Find("FrameAntennaGain").isHidden());
    EXPECT_TRUE(Find("FrameCoaxLoss").isHidden());
}

} // namespace
} // namespace quillon::ui
