#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace quillon::ui {
namespace {

TEST(Card, IsFilledInsideAHairlineWithRoundCorners)
{
    Card card(Card::Kind::Card);
    card.resize(60, 40);
    const QImage image = card.grab().toImage();
    EXPECT_EQ(image.pixelColor(30, 20), CardColor(card.palette()));
    EXPECT_EQ(image.pixelColor(30, 0), HairlineColor(card.palette()));
    EXPECT_NE(image.pixelColor(0, 0), HairlineColor(card.palette()));
}

TEST(Card, APlateHasTheBaseColour)
{
    Card plate(Card::Kind::Plate);
    plate.resize(60, 40);
    EXPECT_EQ(plate.grab().toImage().pixelColor(30, 20), plate.palette().color(QPalette::Base));
}

TEST(Card, InsideLeavesTheHairlineAndTheCornersOut)
{
    Card plate(Card::Kind::Plate);
    plate.setGeometry(10, 20, 60, 40);
    EXPECT_TRUE(plate.Inside().contains(QPointF(40, 40)));
    EXPECT_FALSE(plate.Inside().contains(QPointF(40, 20.5)));
    EXPECT_FALSE(plate.Inside().contains(QPointF(11.2, 21.2)));
}

TEST(Hairline, IsOnePixelInTheMiddleOfItsRoom)
{
    Hairline line;
    EXPECT_EQ(line.sizeHint().height(), 1);
    line.resize(20, 9);
    const QImage image = line.grab().toImage();
    EXPECT_EQ(image.pixelColor(10, 4), HairlineColor(line.palette()));
    EXPECT_NE(image.pixelColor(10, 3), HairlineColor(line.palette()));
    EXPECT_NE(image.pixelColor(10, 5), HairlineColor(line.palette()));
}

} // namespace
} // namespace quillon::ui
