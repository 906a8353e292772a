#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>
#include <QStringList>

#include <exception>

namespace quillon::ui {

/// Why printing failed, as the print service tells it.
struct PrintError : std::exception
{
    PrintError() = default;
    PrintError(int itsNumber, QString itsText, QString itsSource);

    int number = 0; ///< status code of the Internet Printing Protocol: 1286 for a printer that takes no jobs
    QString text;   ///< plain text
    QString source; ///< the service, the printer or the job that the error is about

    [[nodiscard]] const char* what() const noexcept override { return "printing failed"; }
};

enum class JobPhase {
    Waiting,  ///< in the queue, not begun
    Printing, ///< begun, nothing wrong
    Offline,  ///< the printer does not answer; it may come back
    Ended,    ///< printed or cancelled
    Failed,   ///< nothing will come out of the printer
};

/// How a job stands, with what is wrong where its phase is Offline or Failed.
struct JobNews
{
    JobPhase phase = JobPhase::Waiting;
    PrintError trouble;
};

/// What a printer is asked to print.
struct PrintJob
{
    QString title;
    QByteArray pdf;
    QPageLayout page;
};

/// The printers of the desktop. Nothing is asked for before it is called for.
class Printers
{
public:
    virtual ~Printers() = default;

    /// Names of all printers in the system's order; none when there are none or when no print service answers.
    [[nodiscard]] virtual QStringList Names() = 0;

    /// Families of the fonts that a page can be printed with, in alphabetical order.
    [[nodiscard]] virtual QStringList FontNames() = 0;

    /// Landscape page of the paper that a printer has in, with margins inside which it can print, turned either way.
    /// @throws PrintError when the printer is not there, is stopped or takes no jobs
    [[nodiscard]] virtual QPageLayout LandscapePage(const QString& printer) = 0;

    /// Hands a page over. There is no other printer that it goes to when this one is gone.
    /// @return the job's number, above 0
    /// @throws PrintError when the job is not taken
    [[nodiscard]] virtual int Submit(const QString& printer, const PrintJob& job) = 0;

    /// How a job stands.
    [[nodiscard]] virtual JobNews LookAt(const QString& printer, int job) = 0;

    /// Ends a job at once. A job that has ended before, or a service that is gone, is no error.
    virtual void Cancel(const QString& printer, int job) = 0;
};

} // namespace quillon::ui
