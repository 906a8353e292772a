#include "ui/platform/desktop_hooks.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace quillon::ui {
namespace {

TEST(DesktopHooks, PendingEventsRunBeforeTheCallReturns)
{
    DesktopHooks hooks;
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });

    hooks.LetPendingEventsRun();

    EXPECT_TRUE(ran);
}

TEST(DesktopHooks, ButtonsPressedByTheirAccessKeysAreNotClicked)
{
    DesktopHooks hooks;
    QPushButton button;
    const QSignalSpy clicks(&button, &QPushButton::clicked);
    button.animateClick();
    QTest::qSleep(150); // longer than the animation

    hooks.LetPendingEventsRun();
    EXPECT_TRUE(clicks.isEmpty());

    EXPECT_TRUE(QTest::qWaitFor([&clicks] { return !clicks.isEmpty(); })) << "later it is";
}

/// Counts its repaints.
class Painted : public QWidget
{
public:
    int count = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++count; }
};

TEST(DesktopHooks, AWindowIsRepaintedOnceAfterAllStepsOfASearch)
{
    DesktopHooks hooks;
    Painted window;
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([&window] { return window.count > 0; }));
    QTest::qWait(50);
    window.count = 0;

    window.update();
    for (int step = 0; step < 8; ++step) {
        hooks.LetPendingEventsRun();
    }
    EXPECT_EQ(window.count, 0);

    window.update();
    QTest::qWait(50);
    EXPECT_EQ(window.count, 1);
}

TEST(DesktopHooks, AWindowThatGoesBeforeItsRepaintIsForgotten)
{
    DesktopHooks hooks;
    {
        Painted window;
        window.show();
        ASSERT_TRUE(QTest::qWaitFor([&window] { return window.count > 0; }));
        window.update();
        hooks.LetPendingEventsRun();
    }
    hooks.LetPendingEventsRun();
}

} // namespace
} // namespace quillon::ui
