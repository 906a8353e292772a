#include "app/dialogs.h"

#include <utility>

namespace quillon {

Dialogs::Dialogs(ui::Quillon& window, store::ProgramFolder folder, engine::Notifier& notifier, ui::Printers& printers)
    : m_window(window)
    , m_notifier(notifier)
    , m_printers(printers)
    , m_readWrite(std::move(folder), m_store, notifier)
{
    connect(&window, &ui::Quillon::CommandGiven, this, &Dialogs::Show);
}

void Dialogs::Show(ui::Command command)
{
    switch (command) {
    case ui::Command::SaveSystem:
        return SaveSystem().Open();
    case ui::Command::LoadSystem:
        return LoadSystem().Open();
    case ui::Command::PrintReport:
        Report().SetReport();
        return PrintOut().Open();
    case ui::Command::PrintSystem:
        // As given, the menu's entry prints the report as it was built last.
        return PrintOut().Open();
    }
}

ui::SaveSystem& Dialogs::SaveSystem()
{
    if (m_saveSystem == nullptr) {
        m_saveSystem = new ui::SaveSystem(m_window, m_readWrite, m_store, m_notifier, &m_window);
    }
    return *m_saveSystem;
}

ui::LoadSystem& Dialogs::LoadSystem()
{
    if (m_loadSystem == nullptr) {
        m_loadSystem = new ui::LoadSystem(m_window, m_readWrite, m_store, m_notifier, &m_window);
    }
    return *m_loadSystem;
}

ui::PrintSystemReport& Dialogs::Report()
{
    if (!m_report) {
        m_report = std::make_unique<ui::PrintSystemReport>(m_window.Systems(), m_notifier, m_window.locale());
    }
    return *m_report;
}

ui::PrintOut& Dialogs::PrintOut()
{
    if (m_printOut == nullptr) {
        m_printOut = new ui::PrintOut(Report(), m_printers, m_notifier, &m_window);
    }
    return *m_printOut;
}

} // namespace quillon
