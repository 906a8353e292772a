#include "ui/platform/desktop_hooks.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace quillon::ui
