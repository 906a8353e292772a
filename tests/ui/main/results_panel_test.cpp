#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QLabel>

namespace quillon::ui {
namespace {

struct ResultRow
{
    const char* name; ///< caption
    const char* captionName;
    const char* one;
    const char* two;
    int marker;
    const char* start;
    const char* spokenOne;
};

class ResultPanelRow : public WindowTest, public ::testing::WithParamInterface<ResultRow>
{
protected:
    QLabel& Caption()
    {
        for (QLabel* label : Find("FrameDisplay").findChildren<QLabel*>()) {
            if (label->text() == QString::fromLatin1(GetParam().name)) {
                return *label;
            }
        }
        throw std::runtime_error("no such caption");
    }

    std::string Marker(const char* array) const
    {
        return std::string(array) + "(" + std::to_string(GetParam().marker) + ")";
    }

    int MiddleOf(QWidget& widget) { return widget.mapTo(&Find("FrameDisplay"), widget.rect().center()).y(); }

    int LeftOf(QWidget& widget) { return widget.mapTo(&Find("FrameDisplay"), QPoint()).x(); }
};

TEST_P(ResultPanelRow, HasMarkerValueCaptionValueMarkerOnOneLine)
{
    Open();
    const int middle = MiddleOf(Caption());
    int left = 0;
    for (QWidget* widget : {&Find(Marker("shpSystemOne")), &Find(GetParam().one), static_cast<QWidget*>(&Caption()),
                            &Find(GetParam().two), &Find(Marker("shpSystemTwo"))}) {
        EXPECT_NEAR(MiddleOf(*widget), middle, 1) << widget->objectName().toStdString();
        EXPECT_GE(LeftOf(*widget), left) << widget->objectName().toStdString();
        left = LeftOf(*widget) + widget->width();
    }
}

TEST_P(ResultPanelRow, ShowsZeroByItsMaskAndNoMarkerAtStart)
{
    Open();

    EXPECT_EQ(Text(GetParam().one), GetParam().start);
    EXPECT_EQ(Text(GetParam().two), GetParam().start);
    EXPECT_FALSE(IsFilled(Marker("shpSystemOne")));
    EXPECT_FALSE(IsFilled(Marker("shpSystemTwo")));
}

TEST_P(ResultPanelRow, HasACaptionOfItsNameAsGiven)
{
    Open();

    EXPECT_EQ(Text(GetParam().captionName), GetParam().name);
}

TEST_P(ResultPanelRow, HasNoFormulaAtStart)
{
    Open();

    EXPECT_EQ(ToolTip(GetParam().one), "");
    EXPECT_EQ(ToolTip(GetParam().two), "");
}

TEST_P(ResultPanelRow, IsSpokenWithCaptionSystemValueAndUnit)
{
    Open();
    const std::string one = GetParam().spokenOne;
    std::string two = one;
    two.replace(two.find("System 1"), 8, "System 2");

    EXPECT_EQ(AccessibleName(GetParam().one), one);
    EXPECT_EQ(AccessibleName(GetParam().two), two);
}

TEST_P(ResultPanelRow, AsksForTheValueFontByName)
{
    Open();

    EXPECT_EQ(Find(GetParam().one).font().families().first(), QStringLiteral("MS Sans Serif"));
    EXPECT_EQ(Find(GetParam().two).font().families().first(), QStringLiteral("MS Sans Serif"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ResultPanelRow,
    ::testing::Values(ResultRow{"SWR Power Attenuation", "lbVSWRReturnLoss(0)", "lblVSWRReturnLoss(3)",
                                "lblVSWRReturnLoss(4)", 6, "0.00", "SWR Power Attenuation, System 1: 0.00 W"},
                      ResultRow{"SWR Attenuation in dB", "lbVSWRReturnLoss(1)", "lblVSWRReturnLoss(1)",
                                "lblVSWRReturnLoss(2)", 5, "0.0000", "SWR Attenuation in dB, System 1: 0.0000 dB"},
                      ResultRow{"Coax Loss in dB", "lblCoaxLoss", "lblCoaxDBLoss(1)", "lblCoaxDBLoss(2)", 7, "0.00",
                                "Coax Loss in dB, System 1: 0.00 dB"},
                      ResultRow{"Coax Power Loss", "lblCoaxPowerLoss(0)", "lblCoaxPowerLoss(1)", "lblCoaxPowerLoss(2)",
                                8, "0.00", "Coax Power Loss, System 1: 0.00 W"},
                      ResultRow{"Antenna Gain in dBd", "lblAntennaGain(0)", "lblAntennaGain(1)", "lblAntennaGain(2)", 4,
                                "0.00", "Antenna Gain in dBd, System 1: 0.00 dBd"},
                      ResultRow{"Antenna Power Gain", "lblAntennaWGain(0)", "lblAntennaWGain(1)", "lblAntennaWGain(2)",
                                1, "0.00", "Antenna Power Gain, System 1: 0.00 W"},
                      ResultRow{"Antenna System Gain in dB", "lblSystemGain(0)", "lblSystemGain(1)", "lblSystemGain(2)",
                                3, "0", "Antenna System Gain in dB, System 1: 0 dB"},
                      ResultRow{"Antenna Feedpoint Power", "lblFeedPointPower(0)", "lblFeedPointPower(1)",
                                "lblFeedPointPower(2)", 2, "0.00", "Antenna Feedpoint Power, System 1: 0.00 W"},
                      ResultRow{"Antenna System ERP", "lblERP(0)", "lblERP(1)", "lblERP(2)", 0, "0.00",
                                "Antenna System ERP, System 1: 0.00 W"}),
    support::RowName());

TEST_F(WindowTest, PanelHasTwoPlatesEquallyWide)
{
    Open();

    EXPECT_TRUE(Find("FrameDisplay").isAncestorOf(&Find("shpSys1")));
    EXPECT_EQ(Find("shpSys1").width(), Find("shpSys2").width());
}

TEST_F(WindowTest, PanelHasFourEmptyStatusLabelsAndSeparatorLines)
{
    Open();
    for (const char* name : {"lblDebugStatus(0)", "lblDebugStatus(1)", "lblDebugStatus(2)", "lblDebugStatus(3)"}) {
        EXPECT_TRUE(Find("FrameDisplay").isAncestorOf(&Find<QLabel>(name))) << name;
        EXPECT_EQ(Text(name), "") << name;
    }
    EXPECT_TRUE(Find("FrameDisplay").isAncestorOf(&Find("lblSepLine(0)")));
}

} // namespace
} // namespace quillon::ui
