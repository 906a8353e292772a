#include "tests/support/application_font.h"
#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/value_label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPixmap>

namespace quillon::ui {
namespace {

using Size = ValueLabel::Size;

/// A label of the usual width with a value in it.
class Value : public testing::Test
{
protected:
    ValueLabel& Show(const QString& text)
    {
        m_label.setText(text);
        m_label.resize(m_label.sizeHint());
        return m_label;
    }

    ValueLabel m_label{Size::Row, QStringLiteral("W")};
};

TEST_F(Value, ANewValueMovesNothingUpToFiveWholeDigits)
{
    const QSize start = Show(QStringLiteral("0")).sizeHint();
    for (const char* text : {"0.00", "0.0100", "-12.15", "12345.67", ".3", ""}) {
        EXPECT_EQ(Show(QString::fromLatin1(text)).sizeHint(), start) << text;
    }
}

TEST_F(Value, AWiderValueAsksForMoreSoThatNoDigitIsCut)
{
    const int start = Show(QStringLiteral("0")).minimumSizeHint().width();
    EXPECT_GT(Show(QStringLiteral("123456789.12")).minimumSizeHint().width(), start);
}

TEST_F(Value, BetterChangesNoSize)
{
    const QSize start = Show(QStringLiteral("12345.67")).sizeHint();
    m_label.SetBetter(true);
    EXPECT_EQ(m_label.sizeHint(), start);
}

TEST_F(Value, TheUnitIsShownWhenThereIsRoom)
{
    EXPECT_TRUE(Show(QStringLiteral("24.13")).ShowsUnit());
}

TEST_F(Value, TheUnitGivesWayInANarrowCell)
{
    Show(QStringLiteral("0.0100"));
    m_label.resize(m_label.minimumSizeHint());
    EXPECT_FALSE(m_label.ShowsUnit());
}

TEST_F(Value, FontIsAskedForByNameAndScaled)
{
    EXPECT_EQ(m_label.font().family(), QStringLiteral("MS Sans Serif"));
    EXPECT_TRUE(m_label.font().families().contains(QApplication::font().family()));
    EXPECT_DOUBLE_EQ(m_label.font().pointSizeF(), QApplication::font().pointSizeF() * 1.1);
}

TEST_F(Value, BetterIsBoldOnATintedCell)
{
    Show(QString());
    EXPECT_FALSE(m_label.font().bold());
    EXPECT_NE(m_label.grab().toImage().pixelColor(3, 3), BetterColor(m_label.palette()));
    m_label.SetBetter(true);
    EXPECT_TRUE(m_label.font().bold());
    EXPECT_EQ(m_label.grab().toImage().pixelColor(3, 3), BetterColor(m_label.palette()));
}

TEST_F(Value, AFormulaIsPlainTextWhateverItHolds)
{
    m_label.SetFormula(QStringLiteral("100 x 0.5 = 50"));
    EXPECT_EQ(m_label.toolTip(), QStringLiteral("100 x 0.5 = 50"));
    m_label.SetFormula(QStringLiteral("<i>100</i>"));
    EXPECT_FALSE(m_label.toolTip().contains(QStringLiteral("<i>")));
}

TEST_F(Value, SizeFollowsTheApplicationFont)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(30);
    EXPECT_DOUBLE_EQ(m_label.font().pointSizeF(), 33);
}

TEST(ValueColumn, SeparatorsStandOnOneXInRowsAndTotalBoldOrNot)
{
    ValueLabel row(Size::Row, QStringLiteral("W"));
    ValueLabel total(Size::Total, QString());
    row.setText(QStringLiteral("0.0100"));
    total.setText(QStringLiteral("1742.69"));
    total.SetBetter(true);
    for (const int width : {120, 150, 240, 400}) {
        row.resize(width, 30);
        total.resize(width, 40);
        EXPECT_DOUBLE_EQ(row.SeparatorX(), total.SeparatorX()) << width;
    }
}

TEST(ValueColumn, TotalAndRowAskForTheSameWidth)
{
    const ValueLabel row(Size::Row, QStringLiteral("W"));
    const ValueLabel total(Size::Total, QString());
    EXPECT_EQ(row.sizeHint().width(), total.sizeHint().width());
    EXPECT_EQ(row.minimumSizeHint().width(), total.minimumSizeHint().width());
    EXPECT_GT(total.sizeHint().height(), row.sizeHint().height());
}

TEST(ValueColumn, AWideValueWidensBothColumnsAlike)
{
    QWidget panel;
    ValueLabel one(Size::Total, QStringLiteral("W"), &panel);
    ValueLabel two(Size::Total, QStringLiteral("W"), &panel);
    two.setText(QStringLiteral("123456789.12"));
    EXPECT_EQ(one.sizeHint().width(), two.sizeHint().width());
    EXPECT_EQ(one.minimumSizeHint().width(), two.minimumSizeHint().width());
}

TEST(Total, StepsDownToTheRowsSizeBeforeItIsCut)
{
    ValueLabel total(Size::Total, QStringLiteral("W"));
    total.setText(QStringLiteral("12345.67"));
    total.resize(total.sizeHint());
    EXPECT_DOUBLE_EQ(total.PaintedFont().pointSizeF(), QApplication::font().pointSizeF() * 1.4);
    total.setText(QStringLiteral("1234567.89"));
    total.resize(total.sizeHint());
    EXPECT_DOUBLE_EQ(total.PaintedFont().pointSizeF(), QApplication::font().pointSizeF() * 1.1);
}

/// First and last columns of a label's picture that carry ink of the text.
QPair<int, int> Inked(ValueLabel& label)
{
    const QImage image = label.grab().toImage();
    const QColor background = image.pixelColor(1, 1);
    int first = image.width();
    int last = -1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) != background) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    return {first, last};
}

TEST(WideValue, NoDigitTouchesTheCellsEdges)
{
    for (const char* text : {"12345.67", "1197222.68", "-1197222.68", "123456789012.34", "12345.6789"}) {
        ValueLabel label(Size::Total, QString());
        label.setText(QString::fromLatin1(text));
        label.SetBetter(true);
        label.resize(label.minimumSizeHint());
        const auto [first, last] = Inked(label);
        EXPECT_GE(first, 1) << text;
        EXPECT_LT(last, label.width() - 1) << text;
    }
}

TEST(TintedCell, KeepsInsideThePlateItLiesOn)
{
    QWidget panel;
    panel.resize(100, 60);
    Card plate(Card::Kind::Plate, &panel);
    plate.setGeometry(0, 0, 100, 60);
    ValueLabel cell(Size::Row, QString(), &panel);
    cell.setGeometry(0, 0, 100, 60);
    cell.SetBetter(true);
    const QImage image = panel.grab().toImage();
    EXPECT_EQ(image.pixelColor(50, 30), BetterColor(panel.palette()));
    EXPECT_EQ(image.pixelColor(50, 0), HairlineColor(panel.palette()));
    EXPECT_EQ(image.pixelColor(0, 30), HairlineColor(panel.palette()));
}

} // namespace
} // namespace quillon::ui
