#pragma once

#include "app/dialogs.h"
#include "store/catalogue.h"
#include "tests/store/failing_calls.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_hooks.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/recording_shell.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/report/fake_printers.h"

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

/// The main window with its dialogs, over an empty program folder and printers of the test's own.
class DialogsTest : public ::testing::Test
{
protected:
    /// @param fill  puts catalogues into the program folder
    explicit DialogsTest(void (*fill)(support::TempFolder&) = [](support::TempFolder&) {})
    {
        m_files.Put("QuillonSystems.dat", "");
        fill(m_files);
        m_window.Load();
        m_window.show();
    }

    /// Gives a command, does something with the dialog that it opens, and closes that.
    /// @return the dialog
    QDialog* Give(
        ui::Command command, const std::function<void(QDialog&)>& work = [](QDialog&) {})
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

    void Print(ui::Command command, const QString& notes = {})
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

    ui::Quillon& Main() { return m_window; }

    /// What a command that opens no dialog starts outside of the program.
    std::string StartedBy(ui::Command command)
    {
        emit m_window.CommandGiven(command);
        return m_shell.Calls().empty() ? "nothing" : m_shell.Calls().back();
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
        emit m_window.CommandGiven(ui::Command::Close);
        QCoreApplication::processEvents();
        return asked;
    }

    [[nodiscard]] const QString& Question() const { return m_question; }

    engine::AntennaSystems& Systems() { return m_systems; }

    QDialog* SaveDialog() { return m_window.findChild<QDialog*>(QStringLiteral("SaveSystem")); }

    support::TempFolder& Files() { return m_files; }

    [[nodiscard]] const support::RecordingNotifier& Notifier() const { return m_notifier; }

    test::FakePrinters& Printers() { return m_printers; }

    /// What all dialogs read and write through.
    store::FailingCalls& Calls() { return m_calls; }

private:
    QString m_question;
    support::TempFolder m_files;
    store::ProgramFolder m_folder{(m_files / "Quillon").string()};
    engine::AntennaSystems m_systems;
    support::RecordingHooks m_hooks;
    support::RecordingNotifier m_notifier;
    store::FailingCalls m_calls;
    std::shared_ptr<store::ProfileStore> m_store = std::make_shared<store::ProfileStore>(m_calls);
    store::Catalogue m_catalogue{m_folder, m_store};
    test::FakePrinters m_printers;
    ui::Quillon m_window{{m_systems, m_hooks, m_notifier, m_catalogue}};
    support::RecordingShell m_shell;
    Dialogs m_dialogs{{m_window, m_folder, m_catalogue, *m_store, m_notifier, m_printers, m_shell}};
};

} // namespace quillon
