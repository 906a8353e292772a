#include "ui/startup/splash.h"

#include "tests/support/find_widget.h"
#include "tests/support/shown_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

#include <chrono>

namespace quillon::ui {
namespace {

using namespace std::chrono_literals;

/// Longer than any test takes.
constexpr auto kForever = 10min;

/// A splash window before a main window that counts how often it is asked to show itself.
class SplashWaits : public ::testing::Test
{
protected:
    Splash& Open(std::chrono::milliseconds alone, std::chrono::milliseconds together)
    {
        splash.emplace(
            [this] {
                ++timesShown;
                main.show();
                main.activateWindow();
                whenShown();
            },
            Splash::Waits{alone, together});
        splash->Open();
        return *splash;
    }

    Splash& OpenActive(std::chrono::milliseconds alone, std::chrono::milliseconds together)
    {
        test::ShowActive(Open(alone, together));
        return *splash;
    }

    /// Opens the splash window and waits until the main window stands beside it.
    Splash& OpenWithMainWindow(std::chrono::milliseconds together = kForever)
    {
        Open(0ms, together);
        EXPECT_TRUE(QTest::qWaitFor([this] { return main.isVisible(); }));
        return *splash;
    }

    void ExpectUnloaded()
    {
        EXPECT_FALSE(splash->isVisible());
        EXPECT_TRUE(main.isVisible());
        EXPECT_EQ(timesShown, 1);
    }

    QWidget main;
    int timesShown = 0;
    std::function<void()> whenShown = [] {};
    std::optional<Splash> splash;
};

TEST_F(SplashWaits, StandsAloneAtFirst)
{
    Open(kForever, kForever);
    EXPECT_TRUE(splash->isVisible());
    EXPECT_FALSE(main.isVisible());
}

TEST_F(SplashWaits, TheMainWindowComesAfterTheFirstWaitAndTheSplashGoesAfterTheSecond)
{
    QElapsedTimer clock;
    clock.start();
    Open(60ms, 90ms);
    ASSERT_TRUE(QTest::qWaitFor([this] { return main.isVisible(); }));
    EXPECT_GE(clock.elapsed(), 60);
    EXPECT_TRUE(splash->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !splash->isVisible(); }));
    EXPECT_GE(clock.elapsed(), 150);
    ExpectUnloaded();
}

TEST_F(SplashWaits, EventsRunMeanwhile)
{
    Open(kForever, kForever);
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });
    EXPECT_TRUE(QTest::qWaitFor([&ran] { return ran; }));
    EXPECT_TRUE(splash->isVisible());
}

TEST_F(SplashWaits, AClickOnTheDisclaimerOpensTheMainWindowAtOnce)
{
    Open(kForever, kForever);
    QTest::mouseClick(&test::Find<QLabel>(*splash, QStringLiteral("lblDisclaimer")), Qt::LeftButton);
    ExpectUnloaded();
}

TEST_F(SplashWaits, AClickAnywhereOpensTheMainWindowAtOnce)
{
    for (const QPoint& place : {QPoint(2, 2), QPoint(60, 60)}) {
        timesShown = 0;
        Open(kForever, kForever);
        QTest::mouseClick(splash->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        ExpectUnloaded();
        main.hide();
    }
}

TEST_F(SplashWaits, AKeyOpensTheMainWindowAtOnce)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_A, Qt::Key_F1, Qt::Key_Tab}) {
        timesShown = 0;
        OpenActive(kForever, kForever);
        test::Press(*splash, key);
        ExpectUnloaded();
        main.hide();
    }
}

TEST_F(SplashWaits, AModifierAloneIsNotMeantForIt)
{
    OpenActive(kForever, kForever);
    for (const Qt::Key key :
         {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_Super_R}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&*splash, &press);
    }
    EXPECT_TRUE(splash->isVisible());
    EXPECT_EQ(timesShown, 0);
}

TEST_F(SplashWaits, ClosingItOpensTheMainWindowAtOnce)
{
    Open(kForever, kForever);
    splash->close();
    ExpectUnloaded();
}

TEST_F(SplashWaits, AClickInTheSecondWaitUnloadsItAndShowsNothingTwice)
{
    QTest::mouseClick(&OpenWithMainWindow(), Qt::LeftButton);
    ExpectUnloaded();
}

TEST_F(SplashWaits, AnInputEndsTheWaitingForGood)
{
    Open(20ms, 20ms);
    splash->close();
    bool isLater = false;
    QTimer::singleShot(60ms, Qt::PreciseTimer, &main, [&isLater] { isLater = true; });
    ASSERT_TRUE(QTest::qWaitFor([&isLater] { return isLater; }));
    ExpectUnloaded();
}

TEST_F(SplashWaits, TheMainWindowHasTheKeyboardInTheSecondWait)
{
    OpenWithMainWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
    test::Click(main, Qt::Key_A);
    EXPECT_TRUE(splash->isVisible()) << "the key was the main window's";
}

TEST_F(SplashWaits, ADialogInTheSecondWaitDoesNotStandBehindIt)
{
    OpenWithMainWindow();
    QDialog dialog(&main);
    dialog.setModal(true);
    dialog.show();
    ExpectUnloaded();
}

TEST_F(SplashWaits, AMessageOnTheWayToTheMainWindowDoesNotStandBehindIt)
{
    bool wasHidden = false;
    whenShown = [&] {
        QDialog message;
        QTimer::singleShot(0, &message, [&] {
            wasHidden = !splash->isVisible();
            message.reject();
        });
        message.exec();
    };
    OpenWithMainWindow(0ms);
    EXPECT_TRUE(wasHidden);
    ExpectUnloaded();
}

} // namespace
} // namespace quillon::ui
