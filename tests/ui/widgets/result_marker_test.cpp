#include "ui/widgets/looks.h"
#include "ui/widgets/result_marker.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>
#include <QSignalSpy>

namespace quillon::ui {
namespace {

using engine::SystemId;

/// Sum of how far the pixels of a half differ from the background: more ink, larger sum.
int Ink(const QImage& image, int fromX, int toX)
{
    const QColor background = image.pixelColor(0, 0);
    int ink = 0;
    for (int x = fromX; x < toX; ++x) {
        for (int y = 0; y < image.height(); ++y) {
            ink += std::abs(image.pixelColor(x, y).lightness() - background.lightness());
        }
    }
    return ink;
}

QImage Picture(ResultMarker& marker)
{
    marker.resize(40, 40);
    return marker.grab().toImage();
}

TEST(ResultMarker, StartsEmpty)
{
    const ResultMarker marker(SystemId::One, MarkerSize::Row);
    EXPECT_FALSE(marker.IsFilled());
    EXPECT_EQ(marker.property("filled"), QVariant(false));
}

TEST(ResultMarker, TellsOnceWhenItIsFilled)
{
    ResultMarker marker(SystemId::One, MarkerSize::Row);
    const QSignalSpy told(&marker, &ResultMarker::FilledChanged);
    marker.SetFilled(true);
    marker.SetFilled(true);
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(marker.property("filled"), QVariant(true));
}

TEST(ResultMarker, FilledHasTheHighlightInItsMiddleAndEmptyHasNothing)
{
    ResultMarker marker(SystemId::Two, MarkerSize::Total);
    const QColor background = Picture(marker).pixelColor(0, 0);
    EXPECT_EQ(Picture(marker).pixelColor(20, 20), background);
    marker.SetFilled(true);
    EXPECT_EQ(Picture(marker).pixelColor(20, 20), FilledMarkerColor(marker.palette()));
}

TEST(ResultMarker, PointsOutwardToItsSystem)
{
    ResultMarker left(SystemId::One, MarkerSize::Total);
    ResultMarker right(SystemId::Two, MarkerSize::Total);
    left.SetFilled(true);
    right.SetFilled(true);
    EXPECT_LT(Ink(Picture(left), 0, 20), Ink(Picture(left), 20, 40));
    EXPECT_GT(Ink(Picture(right), 0, 20), Ink(Picture(right), 20, 40));
}

TEST(ResultMarker, TheTotalsMarkerIsLarger)
{
    EXPECT_GT(ResultMarker(SystemId::One, MarkerSize::Total).sizeHint().width(),
              ResultMarker(SystemId::One, MarkerSize::Row).sizeHint().width());
}

} // namespace
} // namespace quillon::ui
