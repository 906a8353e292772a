#include "tests/support/application_font.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/quiet_label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPixmap>

namespace quillon::ui {
namespace {

bool HasColor(const QImage& image, const QColor& color)
{
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

TEST(QuietLabel, InsistsOnItsWidthUnlessItElides)
{
    QuietLabel label(QuietLabel::Tone::Normal);
    label.setText(QStringLiteral("0.405 in"));
    EXPECT_EQ(label.minimumSizeHint().width(), label.sizeHint().width());
}

TEST(QuietLabel, ElidesAtTheRightAndKeepsItsText)
{
    QuietLabel label(QuietLabel::Tone::Quiet);
    label.SetElides(true);
    label.setText(QStringLiteral("TIMES MICROWAVE"));
    label.resize(label.sizeHint().width() / 2, 20);

    EXPECT_TRUE(label.ShownText().startsWith(QStringLiteral("TI")));
    EXPECT_TRUE(label.ShownText().endsWith(QChar(0x2026)));
    EXPECT_EQ(label.text(), QStringLiteral("TIMES MICROWAVE"));
    EXPECT_LT(label.minimumSizeHint().width(), label.sizeHint().width());
}

TEST(QuietLabel, ElidesInTheMiddleWhereBothEndsTell)
{
    QuietLabel label(QuietLabel::Tone::Normal);
    label.SetElides(true, Qt::ElideMiddle);
    label.setText(QStringLiteral("/home/somebody/quillon/Quillon"));
    label.resize(label.sizeHint().width() / 2, 20);

    EXPECT_TRUE(label.ShownText().startsWith(QStringLiteral("/ho")));
    EXPECT_TRUE(label.ShownText().endsWith(QStringLiteral("lon")));
    EXPECT_TRUE(label.ShownText().contains(QChar(0x2026)));
}

TEST(QuietLabel, AShortTextIsNeverElided)
{
    QuietLabel label(QuietLabel::Tone::Quiet);
    label.SetElides(true);
    label.setText(QStringLiteral("AB"));
    label.resize(label.minimumSizeHint());
    EXPECT_EQ(label.ShownText(), QStringLiteral("AB"));
}

TEST(QuietLabel, KeepsItsHeightWhenEmpty)
{
    QuietLabel label(QuietLabel::Tone::Quiet);
    label.setText(QStringLiteral("BELDEN"));
    const int height = label.sizeHint().height();
    label.setText(QString());
    EXPECT_EQ(label.sizeHint().height(), height);
    EXPECT_EQ(label.minimumSizeHint().height(), height);
}

TEST(QuietLabel, MarkupIsPlainText)
{
    QuietLabel label(QuietLabel::Tone::Quiet);
    label.setText(QStringLiteral("<b>A & B</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.ShownText(), QStringLiteral("<b>A & B</b>"));
}

TEST(QuietLabel, ItsToneFollowsThePalette)
{
    QuietLabel label(QuietLabel::Tone::Quiet, 3.0);
    label.setText(QStringLiteral("HHH"));
    label.resize(label.sizeHint());
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    label.setPalette(dark);
    EXPECT_TRUE(HasColor(label.grab().toImage(), QuietColor(dark)));
}

TEST(QuietLabel, ItsSizeFollowsTheApplicationFont)
{
    const test::ApplicationFont font;
    const QuietLabel label(QuietLabel::Tone::Quiet, 0.5);
    test::ApplicationFont::SetPointSize(40);
    EXPECT_DOUBLE_EQ(label.font().pointSizeF(), 20);
}

} // namespace
} // namespace quillon::ui
