#include "tests/support/application_font.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/number_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QInputMethodEvent>
#include <QPixmap>

namespace quillon::ui {
namespace {

const QString kWhy = QStringLiteral("“12.5abc” is not a number");

QColor AtEdge(NumberBox& box)
{
    const QImage image = box.grab().toImage();
    return image.pixelColor(image.width() / 2, 1);
}

/// Whether the left third of the box, where no text stands, carries ink of a colour.
bool LeftThirdHas(NumberBox& box, const QColor& color)
{
    const QImage image = box.grab().toImage();
    for (int x = 4; x < image.width() / 3; ++x) {
        for (int y = 4; y < image.height() - 4; ++y) {
            if (image.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

TEST(NumberBox, AMarkSaysWhyInToolTipAndDescription)
{
    NumberBox box(5);
    box.Mark(kWhy);
    EXPECT_TRUE(box.IsMarked());
    EXPECT_EQ(box.property("marked"), QVariant(true));
    EXPECT_EQ(box.toolTip(), kWhy);
    EXPECT_EQ(box.accessibleDescription(), kWhy);
}

TEST(NumberBox, MarkupInAMarkIsPlainText)
{
    NumberBox box(5);
    box.Mark(QStringLiteral("“<b>1</b>” is not a number"));
    EXPECT_FALSE(box.toolTip().contains(QStringLiteral("<b>")));
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("“<b>1</b>” is not a number"));
}

TEST(NumberBox, AMarkIsSeenAsOutlineAndTriangle)
{
    NumberBox box(5);
    box.resize(160, 30);
    const QColor text = box.palette().color(QPalette::Text);
    EXPECT_NE(AtEdge(box), text);
    EXPECT_FALSE(LeftThirdHas(box, text));
    box.Mark(kWhy);
    EXPECT_EQ(AtEdge(box), text);
    EXPECT_TRUE(LeftThirdHas(box, text));
}

TEST(NumberBox, ClearingTheMarkTakesEverythingBack)
{
    NumberBox box(5);
    box.resize(160, 30);
    const QImage before = box.grab().toImage();
    box.SetHint(QStringLiteral("Length in feet"));
    box.Mark(kWhy);
    box.ClearMark();
    EXPECT_FALSE(box.IsMarked());
    EXPECT_EQ(box.toolTip(), QStringLiteral("Length in feet"));
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("Length in feet"));
    EXPECT_EQ(box.grab().toImage(), before);
}

TEST(NumberBox, InkStandsOnWhiteInEveryPalette)
{
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    QWidget window;
    window.setPalette(dark);
    NumberBox box(5, &window);
    box.SetInk(QColor(0, 0, 128));
    box.resize(160, 30);
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(box.palette().color(QPalette::Text), QColor(0, 0, 128));
    EXPECT_EQ(box.Ink(), QColor(0, 0, 128));
    EXPECT_EQ(box.grab().toImage().pixelColor(80, 15), QColor(Qt::white));
}

TEST(NumberBox, AWarningIsTriangleAndWords)
{
    NumberBox box(5);
    box.resize(160, 30);
    box.setText(QStringLiteral("1510"));
    box.SetInk(Qt::red, QStringLiteral("over 1500 W"));
    EXPECT_TRUE(LeftThirdHas(box, Qt::red));
    EXPECT_EQ(box.toolTip(), QStringLiteral("over 1500 W"));
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("over 1500 W"));
    box.SetInk(QColor(0, 0, 128));
    EXPECT_FALSE(LeftThirdHas(box, Qt::red));
    EXPECT_TRUE(box.toolTip().isEmpty());
}

TEST(NumberBox, AWarningWithoutRoomIsAnUnderline)
{
    NumberBox box(3);
    box.setText(QStringLiteral("1234567890"));
    box.resize(60, 40);
    box.SetInk(Qt::red, QStringLiteral("over 1500 W"));
    const QImage image = box.grab().toImage();
    int red = 0;
    for (int x = 0; x < 60; ++x) {
        red += image.pixelColor(x, 36) == QColor(Qt::red) ? 1 : 0;
    }
    EXPECT_GT(red, 40);
}

TEST(NumberBox, AMarkSpeaksBeforeAWarning)
{
    NumberBox box(5);
    box.SetInk(Qt::red, QStringLiteral("over 1500 W"));
    box.Mark(kWhy);
    EXPECT_EQ(box.toolTip(), kWhy);
    box.ClearMark();
    EXPECT_EQ(box.toolTip(), QStringLiteral("over 1500 W"));
}

TEST(NumberBox, ReadOnlyHasTheWindowsColour)
{
    NumberBox box(5);
    box.resize(160, 30);
    box.setReadOnly(true);
    EXPECT_EQ(box.grab().toImage().pixelColor(80, 15), box.palette().color(QPalette::Window));
    box.setReadOnly(false);
    EXPECT_EQ(box.grab().toImage().pixelColor(80, 15), box.palette().color(QPalette::Base));
}

TEST(NumberBox, ReadOnlyTakesNoComposedText)
{
    NumberBox box(5);
    box.setText(QStringLiteral("1.1"));
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("9"));
    box.setReadOnly(true);
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), u"1.1");
    box.setReadOnly(false);
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), u"1.19");
}

TEST(NumberBox, SetByArrowsOnlyIsReadOnlyAndLooksLive)
{
    NumberBox box(5);
    box.resize(160, 30);
    box.SetByArrowsOnly();
    EXPECT_TRUE(box.isReadOnly());
    EXPECT_EQ(box.grab().toImage().pixelColor(80, 15), box.palette().color(QPalette::Base));
}

TEST(NumberBox, RoomFollowsTheDigits)
{
    EXPECT_LT(NumberBox(3).sizeHint().width(), NumberBox(7).sizeHint().width());
    EXPECT_EQ(NumberBox(7).minimumSizeHint(), NumberBox(7).sizeHint());
    const QFontMetrics metrics(QApplication::font());
    EXPECT_GE(NumberBox(7).sizeHint().width(), metrics.horizontalAdvance(QStringLiteral("8888888")) + 4);
}

TEST(NumberBox, DialledFiguresAreLargerAndFollowTheApplicationFont)
{
    const test::ApplicationFont font;
    NumberBox box(5);
    box.SetDialled(true);
    EXPECT_DOUBLE_EQ(box.font().pointSizeF(), QApplication::font().pointSizeF() * 1.15);
    EXPECT_EQ(box.font().weight(), QFont::DemiBold);
    test::ApplicationFont::SetPointSize(20);
    EXPECT_DOUBLE_EQ(box.font().pointSizeF(), 23);
}

} // namespace
} // namespace quillon::ui
