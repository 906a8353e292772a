#pragma once

#include "store/read_write.h"
#include "tests/store/failing_calls.h"
#include "tests/support/recording_main_window.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/temp_folder.h"

#include <QString>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

class QDialog;
class QWidget;

namespace quillon::ui {

/// A saved-systems file in a folder of its own, a main window that only records, and messages that are kept.
class SystemsTest : public ::testing::Test
{
protected:
    using Calls = std::vector<std::string>;
    using Message = support::RecordingNotifier::Message;

    /// Writes the saved-systems file.
    void Put(const std::string& bytes) { folder.Put("QuillonSystems.dat", bytes); }

    /// The saved-systems file's bytes.
    std::string Bytes() { return folder.Get("QuillonSystems.dat").value_or("no file"); }

    std::string MissingFileText()
    {
        return "Data file " + (folder / "QuillonSystems.dat").string() + " is missing or corrupt.";
    }

    support::TempFolder folder;
    store::FailingCalls calls;
    store::ProfileStore store{calls};
    support::RecordingNotifier notifier;
    support::RecordingMainWindow window;
    store::ReadWrite readWrite{store::ProgramFolder(folder / "Quillon"), store, notifier};
};

/// Text of a dialog's label, text box or button, in UTF-8.
[[nodiscard]] std::string TextOf(const QDialog& dialog, const char* name);

/// The four lines that a dialog shows of both systems, joined by "|".
[[nodiscard]] std::string LinesOf(const QDialog& dialog, const char* name);

/// Clicks a button with the mouse.
void ClickOn(const QDialog& dialog, const char* name);

/// Runs a step when the next modal window stands.
void WhenModal(const std::function<void(QWidget&)>& step);

} // namespace quillon::ui
