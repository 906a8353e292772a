#include "app/dialogs.h"
#include "store/catalogue.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_hooks.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/report/fake_printers.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace quillon {
namespace {

using ui::Command;

/// The main window with its dialogs, over an empty program folder and printers of the test's own.
class DialogsTest : public ::testing::Test
{
protected:
    DialogsTest()
    {
        m_files.Put("QuillonSystems.dat", "");
        m_window.Load();
        m_window.show();
    }

    /// Gives a command, does something with the dialog that it opens, and closes that.
    /// @return the dialog
    QDialog* Give(
        Command command, const std::function<void(QDialog&)>& work = [](QDialog&) {})
    {
        QDialog* opened = nullptr;
        QTimer::singleShot(0, &m_window, [&] {
            opened = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            work(*opened);
            opened->reject();
        });
        emit m_window.CommandGiven(command);
        return opened;
    }

    void Print(Command command, const QString& notes = {})
    {
        Give(command, [&notes](QDialog& dialog) {
            test::Find<QPlainTextEdit>(dialog, QStringLiteral("txtNotes")).setPlainText(notes);
            test::Find<QPushButton>(dialog, QStringLiteral("cmdPrint")).click();
        });
    }

    /// Text of a label on the page.
    static std::string OnPage(const char* label)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == u"PrintSystemReport") {
                return test::Find<QLabel>(*window, QString::fromUtf8(label)).text().toStdString();
            }
        }
        return "no page";
    }

    engine::SystemData& SystemOne() { return m_systems.Data[engine::SystemId::One]; }

    QWidget* Window() { return &m_window; }

private:
    support::TempFolder m_files;
    store::ProgramFolder m_folder{(m_files / "Quillon").string()};
    engine::AntennaSystems m_systems;
    support::RecordingHooks m_hooks;
    support::RecordingNotifier m_notifier;
    store::Catalogue m_catalogue{m_folder};
    test::FakePrinters m_printers;
    ui::Quillon m_window{{m_systems, m_hooks, m_notifier, m_catalogue}};
    Dialogs m_dialogs{m_window, m_folder, m_notifier, m_printers};
};

struct CommandRow
{
    Command command;
    const char* dialog;
};

TEST_F(DialogsTest, EachCommandOpensItsDialogOwnedByTheWindowAndKeepsIt)
{
    for (const auto& [command, name] :
         {CommandRow{Command::SaveSystem, "SaveSystem"}, CommandRow{Command::LoadSystem, "LoadSystem"},
          CommandRow{Command::PrintReport, "PrintOut"}, CommandRow{Command::PrintSystem, "PrintOut"}}) {
        const QDialog* first = Give(command);
        ASSERT_NE(first, nullptr) << name;
        EXPECT_EQ(first->objectName().toStdString(), name);
        EXPECT_EQ(first->parentWidget(), Window()) << name;
        EXPECT_EQ(Give(command), first) << name;
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

} // namespace
} // namespace quillon
