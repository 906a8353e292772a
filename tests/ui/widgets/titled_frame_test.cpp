#include "tests/support/application_font.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/titled_frame.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace quillon::ui {
namespace {

const QString kLongTitle = QStringLiteral("Choose Brand && Model of System 1 Antenna");

TEST(TitledFrame, TwoAmpersandsAreOne)
{
    TitledFrame frame(kLongTitle);
    frame.resize(2000, 100);
    EXPECT_EQ(frame.ShownTitle(), QStringLiteral("Choose Brand & Model of System 1 Antenna"));
}

TEST(TitledFrame, EachStepIsNarrowerThanTheOneBefore)
{
    const TitledFrame frame(kLongTitle);
    EXPECT_GT(frame.TitleWidth(0), frame.TitleWidth(1));
    EXPECT_GT(frame.TitleWidth(1), frame.TitleWidth(2));
}

TEST(TitledFrame, ElidesInTheMiddleSoThatTheSystemsNumberStays)
{
    TitledFrame frame(kLongTitle);
    frame.SetStep(2);
    frame.resize(frame.TitleWidth(2) * 3 / 4, 100);
    EXPECT_TRUE(frame.ShownTitle().startsWith(QStringLiteral("Choose Brand")));
    EXPECT_TRUE(frame.ShownTitle().contains(QChar(0x2026)));
    EXPECT_TRUE(frame.ShownTitle().endsWith(QStringLiteral("1 Antenna")));
}

TEST(TitledFrame, InsistsOnTheWidthOfAShortTitleOnly)
{
    const TitledFrame shortOne(QStringLiteral("System 1 Xmit Pwr"));
    const TitledFrame longOne(kLongTitle);
    EXPECT_EQ(shortOne.minimumSizeHint().width(), shortOne.TitleWidth(2));
    EXPECT_LT(longOne.minimumSizeHint().width(), longOne.TitleWidth(2) * 2 / 3);
}

TEST(TitledFrame, DrawsNoBox)
{
    TitledFrame frame(QStringLiteral("X"));
    frame.resize(120, 80);
    const QImage image = frame.grab().toImage();
    const QColor background = image.pixelColor(119, 0);
    for (int y = 0; y < 80; ++y) {
        EXPECT_EQ(image.pixelColor(119, y), background);
    }
    for (int x = 0; x < 120; ++x) {
        EXPECT_EQ(image.pixelColor(x, 79), background);
    }
}

TEST(TitledFrame, ContentsStandFlushWithTheTitle)
{
    TitledFrame frame(QStringLiteral("System 1 VSWR"));
    auto* column = new QVBoxLayout(&frame);
    column->setContentsMargins(0, 0, 0, 0);
    auto* content = new QLabel(QStringLiteral("1.1"), &frame);
    column->addWidget(content);
    frame.resize(200, 100);
    frame.show();
    QApplication::processEvents();
    EXPECT_EQ(content->x(), 0);
    EXPECT_EQ(content->width(), 200);
    EXPECT_GT(content->y(), 0);
}

TEST(TitledFrame, SteppingDownMovesNothing)
{
    TitledFrame frame(kLongTitle);
    const QMargins margins = frame.contentsMargins();
    frame.SetStep(2);
    EXPECT_EQ(frame.contentsMargins(), margins);
}

TEST(TitledFrame, AFrameWithoutTitleKeepsNoRoomForOne)
{
    EXPECT_EQ(TitledFrame(QString()).contentsMargins().top(), 0);
}

TEST(TitledFrame, MayShrinkOnItsOwnBeforeItIsElided)
{
    TitledFrame frame(kLongTitle);
    frame.resize(frame.TitleWidth(0) * 19 / 20, 100);
    ASSERT_TRUE(frame.ShownTitle().contains(QChar(0x2026)));
    frame.SetSmallest(0.8);
    EXPECT_FALSE(frame.ShownTitle().contains(QChar(0x2026)));
}

TEST(TitledFrame, RoomForTheTitleFollowsTheApplicationFont)
{
    const test::ApplicationFont font;
    TitledFrame frame(QStringLiteral("System 1 VSWR"));
    const int top = frame.contentsMargins().top();
    test::ApplicationFont::SetPointSize(30);
    EXPECT_GT(frame.contentsMargins().top(), top);
}

class FitsTitles : public testing::Test
{
protected:
    FitsTitles() { m_shortOne.resize(1000, 50); }

    void Fit(int width)
    {
        m_longOne.resize(width, 50);
        FitTitles({&m_shortOne, &m_longOne});
    }

    TitledFrame m_shortOne{QStringLiteral("System 1 VSWR")};
    TitledFrame m_longOne{kLongTitle};
};

TEST_F(FitsTitles, AllAtTheFirstStepWhenAllFit)
{
    Fit(m_longOne.TitleWidth(0));
    EXPECT_EQ(m_shortOne.Step(), 0);
    EXPECT_EQ(m_longOne.Step(), 0);
}

TEST_F(FitsTitles, AllStepDownTogetherForOneThatDoesNot)
{
    Fit(m_longOne.TitleWidth(0) - 1);
    EXPECT_EQ(m_shortOne.Step(), 1);
    EXPECT_EQ(m_longOne.Step(), 1);
}

TEST_F(FitsTitles, TheLastStepIsTheEnd)
{
    Fit(20);
    EXPECT_EQ(m_shortOne.Step(), 2);
    EXPECT_EQ(m_longOne.Step(), 2);
}

TEST_F(FitsTitles, StepsUpAgainWhenThereIsRoom)
{
    Fit(20);
    Fit(m_longOne.TitleWidth(0));
    EXPECT_EQ(m_longOne.Step(), 0);
}

} // namespace
} // namespace quillon::ui
