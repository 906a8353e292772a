#include "tests/reliability/monkey_program.h"

#include <QPageSize>

#include <filesystem>

namespace quillon::test {

void WatchedHooks::LetPendingEventsRun()
{
    if (atStep) {
        atStep();
    }
    if (++m_steps % kStepsPerRun != 0) {
        return;
    }
    m_letsEventsRun = true;
    m_desktop.LetPendingEventsRun();
    m_letsEventsRun = false;
    if (atEndOfEvents) {
        atEndOfEvents();
    }
}

QStringList MoodyPrinters::Names()
{
    return Happens(8) ? QStringList() : QStringList{QStringLiteral("Shack"), QStringLiteral("<b>Attic</b>")};
}

QStringList MoodyPrinters::FontNames()
{
    return {QStringLiteral("Courier"), QStringLiteral("Lucida Console"), QStringLiteral("<i>Times</i>")};
}

QPageLayout MoodyPrinters::LandscapePage(const QString& printer)
{
    if (Happens(6)) {
        throw ui::PrintError(1286, QStringLiteral("<b>takes</b> no jobs"), printer);
    }
    return {QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()};
}

int MoodyPrinters::Submit(const QString& printer, const ui::PrintJob& /*job*/)
{
    if (Happens(6)) {
        throw ui::PrintError(1030, QStringLiteral("gone"), printer);
    }
    return ++m_jobs;
}

ui::JobNews MoodyPrinters::LookAt(const QString& printer, int /*job*/)
{
    if (Happens(8)) {
        return {ui::JobPhase::Failed, ui::PrintError(7, QStringLiteral("jammed"), printer)};
    }
    return {Happens(2) ? ui::JobPhase::Ended : ui::JobPhase::Waiting, {}};
}

void MoodyPrinters::Cancel(const QString& /*printer*/, int /*job*/) {}

ProgramFiles::ProgramFiles()
{
    std::filesystem::copy(QUILLON_DATA_FOLDER, m_files.Path(), std::filesystem::copy_options::recursive);
    m_files.Put("Antennas/<B>BOLD</B> & <IMG SRC=X>.DAT",
                "[<I>MODEL</I> & <A HREF=X>LINK</A>]\nGainType=dBi\nGain20=71\n"
                "[HUGE]\nGainType=dBd\nGain20=32767\nGain10=-32768\n");
    m_files.Put("Antennas/\xD0\x90\xE2\x80\xAE"
                "BIDI.DAT",
                "[\xC4\xD6\xDC \x81]\nGainType=dBd\nGain40=20\nGain.70=150\n");
    m_files.Put("Coax/<U>CABLE</U>.DAT", "[<S>TYPE</S>]\nLoss1=1\nLoss10=2\nLoss50=4\nLoss100=8\nSpec1=0.4\nSpec2=50\n"
                                         "[ENDLESS]\nLoss1=1e38\nLoss10=1e38\nLoss50=1e38\nLoss100=1e38\n");
}

WholeProgram::WholeProgram(const store::ProgramFolder& folder, unsigned seed)
    : m_catalogue(folder, m_store)
    , m_printers(seed)
    , m_window({m_systems, m_hooks, m_notifier, m_catalogue})
    , m_dialogs({m_window, folder, m_catalogue, *m_store, m_notifier, m_printers, m_shell})
{
    m_notifier.SetOwner(&m_window);
}

void WholeProgram::Show()
{
    m_window.Load();
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

} // namespace quillon::test
