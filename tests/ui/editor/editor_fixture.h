#pragma once

#include "store/catalogue.h"
#include "tests/store/failing_calls.h"
#include "tests/support/find_widget.h"
#include "tests/support/recording_main_window.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/shown_window.h"
#include "tests/support/temp_folder.h"
#include "ui/editor/edit_antennas.h"
#include "ui/widgets/catalogue_list_box.h"

#include <QAbstractButton>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon::ui {

/// A question that the dialog has asked.
struct Question
{
    std::string text;
    std::string title;
    bool isCancelDefault;

    [[nodiscard]] bool operator==(const Question&) const = default;
};

/// The editor over a program folder of its own, on the 7th of March 2026, with a main window that only records.
class EditorTest : public ::testing::Test
{
protected:
    using Calls = std::vector<std::string>;
    using Messages = std::vector<support::RecordingNotifier::Message>;
    using Questions = std::vector<Question>;

    EditorTest();

    /// Prepares and shows the dialog.
    void Open();

    template <class T = QWidget>
    T& Find(const std::string& name)
    {
        return test::Find<T>(dialog, QString::fromStdString(name));
    }

    QLineEdit& Box(const std::string& name) { return Find<QLineEdit>(name); }

    CatalogueListBox& List(const std::string& name) { return Find<CatalogueListBox>(name); }

    /// Text of a label, box, list or button, in UTF-8.
    std::string Text(const std::string& name);
    /// Entries of a list joined by "|".
    std::string Entries(const std::string& list);
    /// The 14 gain boxes joined by "|".
    std::string Gains();
    /// The 14 band boxes, "x" for a checked one, and behind them the number of the chosen gain type.
    std::string Bands();
    /// The three values of the index joined by "|".
    std::string FileInfo();
    std::string Focus();
    /// Whether the data fields take changes; fails when some do and some do not.
    bool IsEditable();

    void ChooseMaker(const std::string& maker) { Choose("cboAntennaMakers", maker); }

    void ChooseModel(const std::string& model) { Choose("cboAntennaModels", model); }

    /// Chooses a model and presses "&Edit Selection".
    void Edit(const std::string& maker, const std::string& model);

    void Click(const std::string& name);
    /// Presses and releases a key on what has the keyboard.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Replaces a box's text at one go, as pasting does.
    void Paste(const std::string& box, const std::string& text) { Box(box).setText(QString::fromStdString(text)); }

    /// Answers the next question; it is kept in questions.
    void Answer(bool isOk);

    /// A maker's file, or the index.
    std::string File(const std::string& name) { return folder.Get("Antennas/" + name).value_or("no file"); }

    void Choose(const std::string& list, const std::string& entry);

    support::TempFolder folder;
    store::FailingCalls calls;
    std::shared_ptr<store::ProfileStore> store{std::make_shared<store::ProfileStore>(calls)};
    store::ProgramFolder program{folder / "Quillon"};
    store::Catalogue catalogue{program, store};
    support::RecordingNotifier notifier;
    support::RecordingMainWindow window;
    std::uint32_t ticks = 1000;
    Questions questions;
    EditAntennas dialog;
};

/// Number of the band box and gain box of a band by its key's suffix.
inline std::string Of(const std::string& array, int index)
{
    return array + "(" + std::to_string(index) + ")";
}

inline const std::string kTitle = "Manage Antenna Database";

/// What the fields show of no model.
inline const std::string kNoGains(13, '|');
inline const std::string kNoBands = ".............. 0";

} // namespace quillon::ui
