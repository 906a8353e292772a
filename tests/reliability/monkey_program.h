#pragma once

#include "app/dialogs.h"
#include "engine/records.h"
#include "store/catalogue.h"
#include "store/profile_store.h"
#include "store/program_folder.h"
#include "tests/support/temp_folder.h"
#include "ui/main/quillon_window.h"
#include "ui/platform/desktop_hooks.h"
#include "ui/platform/message_notifier.h"
#include "ui/platform/printers.h"
#include "ui/platform/shell.h"

#include <functional>
#include <memory>
#include <random>

namespace quillon::test {

/// Computes as the program does on a desktop, and lets somebody look on.
class WatchedHooks : public engine::EngineHooks
{
public:
    void Beep() override {}

    /// Lets events run at some of the steps only: each time costs more than the whole computation.
    void LetPendingEventsRun() override;

    /// Whether a computation lets events run: no person's input gets through to the program then.
    [[nodiscard]] bool LetsEventsRun() const noexcept { return m_letsEventsRun; }

    std::function<void()> atStep;        ///< at each step of a search, before anything runs
    std::function<void()> atEndOfEvents; ///< after events have run

private:
    static constexpr int kStepsPerRun = 64;

    ui::DesktopHooks m_desktop;
    int m_steps = 0;
    bool m_letsEventsRun = false;
};

/// Printers that print nothing and go wrong now and then.
class MoodyPrinters : public ui::Printers
{
public:
    explicit MoodyPrinters(unsigned seed)
        : m_random(seed)
    {
    }

    QStringList Names() override;
    QStringList FontNames() override;
    QPageLayout LandscapePage(const QString& printer) override;
    int Submit(const QString& printer, const ui::PrintJob& job) override;
    ui::JobNews LookAt(const QString& printer, int job) override;
    void Cancel(const QString& printer, int job) override;

private:
    [[nodiscard]] bool Happens(unsigned oneIn) { return m_random() % oneIn == 0; }

    std::minstd_rand m_random;
    int m_jobs = 0;
};

/// Starts nothing.
class IdleShell : public ui::Shell
{
public:
    void StartCalculator() override {}

    void Open(const QUrl& /*address*/) override {}
};

/// A program folder with the shipped data, and names with markup and odd characters among them.
class ProgramFiles
{
public:
    ProgramFiles();

    [[nodiscard]] store::ProgramFolder Folder() const { return store::ProgramFolder((m_files / "Quillon").string()); }

    [[nodiscard]] std::filesystem::path Path() const { return m_files.Path(); }

private:
    support::TempFolder m_files;
};

/// The program behind the splash, put together as for its users but for printers, shell and hooks.
class WholeProgram
{
public:
    WholeProgram(const store::ProgramFolder& folder, unsigned seed);

    /// Runs the window's start-up sequence and shows the window.
    void Show();

    [[nodiscard]] ui::Quillon& Window() { return m_window; }

    [[nodiscard]] WatchedHooks& Hooks() { return m_hooks; }

    [[nodiscard]] const engine::AntennaSystems& Systems() const { return m_systems; }

private:
    engine::AntennaSystems m_systems;
    std::shared_ptr<store::ProfileStore> m_store = std::make_shared<store::ProfileStore>();
    store::Catalogue m_catalogue;
    WatchedHooks m_hooks;
    ui::MessageNotifier m_notifier;
    MoodyPrinters m_printers;
    IdleShell m_shell;
    ui::Quillon m_window;
    Dialogs m_dialogs;
};

} // namespace quillon::test
