#include "app/dialogs.h"
#include "store/catalogue.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_hooks.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/report/fake_printers.h"
#include "ui/table/show_table.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon {
namespace {

using ui::Command;

/// Keeps what would have been started, "calculator" or an address.
class RecordingShell : public ui::Shell
{
public:
    void StartCalculator() override { started.emplace_back("calculator"); }

    void Open(const QUrl& address) override { started.push_back(address.toString().toStdString()); }

    std::vector<std::string> started;
};

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

    /// What a command that opens no dialog starts outside of the program.
    std::string StartedBy(Command command)
    {
        m_shell.started.clear();
        emit m_window.CommandGiven(command);
        return ::testing::PrintToString(m_shell.started);
    }

    /// Both systems as they are once an antenna and a coax are chosen for each.
    void Configure()
    {
        for (const engine::SystemId system : engine::kBothSystems) {
            m_systems.Data[system].UseAntennaList = engine::kTrue;
            m_systems.Data[system].UseCoaxList = engine::kTrue;
        }
        m_systems.Data[engine::SystemId::One].AntennaBrand = "HALO";
    }

    /// Gives the closing command and answers the question that follows.
    /// @return whether there was a question
    bool CloseAndAnswer(QMessageBox::StandardButton answer)
    {
        bool asked = false;
        QTimer::singleShot(0, &m_window, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked = true;
                m_question = box->windowTitle() + u'|' + box->text();
                box->button(answer)->click();
            }
        });
        emit m_window.CommandGiven(Command::Close);
        QCoreApplication::processEvents();
        return asked;
    }

    [[nodiscard]] const QString& Question() const { return m_question; }

    engine::AntennaSystems& Systems() { return m_systems; }

    QDialog* SaveDialog() { return m_window.findChild<QDialog*>(QStringLiteral("SaveSystem")); }

private:
    QString m_question;
    support::TempFolder m_files;
    store::ProgramFolder m_folder{(m_files / "Quillon").string()};
    engine::AntennaSystems m_systems;
    support::RecordingHooks m_hooks;
    support::RecordingNotifier m_notifier;
    std::shared_ptr<store::ProfileStore> m_store = std::make_shared<store::ProfileStore>();
    store::Catalogue m_catalogue{m_folder, m_store};
    test::FakePrinters m_printers;
    ui::Quillon m_window{{m_systems, m_hooks, m_notifier, m_catalogue}};
    RecordingShell m_shell;
    Dialogs m_dialogs{{m_window, m_folder, *m_store, m_notifier, m_printers, m_shell}};
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
    EXPECT_EQ(StartedBy(Command::Calculator), R"({ "calculator" })");
    EXPECT_EQ(StartedBy(Command::QuillonOnline), R"({ "https://quillon.example/" })");
    EXPECT_EQ(StartedBy(Command::Tarvel), R"({ "https://tarvel.example/" })");
}

TEST_F(DialogsTest, ClosingAsksWhetherToSaveAConfiguredPair)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Cancel));
    EXPECT_EQ(Question().toStdString(),
              "Save Configured System?|A system has been configured. Do you want to save it?");
    EXPECT_TRUE(Window()->isVisible());
    EXPECT_EQ(SaveDialog(), nullptr);
}

TEST_F(DialogsTest, ClosingWithoutSavingUnloadsTheWindow)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::No));
    EXPECT_FALSE(Window()->isVisible());
}

TEST_F(DialogsTest, ClosingWithYesShowsTheSaveDialogBesideTheWindow)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    EXPECT_TRUE(Window()->isVisible());
    ASSERT_NE(SaveDialog(), nullptr);
    EXPECT_TRUE(SaveDialog()->isVisible());
    EXPECT_FALSE(SaveDialog()->isModal());
    EXPECT_EQ(SaveDialog()->parentWidget(), Window());
}

TEST_F(DialogsTest, SaveDialogBesideTheWindowIsModalOnceItIsAskedFor)
{
    Configure();
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    EXPECT_EQ(Give(Command::SaveSystem, [](const QDialog& dialog) { EXPECT_TRUE(dialog.isModal()); }), SaveDialog());
    ASSERT_TRUE(CloseAndAnswer(QMessageBox::Yes));
    EXPECT_FALSE(SaveDialog()->isModal());
}

TEST_F(DialogsTest, ClosingAsksNothingWhileThePairStandsInTheFile)
{
    Configure();
    Systems().State[engine::SystemId::One].SetFlag(engine::kSavedFlag, engine::kTrue);
    EXPECT_FALSE(CloseAndAnswer(QMessageBox::Cancel));
    EXPECT_FALSE(Window()->isVisible());
}

TEST_F(DialogsTest, ClosingHeedsTheSavedFlagOfSystemOneAloneAsGiven)
{
    Configure();
    Systems().State[engine::SystemId::Two].SetFlag(engine::kSavedFlag, engine::kTrue);
    EXPECT_TRUE(CloseAndAnswer(QMessageBox::Cancel));
}

TEST_F(DialogsTest, ClosingAsksNothingWhileASystemLacksItsAntennaOrCoax)
{
    for (const engine::SystemId system : engine::kBothSystems) {
        for (engine::Boolean engine::SystemData::*use :
             {&engine::SystemData::UseAntennaList, &engine::SystemData::UseCoaxList}) {
            Configure();
            Window()->show();
            Systems().Data[system].*use = engine::kFalse;
            EXPECT_FALSE(CloseAndAnswer(QMessageBox::Cancel));
            EXPECT_FALSE(Window()->isVisible());
        }
    }
}

TEST_F(DialogsTest, CloseBoxAsksNothing)
{
    Configure();
    EXPECT_TRUE(Window()->close());
    EXPECT_FALSE(Window()->isVisible());
}

} // namespace
} // namespace quillon
