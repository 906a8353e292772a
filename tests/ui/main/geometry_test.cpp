#include "tests/support/application_font.h"
#include "tests/support/row_name.h"
#include "tests/ui/main/window_fixture.h"

#include "ui/widgets/number_box.h"
#include "ui/widgets/titled_frame.h"
#include "ui/widgets/value_label.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace quillon::ui {
namespace {

/// The widest font that a desktop is likely to hand over.
class Geometry : public WindowTest
{
protected:
    Geometry() { QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10)); }

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
        Resize({1024, 570});
    }

    /// Lets fonts, hints and sizes go their way through the event loop until nothing moves any more.
    void Settle()
    {
        for (int round = 0; round < 10; ++round) {
            QApplication::processEvents();
        }
    }

    /// Pixels of the content that the window has no room for.
    QSize Missing()
    {
        const auto* area = Window().findChild<QScrollArea*>();
        return {area->horizontalScrollBar()->maximum(), area->verticalScrollBar()->maximum()};
    }

    void Resize(QSize size)
    {
        Window().resize(size);
        Settle();
    }

private:
    test::ApplicationFont m_font;
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
    Settle();
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

TEST_F(Geometry, StartSizeIsWithinTheScreen)
{
    Open();
    EXPECT_LE(Window().width(), Window().screen()->availableSize().width());
    EXPECT_LE(Window().height(), Window().screen()->availableSize().height());
}

TEST_F(Geometry, NothingScrollsOnItsSmallestScreens)
{
    Open();
    // Below 1280x720 and 1024x600: window frames take some of the height.
    for (const QSize size : {QSize(1280, 690), QSize(1024, 570)}) {
        Resize(size);
        EXPECT_EQ(Missing(), QSize(0, 0)) << size.width();
    }
}

TEST_F(Geometry, ScrollsWhatASmallerScreenHasNoRoomFor)
{
    Open();
    Resize({640, 400});
    EXPECT_GT(Missing().width(), 0);
    EXPECT_GT(Missing().height(), 0);
}

TEST_F(Geometry, MaximisedWindowIsNotTornApart)
{
    Open();
    Resize({3000, 2000});
    EXPECT_LT(Place("FrameDisplay").height(), 900);
    EXPECT_LT(Place("FrameSystemTwoAnt").right() - Place("FrameSystemOneAntenna").left(), 1700);
}

TEST_F(Geometry, LabelsHaveRoomForTheirTexts)
{
    Open();
    Resize({1280, 690});
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
    Resize({1280, 690});
    for (const QLabel* label : Find("FrameDisplay").findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text())) << label->text().toStdString();
        EXPECT_GE(label->height(), label->fontMetrics().height()) << label->text().toStdString();
    }
}

TEST_F(Geometry, TitlesAreShownInFull)
{
    Open();
    Resize({1280, 690});
    for (const TitledFrame* frame : Window().findChildren<TitledFrame*>()) {
        const QString title = frame->title().replace(QStringLiteral("&&"), QStringLiteral("&"));
        EXPECT_TRUE(frame->isHidden() || frame->ShownTitle() == title) << frame->ShownTitle().toStdString();
    }
}

TEST_F(Geometry, DecimalPointsOfAColumnStandOnOneLine)
{
    Open();
    for (const char* system : {"(1)", "(2)"}) {
        const auto pointOf = [&](const std::string& name) {
            return Place(name).left() + Find<ValueLabel>(name).SeparatorX();
        };
        const double first = pointOf(std::string("lblERP") + system);
        for (const std::string name : {"lblVSWRReturnLoss", "lblCoaxDBLoss", "lblCoaxPowerLoss", "lblAntennaGain",
                                       "lblAntennaWGain", "lblSystemGain", "lblFeedPointPower"}) {
            EXPECT_DOUBLE_EQ(pointOf(name + system), first) << name << system;
        }
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

TEST_F(Geometry, LongNamesFitToo)
{
    ChooseLongNames();
    EXPECT_EQ(Missing(), QSize(0, 0));
}

TEST_F(Geometry, NewValueMovesNothing)
{
    Open();
    Resize({1280, 690});
    const QRect one = Place("lblERP(1)");
    const QRect two = Place("lblFeedPointPower(2)");
    const QRect box = Place("txtOutputPower(2)");
    Paste("txtOutputPower(1)", "99999");
    Paste("txtOutputPower(2)", "1.5");
    Settle();
    EXPECT_EQ(Place("lblERP(1)"), one);
    EXPECT_EQ(Place("lblFeedPointPower(2)"), two);
    EXPECT_EQ(Place("txtOutputPower(2)"), box);
}

TEST_F(Geometry, BoxesHaveRoomForTheirDigits)
{
    Open();
    Resize({1280, 690});
    Paste("txtOutputPower(1)", "15000");
    Paste("txtFrequency(1)", "432.100");
    for (const char* name : {"txtOutputPower(1)", "txtFrequency(1)", "txtVSWR(1)", "txtSystemOneCoaxLength"}) {
        const auto& box = Box(name);
        EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(box.text()) + 6) << name;
    }
}

class FontSize : public Geometry, public ::testing::WithParamInterface<int>
{
protected:
    static void ExpectRoom(const QWidget& around)
    {
        for (const QWidget* widget : around.findChildren<QWidget*>()) {
            const bool counts = qobject_cast<const QLabel*>(widget) != nullptr ||
                                qobject_cast<const CatalogueListBox*>(widget) != nullptr ||
                                qobject_cast<const NumberBox*>(widget) != nullptr;
            if (counts && widget->isVisible()) {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << widget->objectName().toStdString();
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->objectName().toStdString();
            }
        }
    }
};

TEST_P(FontSize, LeavesEveryLabelListAndBoxItsRoom)
{
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), GetParam()));
    Open();
    Resize({1280, 690});
    ExpectRoom(Window());
    const auto& suffix = Box("txtVSWRSuffix(0)");
    EXPECT_GE(suffix.width(), suffix.fontMetrics().horizontalAdvance(suffix.text()) + 4);
}

TEST_P(FontSize, LeavesRoomForTheTypedFiguresToo)
{
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), GetParam()));
    Open();
    Find("FrameCoaxLoss").show();
    Find("FrameAntennaGain").show();
    Resize({1280, 690});
    ExpectRoom(Window());
}

TEST_P(FontSize, OfALaterChoiceLeavesTheInputsTheirRoom)
{
    Open();
    Resize({1280, 690});
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), GetParam()));
    Settle();
    for (const char* frame :
         {"FrameXmitPower(1)", "FrameFrequency(1)", "FrameSystemOneCoax", "FrameSysOneCoax", "FrameSystemOneAntenna"}) {
        ExpectRoom(Find(frame));
    }
}

INSTANTIATE_TEST_SUITE_P(Points, FontSize, ::testing::Values(8, 12, 14, 20), ::testing::PrintToStringParamName());

} // namespace
} // namespace quillon::ui
