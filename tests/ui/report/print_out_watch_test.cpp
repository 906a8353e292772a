#include "ui/report/print_out_watch.h"

#include "tests/support/row_name.h"
#include "tests/ui/report/fake_printers.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include <string>

namespace quillon::ui {
namespace {

using std::chrono::milliseconds;
using test::FakePrinters;

constexpr JobWatchTimes kShort{milliseconds(1), milliseconds(5), milliseconds(5)};
constexpr JobWatchTimes kEndless{milliseconds(1), milliseconds(1000000), milliseconds(1000000)};

struct WatchRow
{
    std::string name;
    JobPhase phase;
    JobWatchTimes times;
    int settled;
    int failed;
};

class JobWatchRules : public ::testing::TestWithParam<WatchRow>
{
};

TEST_P(JobWatchRules, TellWhatBecomesOfAJob)
{
    const WatchRow& row = GetParam();
    FakePrinters printers;
    printers.news = {row.phase, {1284, QStringLiteral("text"), QStringLiteral("source")}};
    JobWatch watch(printers, row.times);
    const QSignalSpy settled(&watch, &JobWatch::Settled);
    const QSignalSpy failed(&watch, &JobWatch::Failed);
    watch.Start(QStringLiteral("Shack"), 41);
    const auto isDecided = [&] { return settled.count() + failed.count() > 0 || printers.looks >= 20; };
    ASSERT_TRUE(QTest::qWaitFor(isDecided));
    EXPECT_EQ(settled.count(), row.settled);
    EXPECT_EQ(failed.count(), row.failed);
}

INSTANTIATE_TEST_SUITE_P(Rules, JobWatchRules,
                         ::testing::Values(WatchRow{"printed at once", JobPhase::Ended, kEndless, 1, 0},
                                           WatchRow{"failed at once", JobPhase::Failed, kEndless, 0, 1},
                                           WatchRow{"in the printer but a moment", JobPhase::Printing, kEndless, 0, 0},
                                           WatchRow{"in the printer without trouble", JobPhase::Printing, kShort, 1, 0},
                                           WatchRow{"behind others but a moment", JobPhase::Waiting, kEndless, 0, 0},
                                           WatchRow{"behind others for long", JobPhase::Waiting, kShort, 1, 0},
                                           WatchRow{"offline but a moment", JobPhase::Offline, kEndless, 0, 0},
                                           WatchRow{"offline for long", JobPhase::Offline, kShort, 0, 1}),
                         support::RowName());

TEST(JobWatch, TellsOfAFailureAfterItSettled)
{
    FakePrinters printers;
    printers.news.phase = JobPhase::Printing;
    JobWatch watch(printers, kShort);
    QSignalSpy settled(&watch, &JobWatch::Settled);
    const QSignalSpy failed(&watch, &JobWatch::Failed);
    watch.Start(QStringLiteral("Shack"), 41);
    ASSERT_TRUE(settled.wait());
    const int looks = printers.looks;
    ASSERT_TRUE(QTest::qWaitFor([&] { return printers.looks > looks + 5; }));
    EXPECT_EQ(settled.count(), 1);
    printers.news = {JobPhase::Failed, {1288, QStringLiteral("text"), QStringLiteral("source")}};
    ASSERT_TRUE(QTest::qWaitFor([&] { return failed.count() == 1; }));
    EXPECT_EQ(failed.at(0).at(0).value<PrintError>().number, 1288);
}

TEST(JobWatch, LooksNoMoreOnceTheJobIsOver)
{
    for (const JobPhase phase : {JobPhase::Ended, JobPhase::Failed}) {
        FakePrinters printers;
        printers.news.phase = phase;
        JobWatch watch(printers, kShort);
        watch.Start(QStringLiteral("Shack"), 41);
        ASSERT_TRUE(QTest::qWaitFor([&] { return printers.looks > 0; }));
        QTest::qWait(20);
        EXPECT_EQ(printers.looks, 1);
    }
}

TEST(JobWatch, LooksNoMoreOnceItIsStopped)
{
    FakePrinters printers;
    JobWatch watch(printers, kShort);
    watch.Start(QStringLiteral("Shack"), 41);
    watch.Stop();
    QTest::qWait(20);
    EXPECT_EQ(printers.looks, 0);
}

TEST(JobWatch, TellsNothingOfAJobWhenItIsStoppedDuringALook)
{
    FakePrinters printers;
    JobWatch watch(printers, kShort);
    printers.news.phase = JobPhase::Failed;
    printers.duringLook = [&watch] { watch.Stop(); };
    const QSignalSpy failed(&watch, &JobWatch::Failed);
    watch.Start(QStringLiteral("Shack"), 41);
    ASSERT_TRUE(QTest::qWaitFor([&] { return printers.looks > 0; }));
    QTest::qWait(20);
    EXPECT_EQ(failed.count(), 0);
    EXPECT_EQ(printers.looks, 1);
}

} // namespace
} // namespace quillon::ui
