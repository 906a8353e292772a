#include "ui/startup/splash.h"

#include "tests/support/application_font.h"
#include "tests/support/find_widget.h"
#include "tests/support/row_name.h"
#include "ui/startup/polar_picture.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <QScreen>

#include <chrono>

namespace quillon::ui {
namespace {

struct TextRow
{
    const char* name;
    const char* label;
    const char* text;
};

class SplashText : public ::testing::TestWithParam<TextRow>
{
protected:
    Splash splash{[] {}, {}};
};

TEST_P(SplashText, IsPlainAndInTheGivenFont)
{
    const auto& label = test::Find<QLabel>(splash, QString::fromUtf8(GetParam().label));
    EXPECT_EQ(label.text().toStdString(), GetParam().text);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.font().families().first(), QStringLiteral("MS Sans Serif"));
}

INSTANTIATE_TEST_SUITE_P(
    Labels, SplashText,
    ::testing::Values(
        TextRow{"title", "lblTitle", "Quillon"},
        TextRow{"descrepancies is spelled as given", "lblTextOne(0)",
                "The pre-programmed coax cable and antenna data are derived from published specifications and are "
                "believed to be accurate. If descrepancies between known values and pre-programmed data are found "
                "please report them to the author so future versions of this program may include the corrections. "
                "Thanks."},
        TextRow{"purpose", "lblTextOne(1)", "This application is designed for demonstration purposes only."},
        TextRow{"disclaimer", "lblDisclaimer",
                "All manufacturers and products mentioned within this program are Trademarks of or Copyrighted by "
                "their respective owners."},
        TextRow{"copyright", "lblCopyright", "© 2026 Tarvel Software"}),
    support::RowName());

TEST(Splash, WaitsTwoAndAHalfSecondsTwice)
{
    using namespace std::chrono_literals;
    EXPECT_EQ(Splash::Waits().alone, 2500ms);
    EXPECT_EQ(Splash::Waits().together, 2500ms);
}

TEST(Splash, StandsInFrontWithoutAFrameUnderItsName)
{
    const Splash splash([] {}, {});
    EXPECT_EQ(splash.objectName(), QStringLiteral("Splash"));
    EXPECT_EQ(splash.windowTitle(), QStringLiteral("Quillon"));
    EXPECT_TRUE(splash.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_NE(splash.findChild<PolarPicture*>(), nullptr);
}

TEST(Splash, StandsInTheMiddleOfTheScreen)
{
    Splash splash([] {}, {});
    splash.Open();
    const QPoint off = splash.geometry().center() - splash.screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST(Splash, NoTextIsCutWithAnyFontAndItFitsTheScreen)
{
    const test::ApplicationFont font;
    for (const double points : {8.0, 10.0, 14.0, 20.0}) {
        test::ApplicationFont::SetPointSize(points);
        Splash splash([] {}, {});
        splash.Open();
        for (const QLabel* label : splash.findChildren<QLabel*>()) {
            const QRect needed = label->fontMetrics().boundingRect(
                QRect(0, 0, label->width(), 10000), label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
            EXPECT_LE(needed.height(), label->height()) << label->objectName().toStdString() << " at " << points;
            EXPECT_LE(needed.width(), label->width()) << label->objectName().toStdString() << " at " << points;
        }
        EXPECT_LE(splash.width(), splash.screen()->availableSize().width()) << points;
    }
}

TEST(Splash, FollowsAFontThatComesWhenItIsOpen)
{
    const test::ApplicationFont font;
    Splash splash([] {}, {});
    splash.Open();
    const QSize before = splash.size();
    test::ApplicationFont::SetPointSize(16);
    Splash anew([] {}, {});
    const auto& label = test::Find<QLabel>(splash, QStringLiteral("lblDisclaimer"));
    const auto& wanted = test::Find<QLabel>(anew, QStringLiteral("lblDisclaimer"));
    EXPECT_GT(splash.width(), before.width());
    EXPECT_EQ(label.font().pointSizeF(), wanted.font().pointSizeF());
    EXPECT_EQ(label.size(), label.sizeHint());
    const QPoint off = splash.geometry().center() - splash.screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
}

} // namespace
} // namespace quillon::ui
