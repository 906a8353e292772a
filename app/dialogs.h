#pragma once

#include "store/profile_store.h"
#include "store/read_write.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/printers.h"
#include "ui/report/print_out.h"
#include "ui/report/print_system_report.h"
#include "ui/systems/load_system.h"
#include "ui/systems/save_system.h"

#include <memory>

namespace quillon {

/// Opens what the main window's commands stand for. Each window is made when it is asked for first, belongs to the
/// main window and serves the whole run.
class Dialogs : public QObject
{
    Q_OBJECT

public:
    /// @param window, notifier, printers  outlive this object.
    Dialogs(ui::Quillon& window, store::ProgramFolder folder, engine::Notifier& notifier, ui::Printers& printers);

    void Show(ui::Command command);

private:
    [[nodiscard]] ui::SaveSystem& SaveSystem();
    [[nodiscard]] ui::LoadSystem& LoadSystem();
    [[nodiscard]] ui::PrintSystemReport& Report();
    [[nodiscard]] ui::PrintOut& PrintOut();

    ui::Quillon& m_window;
    engine::Notifier& m_notifier;
    ui::Printers& m_printers;
    store::ProfileStore m_store;
    store::ReadWrite m_readWrite;
    std::unique_ptr<ui::PrintSystemReport> m_report;
    ui::SaveSystem* m_saveSystem = nullptr;
    ui::LoadSystem* m_loadSystem = nullptr;
    ui::PrintOut* m_printOut = nullptr;
};

} // namespace quillon
