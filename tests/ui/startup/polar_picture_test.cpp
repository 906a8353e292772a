#include "ui/startup/polar_picture.h"

#include "ui/widgets/looks.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace quillon::ui {
namespace {

class PolarPictureTest : public ::testing::Test
{
protected:
    PolarPictureTest()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        palette.setColor(QPalette::Highlight, Qt::red);
        picture.setPalette(palette);
        picture.resize(200, 200);
    }

    /// Colour at a place, in outer radii of the grid from its middle.
    QColor At(double x, double y)
    {
        const QImage image = picture.grab().toImage();
        return image.pixelColor(qRound(100 + 99 * x), qRound(100 + 99 * y));
    }

    PolarPicture picture{30, nullptr};
};

TEST_F(PolarPictureTest, TheLobeAtTheLeftIsOutlined)
{
    EXPECT_EQ(At(-0.45, 0.15), QColor(Qt::white));
    EXPECT_LT(At(-0.66, 0).lightness(), 60) << "its outline";
}

TEST_F(PolarPictureTest, TheLobeAtTheRightIsFilledAndReachesFarther)
{
    const QColor inside = At(0.75, 0.1);
    EXPECT_EQ(inside.red(), 255);
    EXPECT_LT(inside.green(), 60);
    EXPECT_EQ(At(-0.75, 0.1), QColor(Qt::white));
}

TEST_F(PolarPictureTest, GrowsWithTheFont)
{
    EXPECT_EQ(picture.sizeHint(), QSize(30 * BaseUnit(), 30 * BaseUnit()));
}

} // namespace
} // namespace quillon::ui
