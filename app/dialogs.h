#pragma once

#include "store/profile_store.h"
#include "store/read_write.h"
#include "ui/editor/edit_antennas.h"
#include "ui/help/help_key.h"
#include "ui/help/help_window.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/printers.h"
#include "ui/platform/shell.h"
#include "ui/report/print_out.h"
#include "ui/report/print_system_report.h"
#include "ui/startup/about.h"
#include "ui/systems/load_system.h"
#include "ui/systems/save_system.h"

#include <memory>
#include <optional>

namespace quillon {

/// What the dialogs are built on; made where the program starts, outlives them.
struct DialogParts
{
    ui::Quillon& window;
    store::ProgramFolder folder;
    const store::Catalogue& catalogue;
    store::ProfileStore& store; ///< the one that the catalogue reads through
    engine::Notifier& notifier;
    ui::Printers& printers;
    ui::Shell& shell;
};

/// Carries out what the main window's commands stand for. Each dialog is made when it is asked for first, belongs to
/// the main window and serves the whole run, but for the dB table, which is made anew at each opening.
class Dialogs : public QObject
{
    Q_OBJECT

public:
    explicit Dialogs(const DialogParts& parts);

    /// A command that comes while a dialog is open does nothing; one that comes before a closed dialog has returned
    /// waits for that.
    void Show(ui::Command command);

private:
    void CarryOut(ui::Command command);
    [[nodiscard]] ui::SaveSystem& SaveSystem();
    [[nodiscard]] ui::LoadSystem& LoadSystem();
    [[nodiscard]] ui::PrintSystemReport& Report();
    [[nodiscard]] ui::PrintOut& PrintOut();
    [[nodiscard]] ui::EditAntennas& EditAntennas();
    [[nodiscard]] ui::About& About();
    [[nodiscard]] ui::HelpWindow& Help();
    void ShowHelp(int context);
    /// Unloads the main window, unless there is something to save and the user would rather.
    void Close();

    DialogParts m_parts;
    store::ReadWrite m_readWrite;
    std::unique_ptr<ui::PrintSystemReport> m_report;
    ui::SaveSystem* m_saveSystem = nullptr;
    ui::LoadSystem* m_loadSystem = nullptr;
    ui::PrintOut* m_printOut = nullptr;
    ui::EditAntennas* m_editAntennas = nullptr;
    ui::About* m_about = nullptr;
    ui::HelpWindow* m_help = nullptr;
    ui::HelpKey m_helpKey;
    bool m_isShowing = false;          ///< a command is being carried out
    std::optional<ui::Command> m_next; ///< the last one that came meanwhile
};

} // namespace quillon
