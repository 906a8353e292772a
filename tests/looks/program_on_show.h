#pragma once

#include "app/dialogs.h"
#include "engine/records.h"
#include "store/catalogue.h"
#include "store/profile_store.h"
#include "store/program_folder.h"
#include "tests/support/recording_hooks.h"
#include "tests/support/recording_shell.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/report/fake_printers.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/message_notifier.h"

#include <memory>

namespace quillon::test {

/// The program behind the splash, over a copy of the shipped data; printers and other programs are not touched.
class ProgramOnShow
{
public:
    ProgramOnShow();

    [[nodiscard]] ui::Quillon& Window() { return m_window; }

    [[nodiscard]] ui::MessageNotifier& Notifier() { return m_notifier; }

    /// Sets a system up from the catalogues, as a person would.
    void Choose(int system, const QString& cable, const QString& antenna, const QString& band);

    /// Chooses an entry of a list by its text.
    static void Choose(const QWidget& window, const QString& list, const QString& entry);

    /// Replaces a box's text as typing does.
    static void Type(const QWidget& window, const QString& box, const QString& text);

private:
    support::TempFolder m_files;
    store::ProgramFolder m_folder{(m_files / "Quillon").string()};
    engine::AntennaSystems m_systems;
    support::RecordingHooks m_hooks;
    ui::MessageNotifier m_notifier;
    std::shared_ptr<store::ProfileStore> m_store = std::make_shared<store::ProfileStore>();
    store::Catalogue m_catalogue{m_folder, m_store};
    FakePrinters m_printers;
    support::RecordingShell m_shell;
    ui::Quillon m_window{{m_systems, m_hooks, m_notifier, m_catalogue}};
    Dialogs m_dialogs{{m_window, m_folder, m_catalogue, *m_store, m_notifier, m_printers, m_shell}};
};

/// Lets fonts, hints and sizes go their way through the event loop until nothing moves any more.
void Settle();

} // namespace quillon::test
