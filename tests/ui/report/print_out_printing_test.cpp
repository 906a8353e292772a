#include "tests/support/row_name.h"
#include "tests/support/shown_window.h"
#include "tests/ui/report/print_out_fixture.h"

#include <gmock/gmock.h>

#include <QTest>
#include <QTimer>

namespace quillon::ui {
namespace {

using test::PrintOutTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const PrintError kOffline{1284, QStringLiteral("stopped, paused"), QStringLiteral("CUPS printer Shack")};
const char* const kOfflineText =
    "Error Printing, Error Number 1284 Error Description stopped, paused Error Source CUPS printer Shack";

TEST_F(PrintOutTest, PrintsTheReportOnTheChosenPrinterOnce)
{
    dialog.Prepare();
    List("cmbPrinter").setCurrentIndex(1);
    Button("cmdPrint").click();
    EXPECT_THAT(printers.calls, ElementsAre("names", "page of Attic", "print on Attic"));
    ASSERT_EQ(printers.jobs.size(), 1U);
    EXPECT_TRUE(printers.jobs[0].pdf.startsWith("%PDF"));
    EXPECT_EQ(printers.jobs[0].page.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printers.jobs[0].title, "Antenna System Comparison Report");
    EXPECT_THAT(notifier.Messages(), IsEmpty());
    EXPECT_EQ(Enabled(), "Stop Finish");
}

TEST_F(PrintOutTest, TheFocusMovesToFinishAfterAPrint)
{
    dialog.Prepare();
    test::ShowActive(dialog);
    Button("cmdPrint").click();
    EXPECT_TRUE(Button("cmdFinish").hasFocus());
}

TEST_F(PrintOutTest, NotesPileUpInTheReportOverAllOpeningsAsGiven)
{
    PrintWith("A");
    EXPECT_EQ(NotesOfReport(), "Notes: A");
    PrintWith("B");
    EXPECT_EQ(NotesOfReport(), "Notes: A B");
}

TEST_F(PrintOutTest, NoPrinterFailsOnlyWhenPrintIsPressed)
{
    printers.names.clear();
    printers.pageFault = PrintError{1030, "The printer or class does not exist.", "CUPS"};
    dialog.Prepare();
    EXPECT_EQ(List("cmbPrinter").count(), 0);
    EXPECT_EQ(List("cmbFonts").count(), 0);
    EXPECT_EQ(dialog.Printer().name, "");
    EXPECT_THAT(notifier.Messages(), IsEmpty());
    Button("cmdPrint").click();
    EXPECT_THAT(notifier.Messages(),
                ElementsAre(support::RecordingNotifier::Message{
                    "Error Printing, Error Number 1030 Error Description The printer or class does not exist. Error "
                    "Source CUPS",
                    "Printer Error"}));
}

struct FaultRow
{
    std::string name;
    void (*spoil)(test::FakePrinters&);
    const char* notes; ///< of the report afterwards
};

class PrintFaults : public PrintOutTest, public ::testing::WithParamInterface<FaultRow>
{
};

TEST_P(PrintFaults, AreToldAndTheButtonsStayAsTheyWere)
{
    GetParam().spoil(printers);
    dialog.Prepare();
    dialog.show();
    Notes().setPlainText("A");
    Button("cmdPrint").click();
    EXPECT_THAT(notifier.Messages(), ElementsAre(support::RecordingNotifier::Message{kOfflineText, "Printer Error"}));
    EXPECT_EQ(Enabled(), "Print Stop Cancel Finish");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(NotesOfReport(), GetParam().notes);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, PrintFaults,
    ::testing::Values(FaultRow{"setting up the page, before the notes",
                               [](test::FakePrinters& printers) { printers.pageFault = kOffline; }, "Notes:"},
                      FaultRow{"handing the page over, after the notes",
                               [](test::FakePrinters& printers) { printers.submitFault = kOffline; }, "Notes: A"},
                      FaultRow{"printing, after the notes",
                               [](test::FakePrinters& printers) {
                                   printers.news = {JobPhase::Failed, kOffline};
                               },
                               "Notes: A"},
                      FaultRow{"a printer that stays switched off",
                               [](test::FakePrinters& printers) {
                                   printers.news = {JobPhase::Offline, kOffline};
                               },
                               "Notes: A"}),
    support::RowName());

TEST_F(PrintOutTest, AFailedJobIsCancelledSoThatItDoesNotComeOutLater)
{
    printers.news = {JobPhase::Failed, kOffline};
    PrintWith("A");
    EXPECT_THAT(printers.calls, ElementsAre("names", "page of Shack", "print on Shack", "cancel 41 on Shack"));
}

TEST_F(PrintOutTest, AJobThatIsNotTakenIsNotCancelled)
{
    printers.submitFault = kOffline;
    PrintWith("A");
    EXPECT_THAT(printers.calls, ElementsAre("names", "page of Shack", "print on Shack"));
}

TEST_F(PrintOutTest, AfterAFailureAnotherPrinterCanBeTried)
{
    printers.submitFault = kOffline;
    PrintWith("A");
    printers.submitFault.reset();
    List("cmbPrinter").setCurrentIndex(1);
    Button("cmdPrint").click();
    EXPECT_EQ(printers.jobs.size(), 1U);
    EXPECT_EQ(Enabled(), "Stop Finish");
    EXPECT_EQ(notifier.Messages().size(), 1U);
}

TEST_F(PrintOutTest, AFailureThatShowsLaterIsToldWhileTheDialogIsOpen)
{
    printers.news.phase = JobPhase::Printing;
    PrintWith("A");
    EXPECT_EQ(Enabled(), "Stop Finish");
    printers.news = {JobPhase::Failed, kOffline};
    ASSERT_TRUE(QTest::qWaitFor([this] { return !notifier.Messages().empty(); }));
    EXPECT_THAT(notifier.Messages(), ElementsAre(support::RecordingNotifier::Message{kOfflineText, "Printer Error"}));
    EXPECT_EQ(Enabled(), "Stop Finish");
}

TEST_F(PrintOutTest, NobodyWatchesTheJobOnceTheDialogIsClosed)
{
    printers.news.phase = JobPhase::Printing;
    PrintWith("A");
    dialog.show();
    Button("cmdFinish").click();
    EXPECT_FALSE(dialog.isVisible());
    const int looks = printers.looks;
    QTest::qWait(20);
    EXPECT_EQ(printers.looks, looks);
    EXPECT_EQ(printers.calls.back(), "print on Shack");
}

/// The printer takes its time; something is done meanwhile.
class WhilePrinting : public PrintOutTest
{
protected:
    void PrintAndMeanwhile(const std::function<void()>& action)
    {
        printers.news.phase = JobPhase::Waiting;
        dialog.Prepare();
        dialog.show();
        QTimer meanwhile;
        meanwhile.setSingleShot(true);
        meanwhile.callOnTimeout(action);
        meanwhile.start(3);
        Button("cmdPrint").click();
    }
};

TEST_F(WhilePrinting, StopAndFinishCanBePressedAndNothingIsForbidden)
{
    std::string enabled;
    PrintAndMeanwhile([&] { enabled = Enabled(); });
    EXPECT_EQ(enabled, "Print Stop Cancel Finish");
}

TEST_F(WhilePrinting, StopEndsTheJob)
{
    PrintAndMeanwhile([this] { Button("cmdStop").click(); });
    EXPECT_EQ(printers.calls.back(), "cancel 41 on Shack");
    EXPECT_THAT(notifier.Messages(), IsEmpty());
    EXPECT_EQ(Enabled(), "Stop Finish");
}

TEST_F(WhilePrinting, PrintPressedAgainPrintsNothingMore)
{
    PrintAndMeanwhile([this] { Button("cmdPrint").click(); });
    EXPECT_EQ(printers.jobs.size(), 1U);
    EXPECT_EQ(NotesOfReport(), "Notes: ");
}

TEST_F(WhilePrinting, CancelClosesAndStopsNothing)
{
    PrintAndMeanwhile([this] { Button("cmdCancel").click(); });
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(printers.calls.back(), "print on Shack");
    EXPECT_THAT(notifier.Messages(), IsEmpty());
    EXPECT_EQ(Enabled(), "Print Stop Cancel Finish");
}

TEST_F(WhilePrinting, AnotherChoiceOfPrinterDoesNotMoveTheJob)
{
    PrintAndMeanwhile([this] {
        List("cmbPrinter").setCurrentIndex(1);
        Button("cmdStop").click();
    });
    EXPECT_EQ(printers.calls.back(), "cancel 41 on Shack");
}

TEST_F(PrintOutTest, StopAfterThePrintIsHarmless)
{
    PrintWith("A");
    Button("cmdStop").click();
    EXPECT_THAT(notifier.Messages(), IsEmpty());
    EXPECT_EQ(Enabled(), "Stop Finish");
}

TEST_F(PrintOutTest, StopDoesNotReachForAJobOfAnEarlierOpening)
{
    PrintWith("A");
    printers.pageFault = kOffline;
    PrintWith("B");
    printers.calls.clear();
    Button("cmdStop").click();
    EXPECT_THAT(printers.calls, IsEmpty());
}

} // namespace
} // namespace quillon::ui
