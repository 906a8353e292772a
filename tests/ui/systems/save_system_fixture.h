#pragma once

#include "tests/support/find_widget.h"
#include "tests/support/sample_pair.h"
#include "tests/support/shown_window.h"
#include "tests/ui/systems/systems_fixture.h"
#include "ui/systems/save_system.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMessageBox>

#include <string>

namespace quillon::ui {

/// The dialog over an empty saved-systems file and two systems to save.
class SaveSystemTest : public SystemsTest
{
protected:
    void SetUp() override
    {
        Put("");
        window.Systems().Data = support::SamplePair();
    }

    /// Runs the opening steps and shows the dialog.
    void Open()
    {
        dialog.Prepare();
        test::ShowActive(dialog);
    }

    void Name(const QString& text) { test::Find<QLineEdit>(dialog, QStringLiteral("txtSystemName")).setText(text); }

    void Press() { ClickOn(dialog, "cmdSave"); }

    /// Presses the save button and answers the question that follows.
    void PressAndAnswer(QMessageBox::StandardButton answer)
    {
        WhenModal([answer](QWidget& box) { dynamic_cast<QMessageBox&>(box).button(answer)->click(); });
        Press();
    }

    bool MaySave() { return test::Find<QAbstractButton>(dialog, QStringLiteral("cmdSave")).isEnabled(); }

    [[nodiscard]] std::string Focus() const
    {
        return dialog.focusWidget() != nullptr ? dialog.focusWidget()->objectName().toStdString() : "";
    }

    SaveSystem dialog{window, readWrite, store, notifier};
};

} // namespace quillon::ui
