#include "tests/app/dialogs_fixture.h"
#include "ui/help/help_topics.h"
#include "ui/table/show_table.h"

namespace quillon {
namespace {

using ui::Command;

struct CommandRow
{
    Command command;
    const char* dialog;
};

TEST_F(DialogsTest, EachCommandOpensItsDialogOwnedByTheWindowAndKeepsIt)
{
    for (const auto& [command, name] :
         {CommandRow{Command::SaveSystem, "SaveSystem"}, CommandRow{Command::LoadSystem, "LoadSystem"},
          CommandRow{Command::PrintReport, "PrintOut"}, CommandRow{Command::PrintSystem, "PrintOut"},
          CommandRow{Command::EditAntennas, "EditAntennas"}, CommandRow{Command::About, "About"}}) {
        const QDialog* first = Give(command);
        ASSERT_NE(first, nullptr) << name;
        EXPECT_EQ(first->objectName().toStdString(), name);
        EXPECT_EQ(first->parentWidget(), Window()) << name;
        EXPECT_EQ(Give(command), first) << name;
        EXPECT_TRUE(ui::FindHelpTopic(name)) << name;
    }
}

TEST_F(DialogsTest, PrintReportBuildsTheReportAnew)
{
    Print(Command::PrintReport);
    EXPECT_EQ(OnPage("lblSystemOne(19)"), "100 Watts");
    SystemOne().XmitPower = 250;
    Print(Command::PrintReport);
    EXPECT_EQ(OnPage("lblSystemOne(19)"), "250 Watts");
}

TEST_F(DialogsTest, PrintSystemLeavesTheReportAsItWasBuiltLastAsGiven)
{
    Print(Command::PrintSystem);
    EXPECT_EQ(OnPage("lblSystemOne(19)"), "");
    Print(Command::PrintReport);
    SystemOne().XmitPower = 250;
    Print(Command::PrintSystem);
    EXPECT_EQ(OnPage("lblSystemOne(19)"), "100 Watts");
}

TEST_F(DialogsTest, NotesAccumulateWhileTheProgramRunsAsGiven)
{
    Print(Command::PrintReport, "A");
    EXPECT_EQ(OnPage("lbNotes"), "Notes: A");
    Print(Command::PrintSystem, "B");
    EXPECT_EQ(OnPage("lbNotes"), "Notes: A B");
}

TEST_F(DialogsTest, EachOpeningOfTheDBTableIsAFreshOne)
{
    const auto scrollDown = [](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), QStringLiteral("ShowTable"));
        EXPECT_EQ(dynamic_cast<ui::ShowTable&>(dialog).TopRow(), 0);
        test::Find<QPushButton>(dialog, QStringLiteral("cmdPageDn")).click();
        EXPECT_EQ(dynamic_cast<ui::ShowTable&>(dialog).TopRow(), 20);
    };
    ASSERT_NE(Give(Command::ShowDBTable, scrollDown), nullptr);
    EXPECT_EQ(Window()->findChild<QDialog*>(QStringLiteral("ShowTable")), nullptr);
    EXPECT_NE(Give(Command::ShowDBTable, scrollDown), nullptr);
}

TEST_F(DialogsTest, CalculatorAndLinksAreStartedOutside)
{
    EXPECT_EQ(StartedBy(Command::Calculator), "calculator");
    EXPECT_EQ(StartedBy(Command::QuillonOnline), "https://quillon.example/");
    EXPECT_EQ(StartedBy(Command::Tarvel), "https://tarvel.example/");
}

TEST_F(DialogsTest, ACommandThatComesWhileADialogIsOpenOpensNothing)
{
    Give(ui::Command::LoadSystem, [this](const QDialog& dialog) {
        // What would open goes away by itself, so that the test ends.
        QTimer::singleShot(0, Window(), [&dialog] {
            if (auto* other = qobject_cast<QDialog*>(QApplication::activeModalWidget()); other != &dialog) {
                other->reject();
            }
        });
        emit Main().CommandGiven(ui::Command::ShowDBTable);
        emit Main().CommandGiven(ui::Command::SaveSystem);
        EXPECT_EQ(SaveDialog(), nullptr);
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    });
}

TEST_F(DialogsTest, ACommandThatComesBeforeAClosedDialogHasReturnedIsCarriedOutThen)
{
    for (const ui::Command command : {ui::Command::EditAntennas, ui::Command::LoadSystem}) {
        QStringList opened;
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, Window(), [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                opened += dialog->objectName();
                dialog->reject();
                if (opened.size() == 1) {
                    emit Main().CommandGiven(command);
                }
            }
        });
        closing.start(0);
        emit Main().CommandGiven(ui::Command::EditAntennas);
        EXPECT_EQ(opened.join(u' ').toStdString(),
                  command == ui::Command::EditAntennas ? "EditAntennas EditAntennas" : "EditAntennas LoadSystem");
    }
}

} // namespace
} // namespace quillon
