#pragma once

#include "app/dialogs.h"
#include "engine/records.h"
#include "store/catalogue.h"
#include "store/profile_store.h"
#include "store/program_folder.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/desktop_hooks.h"
#include "ui/platform/message_notifier.h"
#include "ui/platform/printers_cups.h"
#include "ui/platform/shell.h"

#include <memory>

namespace quillon {

/// The main window with all that it works on and its dialogs. The window's end is the program's, whatever else is open.
class Program
{
public:
    /// Also takes away what an earlier run left when it was killed while it wrote.
    /// @param folder  in which no other copy of the program works.
    explicit Program(const store::ProgramFolder& folder);

    /// Runs the window's start-up sequence, shows the window and gives it the keyboard. Once per program.
    void Show();

    [[nodiscard]] ui::Quillon& Window() noexcept { return m_window; }

private:
    engine::AntennaSystems m_systems;
    std::shared_ptr<store::ProfileStore> m_store;
    store::Catalogue m_catalogue;
    ui::DesktopHooks m_hooks;
    ui::MessageNotifier m_notifier;
    ui::CupsPrinters m_printers;
    ui::DesktopShell m_shell;
    ui::Quillon m_window;
    Dialogs m_dialogs;
};

} // namespace quillon
