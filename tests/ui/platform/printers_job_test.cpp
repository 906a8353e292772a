#include "ui/platform/printers_job.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::ui {
namespace {

using support::RowName;

PrinterState Printer(ipp_pstate_t state, const QStringList& reasons = {QStringLiteral("none")},
                     const QString& message = {})
{
    return {state, true, reasons, message};
}

struct JobRow
{
    std::string name;
    ipp_jstate_t state;
    bool begun;
    PrinterState printer;
    JobPhase phase;
    int number = 0; ///< 1284 is the protocol's "device error", 1288 its "job aborted"
};

class JobPhases : public ::testing::TestWithParam<JobRow>
{
};

TEST_P(JobPhases, FollowFromTheStatesOfJobAndPrinter)
{
    const JobRow& row = GetParam();
    const JobNews news = JudgeJob({row.state, row.begun, {}}, row.printer, QStringLiteral("CUPS job 7"));
    EXPECT_EQ(news.phase, row.phase);
    EXPECT_EQ(news.trouble.number, row.number);
    EXPECT_EQ(news.trouble.source, row.number == 0 ? QString() : QStringLiteral("CUPS job 7"));
}

const PrinterState kIdle = Printer(IPP_PSTATE_IDLE);
const PrinterState kBusy = Printer(IPP_PSTATE_PROCESSING);
const PrinterState kStopped = Printer(IPP_PSTATE_STOPPED, {QStringLiteral("paused")});

INSTANTIATE_TEST_SUITE_P(
    States, JobPhases,
    ::testing::Values(
        JobRow{"behind another job", IPP_JSTATE_PENDING, false, kBusy, JobPhase::Waiting},
        JobRow{"held until the evening", IPP_JSTATE_HELD, false, kIdle, JobPhase::Waiting},
        JobRow{"behind others on a printer that was stopped", IPP_JSTATE_PENDING, false, kStopped, JobPhase::Failed,
               1284},
        JobRow{"back in the queue of a printer that its failure stopped", IPP_JSTATE_PENDING, true, kStopped,
               JobPhase::Failed, 1284},
        JobRow{"back in the queue to be tried again for ever", IPP_JSTATE_HELD, true, kIdle, JobPhase::Failed, 1284},
        JobRow{"in the printer", IPP_JSTATE_PROCESSING, true, kBusy, JobPhase::Printing},
        JobRow{"in a printer that reports an empty tray", IPP_JSTATE_PROCESSING, true,
               Printer(IPP_PSTATE_PROCESSING, {QStringLiteral("media-empty-error")}), JobPhase::Printing},
        JobRow{"in a printer that is switched off", IPP_JSTATE_PROCESSING, true,
               Printer(IPP_PSTATE_PROCESSING, {QStringLiteral("offline-report")}), JobPhase::Offline, 1284},
        JobRow{"stopped in the printer", IPP_JSTATE_STOPPED, true, kBusy, JobPhase::Failed, 1284},
        JobRow{"given up", IPP_JSTATE_ABORTED, true, kIdle, JobPhase::Failed, 1288},
        JobRow{"cancelled by somebody", IPP_JSTATE_CANCELED, true, kIdle, JobPhase::Ended},
        JobRow{"printed", IPP_JSTATE_COMPLETED, true, kIdle, JobPhase::Ended},
        JobRow{"printed before the printer was stopped", IPP_JSTATE_COMPLETED, true, kStopped, JobPhase::Ended}),
    RowName());

TEST(JobTrouble, TellsTheServicesWordsAndThePrintersReasonsAndMessage)
{
    const JobNews news =
        JudgeJob({IPP_JSTATE_PENDING, true, {QStringLiteral("printer-stopped")}},
                 Printer(IPP_PSTATE_STOPPED, {QStringLiteral("paused")}, QStringLiteral("Paper jam")), QString());
    EXPECT_EQ(news.trouble.text,
              QStringLiteral("server-error-device-error: pending, printer-stopped, paused, Paper jam"));
}

TEST(JobTrouble, LeavesOutReasonsThatSayNothing)
{
    const JobNews news =
        JudgeJob({IPP_JSTATE_ABORTED, true, {QStringLiteral("none")}}, Printer(IPP_PSTATE_IDLE), QString());
    EXPECT_EQ(news.trouble.text, QStringLiteral("server-error-job-canceled: aborted"));
}

} // namespace
} // namespace quillon::ui
