#pragma once

#include "tests/support/find_widget.h"
#include "tests/support/recording_notifier.h"
#include "tests/ui/report/fake_printers.h"
#include "ui/report/print_out.h"
#include "ui/report/print_system_report.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

#include <string>

namespace quillon::test {

/// The print options with printers of the test's own, and times that are over soon.
class PrintOutTest : public ::testing::Test
{
protected:
    QComboBox& List(const char* name) { return Find<QComboBox>(dialog, QString::fromUtf8(name)); }

    QPushButton& Button(const char* name) { return Find<QPushButton>(dialog, QString::fromUtf8(name)); }

    QPlainTextEdit& Notes() { return Find<QPlainTextEdit>(dialog, QStringLiteral("txtNotes")); }

    QString NotesOfReport() { return Find<QLabel>(report, QStringLiteral("lbNotes")).text(); }

    /// The buttons that can be pressed, in the order of the window: "Print Cancel".
    std::string Enabled()
    {
        std::string enabled;
        for (const char* name : {"Print", "Stop", "Cancel", "Finish"}) {
            if (Button((std::string("cmd") + name).c_str()).isEnabled()) {
                enabled += (enabled.empty() ? "" : " ") + std::string(name);
            }
        }
        return enabled;
    }

    void PrintWith(const QString& notes)
    {
        dialog.Prepare();
        Notes().setPlainText(notes);
        Button("cmdPrint").click();
    }

    engine::AntennaSystems systems;
    support::RecordingNotifier notifier;
    FakePrinters printers;
    ui::PrintSystemReport report{systems, notifier, QLocale::c()};
    ui::PrintOut dialog{report,
                        printers,
                        notifier,
                        nullptr,
                        {std::chrono::milliseconds(1), std::chrono::milliseconds(10), std::chrono::milliseconds(20)}};
};

} // namespace quillon::test
