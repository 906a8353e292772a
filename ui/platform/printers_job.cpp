#include "ui/platform/printers_job.h"

#include <algorithm>

namespace quillon::ui {

namespace {

QStringList WordsOf(const char* state, const QStringList& reasons, const QString& message)
{
    QStringList words{QString::fromUtf8(state)};
    words += reasons;
    words += message;
    words.removeAll(QString());
    words.removeAll(QStringLiteral("none"));
    return words;
}

PrintError PrinterError(ipp_status_t status, const PrinterState& printer, const QString& source)
{
    return ErrorOf(
        status,
        WordsOf(ippEnumString("printer-state", static_cast<int>(printer.state)), printer.reasons, printer.message),
        source);
}

JobNews Failed(ipp_status_t status, const JobState& job, const PrinterState& printer, const QString& source)
{
    const QStringList reasons = printer.state == IPP_PSTATE_STOPPED ? job.reasons + printer.reasons : job.reasons;
    return {JobPhase::Failed,
            ErrorOf(status, WordsOf(ippEnumString("job-state", static_cast<int>(job.state)), reasons, printer.message),
                    source)};
}

// "offline-report", "offline-error" and the like.
bool IsOffline(const PrinterState& printer)
{
    return std::any_of(printer.reasons.begin(), printer.reasons.end(),
                       [](const QString& reason) { return reason.startsWith(QLatin1String("offline")); });
}

} // namespace

PrintError::PrintError(int itsNumber, QString itsText, QString itsSource)
    : number(itsNumber)
    , text(std::move(itsText))
    , source(std::move(itsSource))
{
}

PrintError ErrorOf(ipp_status_t status, const QStringList& words, const QString& source)
{
    const QString name = QString::fromUtf8(ippErrorString(status));
    return {static_cast<int>(status),
            words.isEmpty() ? name : name + QStringLiteral(": ") + words.join(QStringLiteral(", ")), source};
}

void CheckReady(const PrinterState& printer, const QString& source)
{
    if (!printer.accepting) {
        throw PrinterError(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS, printer, source);
    }
    if (printer.state == IPP_PSTATE_STOPPED) {
        throw PrinterError(IPP_STATUS_ERROR_DEVICE, printer, source);
    }
}

JobNews JudgeJob(const JobState& job, const PrinterState& printer, const QString& source)
{
    switch (job.state) {
    case IPP_JSTATE_COMPLETED:
    case IPP_JSTATE_CANCELED:
        return {JobPhase::Ended, {}};
    case IPP_JSTATE_ABORTED:
        return Failed(IPP_STATUS_ERROR_JOB_CANCELED, job, printer, source);
    case IPP_JSTATE_STOPPED:
        return Failed(IPP_STATUS_ERROR_DEVICE, job, printer, source);
    case IPP_JSTATE_PENDING:
    case IPP_JSTATE_HELD:
        // Back in the queue after it had begun: the printer failed, and the service would try again for ever.
        if (job.begun || printer.state == IPP_PSTATE_STOPPED) {
            return Failed(IPP_STATUS_ERROR_DEVICE, job, printer, source);
        }
        return {JobPhase::Waiting, {}};
    case IPP_JSTATE_PROCESSING:
        break;
    }
    if (IsOffline(printer)) {
        return {JobPhase::Offline, PrinterError(IPP_STATUS_ERROR_DEVICE, printer, source)};
    }
    return {JobPhase::Printing, {}};
}

} // namespace quillon::ui
