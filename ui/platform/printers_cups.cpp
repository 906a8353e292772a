#include "ui/platform/printers_cups.h"

#include "ui/platform/printers_ipp.h"
#include "ui/platform/printers_job.h"
#include "ui/platform/printers_page.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFontDatabase>
#include <QScopeGuard>

#include <algorithm>
#include <future>
#include <iterator>

namespace quillon::ui {

namespace {

// A service that answers late must not freeze the window: it is asked from a thread of its own, while the window goes
// on to paint itself. Input waits, so nothing is begun twice.
template <class Question>
auto AskAside(const Question& question)
{
    QEventLoop waiting;
    auto answer = std::async(std::launch::async, [&waiting, &question] {
        const auto answered =
            qScopeGuard([&waiting] { QMetaObject::invokeMethod(&waiting, &QEventLoop::quit, Qt::QueuedConnection); });
        return question();
    });
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    return answer.get();
}

QString SourceOf(const QString& printer)
{
    return printer.isEmpty() ? QStringLiteral("CUPS")
                             : QCoreApplication::translate("CupsPrinters", "CUPS printer %1").arg(printer);
}

QString SourceOf(const QString& printer, int job)
{
    return QCoreApplication::translate("CupsPrinters", "CUPS job %1 of printer %2").arg(QString::number(job), printer);
}

IppMessage Describe(IppConnection& service, const QString& printer)
{
    IppMessage request = IppRequestAbout(IPP_OP_GET_PRINTER_ATTRIBUTES, printer);
    Want(*request, {"printer-state", "printer-state-reasons", "printer-state-message", "printer-is-accepting-jobs",
                    "media-default", "media-col-default"});
    return service.Ask(std::move(request), SourceOf(printer));
}

PrinterState StateIn(ipp_t& description)
{
    ipp_attribute_t* accepting = ippFindAttribute(&description, "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    return {static_cast<ipp_pstate_t>(IntegerIn(description, "printer-state", IPP_PSTATE_IDLE)),
            accepting == nullptr || ippGetBoolean(accepting, 0) != 0, TextsIn(description, "printer-state-reasons"),
            TextIn(description, "printer-state-message")};
}

// A service that keeps no list of finished jobs does not know a printed one; that one has ended.
JobState AskForJob(IppConnection& service, const QString& printer, int job)
{
    IppMessage request = IppRequestAbout(IPP_OP_GET_JOB_ATTRIBUTES, printer);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
    Want(*request, {"job-state", "job-state-reasons", "time-at-processing"});
    try {
        const IppMessage answer = service.Ask(std::move(request), SourceOf(printer, job));
        return {static_cast<ipp_jstate_t>(IntegerIn(*answer, "job-state", IPP_JSTATE_PENDING)),
                IntegerIn(*answer, "time-at-processing", 0) > 0, TextsIn(*answer, "job-state-reasons")};
    } catch (const PrintError& error) {
        if (error.number != IPP_STATUS_ERROR_NOT_FOUND) {
            throw;
        }
        return {IPP_JSTATE_COMPLETED, true, {}};
    }
}

IppMessage PrintRequest(const QString& printer, const PrintJob& job)
{
    IppMessage request = IppRequestAbout(IPP_OP_PRINT_JOB, printer);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, job.title.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr, "application/pdf");
    if (const QByteArray media = MediaName(job.page); !media.isEmpty()) {
        ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "media", nullptr, media.constData());
    }
    // The page has been laid out for this paper: nothing on the way to it may change its size.
    ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "print-scaling", nullptr, "none");
    return request;
}

} // namespace

CupsPrinters::CupsPrinters(QByteArray server)
    : m_server(std::move(server))
{
}

QStringList CupsPrinters::Names()
{
    return AskAside([this] {
        QStringList names;
        try {
            IppMessage request = IppRequest(IPP_OP_CUPS_GET_PRINTERS);
            Want(*request, {"printer-name"});
            const IppMessage answer = IppConnection(m_server).Ask(std::move(request), SourceOf({}));
            for (ipp_attribute_t* found = ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME);
                 found != nullptr; found = ippFindNextAttribute(answer.get(), "printer-name", IPP_TAG_NAME)) {
                names << QString::fromUtf8(ippGetString(found, 0, nullptr));
            }
        } catch (const PrintError&) {
            names.clear();
        }
        return names;
    });
}

QStringList CupsPrinters::FontNames()
{
    const QStringList families = QFontDatabase::families();
    QStringList names;
    // Fonts made of dots for one screen size cannot be put into a page.
    std::copy_if(families.begin(), families.end(), std::back_inserter(names), [](const QString& family) {
        return QFontDatabase::isSmoothlyScalable(family) && !QFontDatabase::isPrivateFamily(family);
    });
    return names;
}

QPageLayout CupsPrinters::LandscapePage(const QString& printer)
{
    return AskAside([this, &printer] {
        IppConnection service(m_server);
        const IppMessage description = Describe(service, printer);
        CheckReady(StateIn(*description), SourceOf(printer));
        return LandscapePageIn(*description);
    });
}

int CupsPrinters::Submit(const QString& printer, const PrintJob& job)
{
    return AskAside([this, &printer, &job] {
        const IppMessage answer = IppConnection(m_server).Ask(PrintRequest(printer, job), SourceOf(printer), job.pdf);
        return IntegerIn(*answer, "job-id", 0);
    });
}

JobNews CupsPrinters::LookAt(const QString& printer, int job)
{
    return AskAside([this, &printer, job]() -> JobNews {
        try {
            IppConnection service(m_server);
            const JobState state = AskForJob(service, printer, job);
            const IppMessage description = Describe(service, printer);
            return JudgeJob(state, StateIn(*description), SourceOf(printer, job));
        } catch (const PrintError& error) {
            return {JobPhase::Failed, error};
        }
    });
}

void CupsPrinters::Cancel(const QString& printer, int job)
{
    AskAside([this, &printer, job] {
        try {
            IppMessage request = IppRequestAbout(IPP_OP_CANCEL_JOB, printer);
            ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
            static_cast<void>(IppConnection(m_server).Ask(std::move(request), SourceOf(printer, job)));
        } catch (const PrintError&) {
            // Nothing is left to end.
        }
    });
}

} // namespace quillon::ui
