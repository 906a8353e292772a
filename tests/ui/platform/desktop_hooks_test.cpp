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

} // namespace
} // namespace quillon::ui
