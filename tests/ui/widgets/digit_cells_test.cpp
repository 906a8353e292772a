#include "ui/widgets/digit_cells.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <string>

namespace quillon::ui {
namespace {

struct SplitRow
{
    std::string name;
    const char* text;
    const char* whole;
    const char* separator;
    const char* fraction;
};

void PrintTo(const SplitRow& row, std::ostream* out)
{
    *out << row.name;
}

class SplitNumberAt : public testing::TestWithParam<SplitRow>
{
};

TEST_P(SplitNumberAt, ItsSeparator)
{
    const NumberParts parts = SplitNumber(QString::fromUtf8(GetParam().text));
    EXPECT_EQ(parts.whole, QString::fromUtf8(GetParam().whole));
    EXPECT_EQ(parts.separator, QString::fromUtf8(GetParam().separator));
    EXPECT_EQ(parts.fraction, QString::fromUtf8(GetParam().fraction));
}

INSTANTIATE_TEST_SUITE_P(Numbers, SplitNumberAt,
                         testing::Values(SplitRow{"point", "24.13", "24", ".", "13"},
                                         SplitRow{"comma", "24,13", "24", ",", "13"},
                                         SplitRow{"minus belongs to the whole part", "-1.26", "-1", ".", "26"},
                                         SplitRow{"no whole part", ".3", "", ".", "3"},
                                         SplitRow{"no fraction", "0", "0", "", ""},
                                         SplitRow{"nothing", "", "", "", ""}));

TEST(DigitCells, EveryDigitTakesTheSameRoom)
{
    const DigitCells cells(QApplication::font());
    EXPECT_DOUBLE_EQ(cells.Width(QStringLiteral("1111")), cells.Width(QStringLiteral("0000")));
    EXPECT_DOUBLE_EQ(cells.Width(QStringLiteral("7")), cells.Cell());
}

TEST(DigitCells, NoDigitIsWiderThanItsCell)
{
    const QFont font = QApplication::font();
    const DigitCells cells(font);
    for (char digit = '0'; digit <= '9'; ++digit) {
        EXPECT_LE(QFontMetricsF(font).horizontalAdvance(QLatin1Char(digit)), cells.Cell());
    }
}

/// Columns of an image that carry ink, from the left.
QPair<int, int> InkedColumns(const QImage& image)
{
    int first = image.width();
    int last = -1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    return {first, last};
}

QPair<int, int> Painted(const QString& text)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    DigitCells(QApplication::font()).Paint(painter, SplitNumber(text), {100, 40});
    painter.end();
    return InkedColumns(image);
}

TEST(DigitCells, TheSeparatorStandsOnItsPlace)
{
    const auto [first, last] = Painted(QStringLiteral("."));
    EXPECT_NEAR((first + last + 1) / 2.0, 100, 1.5);
}

TEST(DigitCells, WholePartEndsLeftAndFractionBeginsRightOfIt)
{
    EXPECT_LE(Painted(QStringLiteral("8")).second, 100);
    EXPECT_GE(Painted(QStringLiteral(".8")).second, 101);
    EXPECT_LT(Painted(QStringLiteral("888.8")).first, Painted(QStringLiteral("88.8")).first);
}

} // namespace
} // namespace quillon::ui
