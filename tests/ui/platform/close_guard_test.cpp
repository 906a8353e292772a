#include "ui/platform/close_guard.h"

#include "tests/support/row_name.h"
#include "tests/support/shown_window.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QWindow>

namespace quillon::ui {
namespace {

/// A way in which a person or the desktop closes a dialog.
struct WayRow
{
    const char* name;
    void (*go)(QDialog& dialog);
};

class CloseGuardWays : public ::testing::TestWithParam<WayRow>
{
protected:
    QDialog dialog;
    QLineEdit box{&dialog};
};

TEST_P(CloseGuardWays, CloseADialogWithoutTheGuard)
{
    test::ShowActive(dialog);
    GetParam().go(dialog);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_P(CloseGuardWays, DoNothingWithIt)
{
    new CloseGuard(dialog);
    test::ShowActive(dialog);
    GetParam().go(dialog);
    EXPECT_TRUE(dialog.isVisible());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Ways, CloseGuardWays, ::testing::Values(
    WayRow{"title bar box or Alt F4", [](QDialog& dialog) { dialog.windowHandle()->close(); }},
    WayRow{"close from the program", [](QDialog& dialog) { dialog.close(); }},
    WayRow{"Esc in the window", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }},
    WayRow{"Esc in a control", [](QDialog& dialog) { test::Click(dialog, Qt::Key_Escape); }}), support::RowName());

// clang-format on

TEST(CloseGuard, AsksForATitleBarWithoutALiveCloseBox)
{
    QDialog dialog;
    new CloseGuard(dialog);
    const Qt::WindowFlags flags = dialog.windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowSystemMenuHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Dialog);
}

TEST(CloseGuard, LeavesTheWindowItsOwnWaysOut)
{
    QDialog dialog;
    new CloseGuard(dialog);
    test::ShowActive(dialog);
    dialog.accept();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(CloseGuard, LetsAllOtherKeysThrough)
{
    QDialog dialog;
    auto* box = new QLineEdit(&dialog);
    new CloseGuard(dialog);
    test::ShowActive(dialog);
    test::Type(dialog, QStringLiteral("5.1"));
    EXPECT_EQ(box->text(), QStringLiteral("5.1"));
}

} // namespace
} // namespace quillon::ui
