#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace quillon::ui {
namespace {

/// The widest font that a desktop is likely to hand over.
class Geometry : public WindowTest
{
protected:
    Geometry()
        : m_usual(QApplication::font())
    {
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    }

    ~Geometry() override { QApplication::setFont(m_usual); }

    QRect Place(const std::string& name)
    {
        auto& widget = Find(name);
        return {widget.mapTo(&Window(), QPoint()), widget.size()};
    }

    /// Both systems with the longest names that their fields take.
    void ChooseLongNames()
    {
        const std::string maker = "A MAKER OF TWENTYFIVE LTR";
        folder.Put("Antennas/" + maker + ".DAT", "[A MODEL OF TWENTYFIVE LTR]\nGainType=dBi\nGain20=71\n");
        folder.Put("Coax/" + maker + ".DAT",
                   "[A CABLE OF TWENTYFIVE LTR]\nLoss10=1\nLoss50=2\nSpec1=1.625\nSpec2=52.5\n");
        Open();
        for (const std::string system : {"One", "Two"}) {
            Choose("cboSystem" + system + "Coax(0)", maker);
            Choose("cboSystem" + system + "Coax(1)", "A CABLE OF TWENTYFIVE LTR");
            Choose("cboSystem" + system + "Antenna(0)", maker);
            Choose("cboSystem" + system + "Antenna(1)", "A MODEL OF TWENTYFIVE LTR");
            Choose("cboSystem" + system + "Antenna(2)", "20 Meters");
        }
        Paste("txtOutputPower(2)", "1500");
        QApplication::processEvents();
    }

    /// Pixels of the content that the window has no room for.
    QSize Missing()
    {
        const auto* area = Window().findChild<QScrollArea*>();
        return {area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum()};
    }

private:
    QFont m_usual;
};

struct FramesRow
{
    const char* name; ///< System One's frame
    const char* other;
};

class EqualFrames : public Geometry, public ::testing::WithParamInterface<FramesRow>
{
protected:
    void ExpectOneLine()
    {
        EXPECT_EQ(Place(GetParam().name).top(), Place(GetParam().other).top());
        EXPECT_EQ(Place(GetParam().name).width(), Place(GetParam().other).width());
        EXPECT_LT(Place(GetParam().name).left(), Place(GetParam().other).left());
    }
};

TEST_P(EqualFrames, StandOnOneLine)
{
    Open();
    ExpectOneLine();
}

TEST_P(EqualFrames, StandOnOneLineAlsoWhileTypedFiguresAreShown)
{
    Open();
    Find("FrameCoaxLoss").show();
    Find("FrameAntennaGain").show();
    QApplication::processEvents();
    ExpectOneLine();
}

INSTANTIATE_TEST_SUITE_P(Frames, EqualFrames,
                         ::testing::Values(FramesRow{"FrameXmitPower(1)", "FrameXmitPower(2)"},
                                           FramesRow{"FrameVSWR(1)", "FrameVSWR(2)"},
                                           FramesRow{"FrameFrequency(1)", "FrameFrequency(2)"},
                                           FramesRow{"FrameSystemOneCoax", "FrameSystemTwoCoax"},
                                           FramesRow{"FrameSysOneCoax", "FrameSysTwoCoax"},
                                           FramesRow{"FrameSystemOneAntenna", "FrameSystemTwoAnt"}),
                         support::RowName());

TEST_F(Geometry, StartSizeFitsA1280By720ScreenWithItsWindowFrame)
{
    Open();
    EXPECT_LE(Window().width(), 1280);
    EXPECT_LE(Window().height(), 690);
    EXPECT_EQ(Missing(), QSize(0, 0)) << Window().width() << " x " << Window().height();
}

TEST_F(Geometry, NothingScrollsOn1024By600)
{
    Open();
    Window().resize(1024, 570);
    QApplication::processEvents();
    EXPECT_EQ(Missing(), QSize(0, 0)) << Window().width() << " x " << Window().height();
}

TEST_F(Geometry, LabelsHaveRoomForTheirTexts)
{
    Open();
    for (const QLabel* label : Window().findChildren<QLabel*>()) {
        if (label->isVisible()) {
            EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
            EXPECT_GE(label->height(), label->minimumSizeHint().height()) << label->text().toStdString();
        }
    }
}

TEST_F(Geometry, CaptionsAreNotCut)
{
    Open();
    for (const QLabel* label : Find("FrameDisplay").findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text())) << label->text().toStdString();
        EXPECT_GE(label->height(), label->fontMetrics().height()) << label->text().toStdString();
    }
}

TEST_F(Geometry, FactsNeverGiveWay)
{
    ChooseLongNames();
    for (const char* name : {"lblCoaxSpecs(1)", "lblCoaxSpecs(2)", "lblCoaxSpecs(3)", "lblCoaxSpecs(4)",
                             "lblAntennaBand(1)", "lblAntennaBand(2)"}) {
        const auto& label = Find<QLabel>(name);
        EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text())) << name;
    }
}

TEST_F(Geometry, LongNamesDoNotWidenTheWindow)
{
    ChooseLongNames();
    EXPECT_EQ(Missing(), QSize(0, 0)) << Window().width() << " x " << Window().height();
    EXPECT_LE(Window().width(), 1280);
}

TEST_F(Geometry, NewValueMovesNothing)
{
    Open();
    const QRect one = Place("lblERP(1)");
    const QRect two = Place("lblFeedPointPower(2)");
    const QRect box = Place("txtOutputPower(2)");
    Paste("txtOutputPower(1)", "99999");
    Paste("txtOutputPower(2)", "1.5");
    QApplication::processEvents();
    EXPECT_EQ(Place("lblERP(1)"), one);
    EXPECT_EQ(Place("lblFeedPointPower(2)"), two);
    EXPECT_EQ(Place("txtOutputPower(2)"), box);
}

TEST_F(Geometry, BoxesHaveRoomForTheirDigits)
{
    Open();
    Paste("txtOutputPower(1)", "15000");
    Paste("txtFrequency(1)", "432.100");
    for (const char* name : {"txtOutputPower(1)", "txtFrequency(1)", "txtVSWR(1)", "txtSystemOneCoaxLength"}) {
        const auto& box = Box(name);
        EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(box.text()) + 6) << name;
    }
}

} // namespace
} // namespace quillon::ui
