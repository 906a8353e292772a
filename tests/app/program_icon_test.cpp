#include "app/program_icon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(ProgramIcon, IsThereInEverySizeItIsDrawnFor)
{
    std::vector<int> widths;
    for (const QSize& size : ProgramIcon().availableSizes()) {
        EXPECT_EQ(size.width(), size.height());
        widths.push_back(size.width());
    }
    EXPECT_THAT(widths, ::testing::UnorderedElementsAre(16, 24, 32, 48, 64, 128));
}

TEST(ProgramIcon, ShowsSomething)
{
    for (const QSize& size : ProgramIcon().availableSizes()) {
        const QImage image = ProgramIcon().pixmap(size).toImage();
        EXPECT_EQ(image.size(), size);
        EXPECT_EQ(image.pixelColor(image.rect().center()).alpha(), 255) << size.width();
    }
}

} // namespace
} // namespace quillon
