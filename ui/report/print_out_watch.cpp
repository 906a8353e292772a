#include "ui/report/print_out_watch.h"

namespace quillon::ui {

JobWatch::JobWatch(Printers& printers, const JobWatchTimes& times, QObject* parent)
    : QObject(parent)
    , m_printers(printers)
    , m_times(times)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &JobWatch::Look);
}

void JobWatch::Start(const QString& printer, int job)
{
    m_printer = printer;
    m_job = job;
    m_phase = JobPhase::Waiting;
    m_settled = false;
    m_inPhase.start();
    m_timer.start(0);
}

void JobWatch::Stop()
{
    m_job = 0;
    m_timer.stop();
}

void JobWatch::Look()
{
    const int job = m_job;
    const JobNews news = m_printers.LookAt(m_printer, job);
    // The window lives while the printers are asked: it may have been closed.
    if (job != m_job) {
        return;
    }
    if (news.phase != m_phase) {
        m_phase = news.phase;
        m_inPhase.start();
    }
    const bool isOver = news.phase == JobPhase::Failed || news.phase == JobPhase::Ended;
    const bool isLost = news.phase == JobPhase::Offline && Lasts(m_times.waiting);
    if (!isOver && !isLost) {
        m_timer.start(m_times.look);
    }
    if (news.phase == JobPhase::Failed || isLost) {
        emit Failed(news.trouble);
    } else if (news.phase == JobPhase::Ended || (news.phase == JobPhase::Printing && Lasts(m_times.printing)) ||
               (news.phase == JobPhase::Waiting && Lasts(m_times.waiting))) {
        Settle();
    }
}

void JobWatch::Settle()
{
    if (!m_settled) {
        m_settled = true;
        emit Settled();
    }
}

bool JobWatch::Lasts(std::chrono::milliseconds time) const
{
    return m_inPhase.hasExpired(time.count());
}

} // namespace quillon::ui
