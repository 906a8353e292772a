#include "ui/startup/link_label.h"

#include "tests/support/shown_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>

namespace quillon::ui {
namespace {

class LinkLabelTest : public ::testing::Test
{
protected:
    LinkLabelTest()
    {
        window.resize(300, 100);
        link.setText(QStringLiteral("some & text"));
        link.move(50, 50);
        link.resize(link.sizeHint());
        test::ShowActive(window);
    }

    QWidget window;
    LinkLabel link{&window};
    QSignalSpy clicks{&link, &LinkLabel::Clicked};
};

TEST_F(LinkLabelTest, IsUnderlinedPlainTextUnderAHand)
{
    EXPECT_TRUE(link.font().underline());
    EXPECT_EQ(link.textFormat(), Qt::PlainText);
    EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(LinkLabelTest, FollowsTheFontOfItsWindow)
{
    QFont font = window.font();
    font.setPointSizeF(3 * font.pointSizeF());
    window.setFont(font);
    EXPECT_DOUBLE_EQ(link.font().pointSizeF(), font.pointSizeF());
    EXPECT_TRUE(link.font().underline());
}

TEST_F(LinkLabelTest, OnlyTheLeftButtonClicks)
{
    QTest::mouseClick(&link, Qt::RightButton);
    EXPECT_EQ(clicks.size(), 0);
    QTest::mouseClick(&link, Qt::LeftButton);
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(LinkLabelTest, AButtonLetGoElsewhereDoesNotClick)
{
    QTest::mousePress(&link, Qt::LeftButton);
    QTest::mouseRelease(&link, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));
    EXPECT_EQ(clicks.size(), 0);
}

TEST_F(LinkLabelTest, OtherKeysDoNotClickAndAHeldOneClicksOnce)
{
    link.setFocus();
    test::Click(window, Qt::Key_A);
    EXPECT_EQ(clicks.size(), 0);
    for (const bool isRepeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), isRepeated);
        QApplication::sendEvent(&link, &press);
    }
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(LinkLabelTest, IsALinkToScreenReadersThatTheyCanPress)
{
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&link);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Link);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("some & text"));
    ASSERT_NE(accessible->actionInterface(), nullptr);
    EXPECT_TRUE(accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.size(), 1);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(link.hasFocus());
    EXPECT_EQ(clicks.size(), 1);
}

} // namespace
} // namespace quillon::ui
