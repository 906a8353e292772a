#pragma once

#include "ui/platform/printers.h"

#include <cups/ipp.h>

namespace quillon::ui {

/// A printer's state as the print service reports it.
struct PrinterState
{
    ipp_pstate_t state = IPP_PSTATE_IDLE;
    bool accepting = true;
    QStringList reasons;
    QString message;
};

/// A job's state as the print service reports it.
struct JobState
{
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    bool begun = false; ///< the printer has had it at least once
    QStringList reasons;
};

/// Error of a status code, in the service's words: "server-error-device-error: stopped, paused, out for cleaning".
[[nodiscard]] PrintError ErrorOf(ipp_status_t status, const QStringList& words, const QString& source);

/// @throws PrintError when a printer in this state takes no job or would not print it
void CheckReady(const PrinterState& printer, const QString& source);

/// Tells from the states of a job and its printer how the job stands.
[[nodiscard]] JobNews JudgeJob(const JobState& job, const PrinterState& printer, const QString& source);

} // namespace quillon::ui
