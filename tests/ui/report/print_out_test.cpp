#include "tests/support/row_name.h"
#include "tests/support/shown_window.h"
#include "tests/ui/report/print_out_fixture.h"

#include <gmock/gmock.h>

#include <QGroupBox>
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

TEST_F(PrintOutTest, HasItsCaptions)
{
    EXPECT_EQ(test::Find<QGroupBox>(dialog, "FramePrintOptions").title(), "Print Options");
    EXPECT_EQ(test::Find<QLabel>(dialog, "lblprinter").text(), "Select Printer from list below.");
    EXPECT_EQ(test::Find<QLabel>(dialog, "lblFonts").text(), "Select Font from list below.");
    EXPECT_EQ(test::Find<QLabel>(dialog, "Label1").text(), "Enter any notes for this report.");
    EXPECT_EQ(Button("cmdPrint").text(), "&Print");
    EXPECT_EQ(Button("cmdStop").text(), "&Stop");
    EXPECT_EQ(Button("cmdCancel").text(), "&Cancel");
    EXPECT_EQ(Button("cmdFinish").text(), "&Finish");
    EXPECT_EQ(dialog.objectName(), "PrintOut");
}

TEST_F(PrintOutTest, ScreenReadersHearWhatTheListsAreFor)
{
    EXPECT_EQ(test::Find<QLabel>(dialog, "lblprinter").buddy(), &List("cmbPrinter"));
    EXPECT_EQ(test::Find<QLabel>(dialog, "lblFonts").buddy(), &List("cmbFonts"));
    EXPECT_EQ(test::Find<QLabel>(dialog, "Label1").buddy(), &Notes());
}

TEST_F(PrintOutTest, TheListsHoldNothingThatCanBeTyped)
{
    EXPECT_FALSE(List("cmbPrinter").isEditable());
    EXPECT_FALSE(List("cmbFonts").isEditable());
}

TEST_F(PrintOutTest, AsksForPrintersOnlyWhenItOpens)
{
    EXPECT_THAT(printers.calls, IsEmpty());
    EXPECT_FALSE(dialog.Loaded());
    dialog.Prepare();
    EXPECT_THAT(printers.calls, ElementsAre("names"));
    EXPECT_TRUE(dialog.Loaded());
}

TEST_F(PrintOutTest, ListsThePrintersInTheSystemsOrderAndChoosesTheFirst)
{
    dialog.Prepare();
    EXPECT_EQ(List("cmbPrinter").count(), 2);
    EXPECT_EQ(List("cmbPrinter").itemText(0), "Shack");
    EXPECT_EQ(List("cmbPrinter").itemText(1), "Attic");
    EXPECT_EQ(List("cmbPrinter").currentIndex(), 0);
    EXPECT_EQ(dialog.Printer().name, "Shack");
}

TEST_F(PrintOutTest, PrintAndCancelCanBePressedAfterOpening)
{
    dialog.Prepare();
    EXPECT_EQ(Enabled(), "Print Cancel");
}

TEST_F(PrintOutTest, ListsTheFontsAndTakesLucidaConsole)
{
    dialog.Prepare();
    EXPECT_EQ(List("cmbFonts").count(), 3);
    EXPECT_EQ(List("cmbFonts").itemText(0), "Courier");
    EXPECT_EQ(List("cmbFonts").currentText(), "Lucida Console");
    EXPECT_EQ(dialog.Printer().fontName, "Lucida Console");
}

TEST_F(PrintOutTest, WithoutLucidaConsoleNoFontIsSelectedAndThePrintersStays)
{
    printers.fonts = {"Courier", "lucida console", "Lucida Console Bold"};
    dialog.Prepare();
    EXPECT_EQ(List("cmbFonts").count(), 3);
    EXPECT_EQ(List("cmbFonts").currentIndex(), -1);
    EXPECT_EQ(dialog.Printer().fontName, "");
}

TEST_F(PrintOutTest, ChoosingAnotherPrinterMakesItTheCurrentOneAndListsItsFonts)
{
    dialog.Prepare();
    printers.fonts = QStringList{"Times"};
    List("cmbPrinter").setCurrentIndex(1);
    EXPECT_EQ(dialog.Printer().name, "Attic");
    EXPECT_EQ(dialog.Printer().fontName, "");
    EXPECT_EQ(List("cmbFonts").count(), 1);
    EXPECT_EQ(List("cmbFonts").currentIndex(), -1);
}

TEST_F(PrintOutTest, ChoosingAnotherFontChangesNothingAsGiven)
{
    dialog.Prepare();
    List("cmbFonts").setCurrentIndex(2);
    EXPECT_EQ(dialog.Printer().fontName, "Lucida Console");
}

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

TEST_F(PrintOutTest, EveryOpeningStartsFromTheDesignedState)
{
    PrintWith("A");
    printers.names = QStringList{"Cellar"};
    dialog.Prepare();
    EXPECT_EQ(Enabled(), "Print Cancel");
    EXPECT_EQ(Notes().toPlainText(), "");
    EXPECT_EQ(List("cmbPrinter").count(), 1);
    EXPECT_EQ(dialog.Printer().name, "Cellar");
}

TEST_F(PrintOutTest, ShowsItselfUntilItIsClosed)
{
    QTimer::singleShot(0, [this] {
        EXPECT_TRUE(dialog.isModal());
        Button("cmdCancel").click();
    });
    dialog.Open();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_THAT(printers.calls, ElementsAre("names"));
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

TEST_F(PrintOutTest, EnterInTheNotesStartsALineAndPressesNoButton)
{
    dialog.Prepare();
    test::ShowActive(dialog);
    Notes().setFocus();
    test::Type(dialog, "a");
    test::Click(dialog, Qt::Key_Return);
    test::Type(dialog, "b");
    EXPECT_EQ(Notes().toPlainText(), "a\nb");
    EXPECT_THAT(printers.calls, ElementsAre("names"));
}

TEST_F(PrintOutTest, EnterPressesTheButtonWithTheFocusAndNoOther)
{
    dialog.Prepare();
    test::ShowActive(dialog);
    List("cmbFonts").setFocus();
    test::Click(dialog, Qt::Key_Return);
    EXPECT_THAT(printers.calls, ElementsAre("names"));
    Button("cmdPrint").setFocus();
    test::Click(dialog, Qt::Key_Return);
    EXPECT_EQ(printers.jobs.size(), 1U);
}

TEST_F(PrintOutTest, EscCloses)
{
    dialog.Prepare();
    test::ShowActive(dialog);
    test::Click(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(PrintOutTest, TabGoesThroughTheControlsInReadingOrder)
{
    dialog.Prepare();
    printers.news.phase = JobPhase::Ended;
    test::ShowActive(dialog);
    QStringList order;
    for (int i = 0; i < 6; ++i) {
        order << dialog.focusWidget()->objectName();
        test::Click(dialog, Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"cmbPrinter", "cmbFonts", "txtNotes", "cmdPrint", "cmdCancel", "cmbPrinter"}));
}

TEST_F(PrintOutTest, ALongPrinterNameDoesNotWidenTheDialog)
{
    dialog.Prepare();
    const int width = dialog.sizeHint().width();
    printers.names = QStringList{QString(200, 'W')};
    dialog.Prepare();
    EXPECT_EQ(dialog.sizeHint().width(), width);
}

} // namespace
} // namespace quillon::ui
