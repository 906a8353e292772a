#include "app/program.h"

#include "tests/support/temp_folder.h"
#include "ui/startup/splash.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <optional>

namespace quillon {
namespace {

using namespace std::chrono_literals;

/// Longer than any test takes.
constexpr auto kForever = 10min;

/// The program as main starts it, over a program folder of its own.
class ProgramTest : public ::testing::Test
{
protected:
    ProgramTest()
    {
        m_files.Put("Antennas/HALO.DAT", "[ONE]\nGAIN20=5\n");
        m_files.Put("QuillonSystems.dat", "");
        QApplication::setQuitOnLastWindowClosed(false);
    }

    ~ProgramTest() override { QApplication::setQuitOnLastWindowClosed(true); }

    void Start(std::chrono::milliseconds alone, std::chrono::milliseconds together = kForever)
    {
        splash.emplace([this] { program.emplace(m_folder).Show(); }, ui::Splash::Waits{alone, together});
        splash->Open();
    }

    /// Lets the program run to its end. @return its exit code, 1 when it does not end by itself.
    int Run()
    {
        const QTimer patience;
        QTimer::singleShot(20s, &patience, [] { QApplication::exit(1); });
        return QApplication::exec();
    }

    std::optional<Program> program;
    std::optional<ui::Splash> splash;

    support::TempFolder m_files;

private:
    store::ProgramFolder m_folder{(m_files / "Quillon").string()};
};

TEST_F(ProgramTest, TheMainWindowIsMadeOnlyAfterTheSplash)
{
    Start(kForever);
    QTest::qWait(0);
    EXPECT_TRUE(splash->isVisible());
    EXPECT_FALSE(program);
}

TEST_F(ProgramTest, TheMainWindowComesLoadedAndTakesTheKeyboardBesideTheSplash)
{
    Start(0ms);
    ASSERT_TRUE(QTest::qWaitFor([this] { return program && program->Window().isVisible(); }));
    EXPECT_TRUE(program->Window().FormLoaded());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&program->Window()));
    EXPECT_TRUE(splash->isVisible());
}

TEST_F(ProgramTest, ItTakesAwayWhatAKilledRunLeft)
{
    m_files.Put(".QuillonSystems.dat.tmp", "half a te");
    m_files.Put("Antennas/.HALO.DAT.tmp", "half a te");
    Start(0ms);
    ASSERT_TRUE(QTest::qWaitFor([this] { return program && program->Window().isVisible(); }));
    EXPECT_EQ(m_files.Get(".QuillonSystems.dat.tmp"), std::nullopt);
    EXPECT_EQ(m_files.Get("Antennas/.HALO.DAT.tmp"), std::nullopt);
}

TEST_F(ProgramTest, ItGoesOnWhenTheSplashGoesLast)
{
    Start(0ms, 0ms);
    ASSERT_TRUE(QTest::qWaitFor([this] { return program && !splash->isVisible(); }));
    QTimer::singleShot(50ms, &program->Window(), &QWidget::close);
    EXPECT_EQ(Run(), 0);
}

TEST_F(ProgramTest, ClosingTheMainWindowInTheSecondWaitEndsIt)
{
    Start(0ms);
    ASSERT_TRUE(QTest::qWaitFor([this] { return program && program->Window().isVisible(); }));
    program->Window().close();
    EXPECT_TRUE(splash->isVisible()) << "until the program's objects go";
    EXPECT_EQ(Run(), 0);
}

TEST_F(ProgramTest, ClosingTheMainWindowEndsItWhateverStandsOpenBeside)
{
    Start(kForever);
    splash->close();
    ASSERT_TRUE(program);

    class Stubborn : public QDialog
    {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    } beside;

    beside.show();
    QTimer::singleShot(0, &program->Window(), &QWidget::close);
    EXPECT_EQ(Run(), 0);
}

TEST_F(ProgramTest, ClosingADialogDoesNotEndIt)
{
    Start(kForever);
    splash->close();
    ASSERT_TRUE(program);
    program->Window().hide();
    QDialog dialog;
    dialog.show();
    QTimer::singleShot(0, &dialog, &QWidget::close);
    QTimer::singleShot(50ms, &dialog, [] { QApplication::exit(3); });
    EXPECT_EQ(Run(), 3);
}

} // namespace
} // namespace quillon
