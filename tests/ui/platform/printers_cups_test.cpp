#include "ui/platform/printers_cups.h"

#include "tests/support/private_cups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QFontDatabase>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace quillon::ui {
namespace {

using test::PrivateCups;
using test::PrivateQueue;

const QByteArray kPdf("%PDF-1.4\n%\xE2\xE3\xCF\xD3\nnothing that this service would look into\n");

std::vector<PrivateQueue> Queues()
{
    std::vector<PrivateQueue> queues{
        {.name = "Shack"},
        {.name = "Shack_Letter", .paper = "Letter"},
        {.name = "Shack_Bare", .hasDescription = false},
        {.name = "Broken", .fault = "?fail"},
        {.name = "Broken_Stop", .fault = "?fail", .policy = "stop-printer"},
        {.name = "Broken_Retry", .fault = "?fail", .policy = "retry-job"},
        {.name = "Slow", .fault = "?wait"},
        {.name = "Paused", .stopped = true, .message = "Out for cleaning"},
        {.name = "Closed", .accepting = false, .message = "Closed for today"},
    };
    for (int i = 1; i <= 200; ++i) {
        const std::string digits = std::to_string(1000 + i).substr(1);
        queues.push_back({.name = "Many_" + digits, .hasDescription = false});
    }
    return queues;
}

/// A job on a printer that waits, in a print service that one test may spoil.
struct SlowJob
{
    PrivateCups cups{std::vector<PrivateQueue>{{.name = "Slow", .fault = "?wait"}}};
    CupsPrinters printers{cups.Server()};
    QString printer = QStringLiteral("Slow");
    int job = printers.Submit(printer, {QStringLiteral("Report"), kPdf, printers.LandscapePage(printer)});

    [[nodiscard]] JobNews News() { return printers.LookAt(printer, job); }

    [[nodiscard]] bool Comes(JobPhase phase)
    {
        return QTest::qWaitFor([&] { return News().phase == phase; });
    }
};

/// One print service for all tests of this process.
class CupsPrintersTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { s_cups = std::make_unique<PrivateCups>(Queues()); }

    static void TearDownTestSuite() { s_cups.reset(); }

    /// Error of what is tried; number 0 when there is none.
    template <class Action>
    static PrintError ErrorOf(const Action& action)
    {
        try {
            static_cast<void>(action());
        } catch (const PrintError& error) {
            return error;
        }
        return {};
    }

    PrintJob Job(const QString& printer) { return {QStringLiteral("Report"), kPdf, m_printers.LandscapePage(printer)}; }

    int Print(const QString& printer) { return m_printers.Submit(printer, Job(printer)); }

    bool Comes(const QString& printer, int job, JobPhase phase)
    {
        return QTest::qWaitFor([&] { return m_printers.LookAt(printer, job).phase == phase; }, 20000);
    }

    static PrivateCups& Cups() { return *s_cups; }

    CupsPrinters m_printers{s_cups->Server()};

private:
    static inline std::unique_ptr<PrivateCups> s_cups;
};

TEST_F(CupsPrintersTest, AreNamedInTheServicesOrderByOneRequestHoweverManyThereAre)
{
    const auto before = static_cast<std::ptrdiff_t>(Cups().Requests().size());
    const QStringList names = m_printers.Names();
    std::vector<std::string> requests = Cups().Requests();
    requests.erase(requests.begin(), requests.begin() + before);
    EXPECT_THAT(requests, ::testing::ElementsAre("CUPS-Get-Printers"));
    ASSERT_EQ(names.size(), 209);
    EXPECT_EQ(names.mid(0, 6),
              QStringList({"Broken", "Broken_Retry", "Broken_Stop", "Closed", "Many_001", "Many_002"}));
    EXPECT_EQ(names.mid(203), QStringList({"Many_200", "Paused", "Shack", "Shack_Bare", "Shack_Letter", "Slow"}));
}

TEST_F(CupsPrintersTest, AreNoneWithoutAService)
{
    EXPECT_EQ(CupsPrinters("/no/such/socket").Names(), QStringList());
}

TEST_F(CupsPrintersTest, HaveTheirPaperAndMargins)
{
    // 6.35 mm at three edges and 12.7 mm at the lower one, which stands at a side of the turned page.
    const QPageLayout a4 = m_printers.LandscapePage(QStringLiteral("Shack"));
    EXPECT_EQ(a4.pageSize().id(), QPageSize::A4);
    EXPECT_EQ(a4.margins(QPageLayout::Millimeter), QMarginsF(12.7, 6.35, 12.7, 6.35));
    const QPageLayout letter = m_printers.LandscapePage(QStringLiteral("Shack_Letter"));
    EXPECT_EQ(letter.pageSize().id(), QPageSize::Letter);
    EXPECT_EQ(letter.orientation(), QPageLayout::Landscape);
}

TEST_F(CupsPrintersTest, FontsAreTheScalableOnesOfTheDesktop)
{
    const QStringList names = m_printers.FontNames();
    EXPECT_TRUE(names.contains(QStringLiteral("DejaVu Sans")));
    EXPECT_TRUE(std::all_of(names.begin(), names.end(),
                            [](const QString& name) { return QFontDatabase::isSmoothlyScalable(name); }));
}

TEST_F(CupsPrintersTest, PrintTheDocumentAsItIs)
{
    const int job = Print(QStringLiteral("Shack"));
    QFile caught(Cups().Caught(job));
    ASSERT_TRUE(caught.open(QIODevice::ReadOnly));
    EXPECT_EQ(caught.readAll(), kPdf);
    EXPECT_TRUE(Comes(QStringLiteral("Shack"), job, JobPhase::Ended));
}

TEST_F(CupsPrintersTest, AreToldTheTitleThePaperAndToScaleNothing)
{
    const int job = Print(QStringLiteral("Shack_Letter"));
    static_cast<void>(Cups().Caught(job));
    const std::string ticket = Cups().Ticket(job);
    EXPECT_EQ(ticket.substr(0, 7), "Report\n");
    EXPECT_THAT(ticket, ::testing::HasSubstr("media=na_letter_8.5x11in"));
    EXPECT_THAT(ticket, ::testing::HasSubstr("print-scaling=none"));
}

TEST_F(CupsPrintersTest, HaveTheLocalesPaperWhereTheServiceKnowsNone)
{
    EXPECT_EQ(m_printers.LandscapePage(QStringLiteral("Shack_Bare")).pageSize().id(), QPageSize::A4);
}

TEST_F(CupsPrintersTest, AJobIsPrintingUntilItIsPrinted)
{
    const QString slow = QStringLiteral("Slow");
    const int first = Print(slow);
    EXPECT_TRUE(Comes(slow, first, JobPhase::Printing));
    const int second = Print(slow);
    EXPECT_EQ(m_printers.LookAt(slow, second).phase, JobPhase::Waiting);
    Cups().LetGo();
    EXPECT_TRUE(Comes(slow, second, JobPhase::Ended));
    EXPECT_EQ(m_printers.LookAt(slow, first).phase, JobPhase::Ended);
}

TEST_F(CupsPrintersTest, AJobThatTheServiceKnowsNoMoreHasEnded)
{
    PrivateCups cups(std::vector<PrivateQueue>{{.name = "Shack"}}, "PreserveJobHistory No\n");
    CupsPrinters printers(cups.Server());
    const QString shack = QStringLiteral("Shack");
    const int job = printers.Submit(shack, {QStringLiteral("Report"), kPdf, printers.LandscapePage(shack)});
    EXPECT_FALSE(cups.Caught(job).isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return printers.LookAt(shack, job).phase == JobPhase::Ended; }));
}

TEST_F(CupsPrintersTest, ACancelledJobEndsAndIsNotPrinted)
{
    SlowJob slow;
    ASSERT_TRUE(slow.Comes(JobPhase::Printing));
    slow.printers.Cancel(slow.printer, slow.job);
    EXPECT_TRUE(slow.Comes(JobPhase::Ended));
    EXPECT_FALSE(slow.cups.HasCaught(slow.job));
}

TEST_F(CupsPrintersTest, CancellingWhatHasEndedIsNoError)
{
    const int job = Print(QStringLiteral("Shack"));
    ASSERT_TRUE(Comes(QStringLiteral("Shack"), job, JobPhase::Ended));
    EXPECT_NO_THROW(m_printers.Cancel(QStringLiteral("Shack"), job));
    EXPECT_NO_THROW(CupsPrinters("/no/such/socket").Cancel(QStringLiteral("Shack"), job));
}

TEST_F(CupsPrintersTest, APausedPrinterIsAnErrorThatTellsWhatWasSaidOfIt)
{
    const PrintError error = ErrorOf([&] { return m_printers.LandscapePage(QStringLiteral("Paused")); });
    EXPECT_EQ(error.number, 1284);
    EXPECT_EQ(error.text, QStringLiteral("server-error-device-error: stopped, paused, Out for cleaning"));
    EXPECT_EQ(error.source, QStringLiteral("CUPS printer Paused"));
}

TEST_F(CupsPrintersTest, APrinterThatTakesNoJobsIsAnError)
{
    const PrintError error = ErrorOf([&] { return m_printers.LandscapePage(QStringLiteral("Closed")); });
    EXPECT_EQ(error.number, 1286);
    EXPECT_EQ(error.text, QStringLiteral("server-error-not-accepting-jobs: idle, Closed for today"));
}

TEST_F(CupsPrintersTest, AJobThatIsRefusedIsAnErrorInTheServicesWords)
{
    const PrintJob job = Job(QStringLiteral("Shack"));
    const PrintError error = ErrorOf([&] { return m_printers.Submit(QStringLiteral("Closed"), job); });
    EXPECT_EQ(error.number, 1286);
    EXPECT_EQ(error.text, QStringLiteral("Destination \"Closed\" is not accepting jobs."));
    EXPECT_EQ(error.source, QStringLiteral("CUPS printer Closed"));
}

TEST_F(CupsPrintersTest, AnUnknownPrinterIsAnErrorAndNothingIsPrintedElsewhere)
{
    const PrintJob job = Job(QStringLiteral("Shack"));
    for (const QString& name : {QStringLiteral("Gone"), QString(), QStringLiteral("a/b?c d")}) {
        const PrintError paper = ErrorOf([&] { return m_printers.LandscapePage(name); });
        EXPECT_EQ(paper.number, 1030) << name.toStdString();
        EXPECT_EQ(paper.text, QStringLiteral("The printer or class does not exist."));
        EXPECT_EQ(ErrorOf([&] { return m_printers.Submit(name, job); }).number, 1030) << name.toStdString();
    }
}

TEST_F(CupsPrintersTest, NoServiceIsAnError)
{
    CupsPrinters nobody("/no/such/socket");
    const PrintError error = ErrorOf([&] { return nobody.LandscapePage(QStringLiteral("Shack")); });
    EXPECT_EQ(error.number, 1282);
    EXPECT_FALSE(error.text.isEmpty());
    EXPECT_EQ(error.source, QStringLiteral("CUPS"));
}

TEST_F(CupsPrintersTest, AServiceThatDiesIsAnErrorOfTheJob)
{
    SlowJob slow;
    slow.cups.Die();
    const JobNews news = slow.News();
    EXPECT_EQ(news.phase, JobPhase::Failed);
    EXPECT_EQ(news.trouble.number, 1282);
}

TEST_F(CupsPrintersTest, AServiceThatFallsSilentIsAnErrorSoonAndFreezesNoWindow)
{
    SlowJob slow;
    slow.cups.FallSilent();
    int ticks = 0;
    QTimer ticking;
    ticking.callOnTimeout([&ticks] { ++ticks; });
    ticking.start(50);
    const PrintError error = ErrorOf([&] { return slow.printers.LandscapePage(slow.printer); });
    EXPECT_EQ(error.number, 1282);
    EXPECT_EQ(error.text, QStringLiteral("server-error-service-unavailable"));
    EXPECT_GT(ticks, 10);
}

TEST_F(CupsPrintersTest, APrinterThatIsRemovedIsAnErrorOfItsJobs)
{
    SlowJob slow;
    slow.cups.Remove("Slow");
    const JobNews news = slow.News();
    EXPECT_EQ(news.phase, JobPhase::Failed);
    EXPECT_EQ(news.trouble.number, 1030);
}

TEST_F(CupsPrintersTest, AJobThatAPrinterGivesUpHasFailed)
{
    const QString broken = QStringLiteral("Broken");
    const int job = Print(broken);
    ASSERT_TRUE(Comes(broken, job, JobPhase::Failed));
    const PrintError error = m_printers.LookAt(broken, job).trouble;
    EXPECT_EQ(error.number, 1288);
    EXPECT_TRUE(error.text.startsWith(QStringLiteral("server-error-job-canceled: aborted")));
    EXPECT_EQ(error.source, QStringLiteral("CUPS job %1 of printer Broken").arg(job));
}

TEST_F(CupsPrintersTest, AFailureThatStopsThePrinterIsAFailureOfTheJob)
{
    const QString broken = QStringLiteral("Broken_Stop");
    const int job = Print(broken);
    ASSERT_TRUE(Comes(broken, job, JobPhase::Failed));
    EXPECT_EQ(m_printers.LookAt(broken, job).trouble.number, 1284);
}

TEST_F(CupsPrintersTest, AFailureThatWouldBeTriedAgainForEverIsAFailureOfTheJob)
{
    const QString broken = QStringLiteral("Broken_Retry");
    const int job = Print(broken);
    ASSERT_TRUE(Comes(broken, job, JobPhase::Failed));
    EXPECT_EQ(m_printers.LookAt(broken, job).trouble.number, 1284);
}

} // namespace
} // namespace quillon::ui
