#include "app/program.h"

#include "store/stale_files.h"

#include <QApplication>

namespace quillon {

Program::Program(const store::ProgramFolder& folder)
    : m_store(std::make_shared<store::ProfileStore>())
    , m_catalogue(folder, m_store)
    , m_window({m_systems, m_hooks, m_notifier, m_catalogue})
    , m_dialogs({m_window, folder, m_catalogue, *m_store, m_notifier, m_printers, m_shell})
{
    store::RemoveStaleFiles(m_store->Calls(), folder);
    m_notifier.SetOwner(&m_window);
    QObject::connect(
        &m_window, &ui::Quillon::Unloaded, qApp, [] { QApplication::exit(); }, Qt::QueuedConnection);
}

void Program::Show()
{
    m_window.Load();
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

} // namespace quillon
