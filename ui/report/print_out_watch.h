#pragma once

#include "ui/platform/printers.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace quillon::ui {

/// How long a job is watched before it counts as printing well.
struct JobWatchTimes
{
    std::chrono::milliseconds look{200};      ///< from one look to the next
    std::chrono::milliseconds printing{2000}; ///< in the printer without trouble; printers that fail do so within
    std::chrono::milliseconds waiting{10000}; ///< behind other jobs, or for a printer that does not answer
};

/// Watches a print job while the window stays alive: until it prints well, and then on until it ends.
class JobWatch : public QObject
{
    Q_OBJECT

public:
    /// @param printers  outlive this object
    explicit JobWatch(Printers& printers, const JobWatchTimes& times = {}, QObject* parent = nullptr);

    /// Watches a job instead of the one before; looks for the first time from the event loop.
    void Start(const QString& printer, int job);
    void Stop();

signals:
    /// The job prints well as far as can be told; once for each job.
    void Settled();
    /// Nothing will come out of the printer, before or after Settled(). The job is not watched any more.
    void Failed(const quillon::ui::PrintError& error);

private:
    void Look();
    void Settle();
    /// Whether the job has been in its phase for so long.
    [[nodiscard]] bool Lasts(std::chrono::milliseconds time) const;

    Printers& m_printers;
    JobWatchTimes m_times;
    QTimer m_timer;
    QElapsedTimer m_inPhase;
    QString m_printer;
    int m_job = 0;
    JobPhase m_phase = JobPhase::Waiting;
    bool m_settled = false;
};

} // namespace quillon::ui
