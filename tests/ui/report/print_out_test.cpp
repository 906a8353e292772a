#include "tests/support/shown_window.h"
#include "tests/ui/report/print_out_fixture.h"

#include <gmock/gmock.h>

#include <QGroupBox>
#include <QTimer>

namespace quillon::ui {
namespace {

using test::PrintOutTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
