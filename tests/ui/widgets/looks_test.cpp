#include "tests/support/application_font.h"
#include "ui/widgets/looks.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>

namespace quillon::ui {
namespace {

QPalette Light()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(200, 200, 200));
    palette.setColor(QPalette::WindowText, QColor(0, 0, 0));
    palette.setColor(QPalette::Base, QColor(240, 240, 240));
    palette.setColor(QPalette::Highlight, QColor(40, 140, 240));
    return palette;
}

QPalette Dark()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(50, 50, 50));
    palette.setColor(QPalette::WindowText, QColor(250, 250, 250));
    palette.setColor(QPalette::Base, QColor(20, 20, 20));
    palette.setColor(QPalette::Highlight, QColor(120, 220, 20));
    return palette;
}

TEST(Fonts, BaseUnitIsAQuarterOfALine)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPixelSize(80);
    EXPECT_EQ(BaseUnit(), qRound(QFontMetricsF(QApplication::font()).lineSpacing() / 4));
    EXPECT_GT(BaseUnit(), 15);
}

TEST(Fonts, BaseUnitOfATinyFontIsFourPixels)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPixelSize(6);
    EXPECT_EQ(BaseUnit(), 4);
}

TEST(Fonts, FontsScaleInPointsWhereTheDesktopSpeaksPoints)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPointSize(10);
    EXPECT_DOUBLE_EQ(ScaledFont(1.4).pointSizeF(), 14);
    EXPECT_EQ(ScaledFont(1.4, QFont::Bold).weight(), QFont::Bold);
}

TEST(Fonts, FontsScaleInPixelsWhereTheDesktopSpeaksPixels)
{
    const test::ApplicationFont font;
    test::ApplicationFont::SetPixelSize(20);
    EXPECT_EQ(ScaledFont(1.4).pixelSize(), 28);
}

TEST(Fonts, SansSerifIsAskedForByNameBeforeTheDesktopsFont)
{
    const QFont font = SansSerif(ScaledFont(1.4, QFont::Bold));
    EXPECT_EQ(font.families(), QStringList(QStringLiteral("MS Sans Serif")) + QApplication::font().families());
    EXPECT_EQ(font.weight(), QFont::Bold);
    EXPECT_DOUBLE_EQ(font.pointSizeF(), ScaledFont(1.4).pointSizeF());
}

TEST(Colors, DarkIsAWindowDarkerThanItsText)
{
    EXPECT_FALSE(IsDark(Light()));
    EXPECT_TRUE(IsDark(Dark()));
}

TEST(Colors, LightPalette)
{
    EXPECT_EQ(CardColor(Light()), QColor(218, 218, 218));        // 200 + 0.45 * 40
    EXPECT_EQ(HairlineColor(Light()), QColor(164, 164, 164));    // 200 - 0.18 * 200
    EXPECT_EQ(OutlineColor(Light()), QColor(108, 108, 108));     // 0.41 gives 2.7 to 1 only: 200 - 0.46 * 200
    EXPECT_EQ(EmptyMarkerColor(Light()), QColor(108, 108, 108)); // 200 - 0.46 * 200
    EXPECT_EQ(QuietColor(Light()), QColor(60, 60, 60));          // 0 + 0.30 * 200
    EXPECT_EQ(BetterColor(Light()), QColor(214, 227, 240));      // 240 + 0.13 * (40 - 240), (140 - 240), 0
    EXPECT_EQ(FilledMarkerColor(Light()), QColor(32, 112, 192)); // 2.1 to 1; 0.20 of the way to black gives 3.03
    EXPECT_EQ(FocusColor(Light()), FilledMarkerColor(Light()));
}

TEST(Colors, DarkPalette)
{
    EXPECT_EQ(CardColor(Dark()), QColor(57, 57, 57));           // 50 + 0.035 * 200
    EXPECT_EQ(HairlineColor(Dark()), QColor(86, 86, 86));       // 50 + 0.18 * 200
    EXPECT_EQ(OutlineColor(Dark()), QColor(132, 132, 132));     // 50 + 0.41 * 200
    EXPECT_EQ(EmptyMarkerColor(Dark()), QColor(142, 142, 142)); // 50 + 0.46 * 200
    EXPECT_EQ(QuietColor(Dark()), QColor(190, 190, 190));       // 250 - 0.30 * 200
    EXPECT_EQ(BetterColor(Dark()), QColor(33, 46, 20));         // 20 + 0.13 * 100, 20 + 0.13 * 200, 0
    EXPECT_EQ(FilledMarkerColor(Dark()), QColor(120, 220, 20)); // 6.6 to 1 on a card
}

TEST(Colors, ContrastIsThatOfTheGuidelines)
{
    EXPECT_DOUBLE_EQ(Contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(Contrast(Qt::red, Qt::red), 1);
    EXPECT_NEAR(Contrast(Qt::red, Qt::white), 3.998, 0.001); // 1.05 / (0.2126 + 0.05)
    EXPECT_EQ(Contrast(Qt::white, Qt::red), Contrast(Qt::red, Qt::white));
}

TEST(Colors, QuietTextThatIsHardToReadIsLessQuiet)
{
    QPalette palette = Light();
    palette.setColor(QPalette::WindowText, QColor(80, 80, 80)); // 4.9 to 1
    EXPECT_GE(Contrast(QuietColor(palette), QColor(200, 200, 200)), kReadable);
}

/// A palette as it comes out of MakeSelectionReadable.
QPalette Readable(QPalette palette, const QColor& highlight, const QColor& text)
{
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, text);
    MakeSelectionReadable(palette);
    return palette;
}

TEST(Selection, ThatIsReadableStaysAsItIs)
{
    const QPalette palette = Readable(Light(), Qt::darkBlue, Qt::yellow);
    EXPECT_EQ(palette.color(QPalette::Highlight), QColor(Qt::darkBlue));
    EXPECT_EQ(palette.color(QPalette::HighlightedText), QColor(Qt::yellow));
}

TEST(Selection, ThatIsHardToReadGetsDarkerInALightPalette)
{
    const QPalette palette = Readable(Light(), QColor(48, 140, 198), Qt::white);
    // White has 3.7 to 1 on it, 4.4 after 0.10 of the way to black and 4.9 after 0.15.
    EXPECT_EQ(palette.color(QPalette::Highlight), QColor(41, 119, 168));
    EXPECT_EQ(palette.color(QPalette::HighlightedText), QColor(Qt::white));
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Highlight), palette.color(QPalette::Highlight));
}

/// The ground of every other row as it comes out of MakeRowsReadable, under light grey text.
QColor OtherRows(QPalette::ColorGroup group, const QColor& ground)
{
    QPalette palette = Dark();
    palette.setColor(QPalette::Text, QColor(176, 176, 176));
    palette.setColor(QPalette::Base, QColor(20, 20, 20));
    palette.setColor(QPalette::AlternateBase, ground);
    MakeRowsReadable(palette);
    return palette.color(group, QPalette::AlternateBase);
}

TEST(Rows, OfAReadableGroundStayAsTheyAre)
{
    EXPECT_EQ(OtherRows(QPalette::Active, QColor(60, 60, 60)), QColor(60, 60, 60)) << "5.1 to 1";
}

TEST(Rows, ThatAreHardToReadGetAGroundCloserToThatOfTheOthers)
{
    // The text has 3.0 to 1 on it, 4.49 after 0.35 of the way and 4.8 after 0.40.
    EXPECT_EQ(OtherRows(QPalette::Active, QColor(94, 94, 94)), QColor(64, 64, 64));
    EXPECT_EQ(OtherRows(QPalette::Inactive, QColor(94, 94, 94)), QColor(64, 64, 64));
}

TEST(Selection, ThatIsHardToReadGetsDarkTextInADarkPalette)
{
    const QPalette palette = Readable(Dark(), QColor(48, 140, 198), QColor(240, 240, 240));
    EXPECT_EQ(palette.color(QPalette::Highlight), QColor(48, 140, 198)) << "black has 5.7 to 1 on it";
    EXPECT_EQ(palette.color(QPalette::HighlightedText), QColor(Qt::black));
}

TEST(Colors, ALinkThatIsReadableHasThePalettesColour)
{
    QPalette palette = Light();
    palette.setColor(QPalette::Link, QColor(0, 0, 200));
    EXPECT_EQ(LinkColor(palette), QColor(0, 0, 200));
}

TEST(Colors, ALinkThatIsHardToReadMovesTowardsTheText)
{
    QPalette palette = Dark();
    palette.setColor(QPalette::Link, QColor(0, 0, 200));
    // The luminance of 50 is 0.0319, so 4.5 to 1 takes 0.3185; five tenths of the way give 0.2446, six tenths 0.3401.
    EXPECT_EQ(LinkColor(palette), QColor(150, 150, 230));
    palette.setColor(QPalette::Link, QColor(50, 50, 50));
    palette.setColor(QPalette::WindowText, QColor(60, 60, 60));
    EXPECT_EQ(LinkColor(palette), QColor(60, 60, 60)) << "no more than the text has";
}

TEST(Colors, ALinkIsMeasuredAgainstTheGroundThatItStandsOn)
{
    QPalette palette = Dark();
    palette.setColor(QPalette::Link, QColor(0, 0, 200));
    palette.setColor(QPalette::Base, Qt::white);
    EXPECT_EQ(LinkColor(palette, QPalette::Base), QColor(0, 0, 200));
}

TEST(Colors, StayWhenTheWindowLosesTheFocus)
{
    QPalette palette = Light();
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::gray);
    palette.setCurrentColorGroup(QPalette::Inactive);
    EXPECT_EQ(FilledMarkerColor(palette), FilledMarkerColor(Light()));
    EXPECT_EQ(BetterColor(palette), QColor(214, 227, 240));
}

TEST(PlainToolTip, LeavesATextWithoutMarkupAlone)
{
    const QString formula = QStringLiteral("100 - 24.13 = 75.87 & 5 < 6");
    EXPECT_EQ(PlainToolTip(formula), formula);
}

TEST(PlainToolTip, MarkupIsShownAsItStands)
{
    const QString safe = PlainToolTip(QStringLiteral("<b>bold</b>"));
    EXPECT_TRUE(safe.contains(QStringLiteral("&lt;b&gt;bold&lt;/b&gt;")));
    EXPECT_FALSE(safe.contains(QStringLiteral("<b>")));
}

TEST(PlainToolTip, NoTextIsNoToolTip)
{
    EXPECT_TRUE(PlainToolTip(QString()).isEmpty());
}

} // namespace
} // namespace quillon::ui
