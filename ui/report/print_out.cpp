#include "ui/report/print_out.h"

#include "ui/report/print_system_report.h"
#include "ui/report/report_page.h"
#include "ui/widgets/button_keys.h"

#include <QComboBox>
#include <QEventLoop>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalBlocker>

#include <optional>

namespace quillon::ui {

namespace {

const QString kFontLookedFor = QStringLiteral("Lucida Console");
const QString kJobTitle = QStringLiteral("Antenna System Comparison Report");

} // namespace

PrintOut::PrintOut(PrintSystemReport& report, Printers& printers, engine::Notifier& notifier, QWidget* parent,
                   const JobWatchTimes& times)
    : QDialog(parent)
    , m_report(report)
    , m_printers(printers)
    , m_notifier(notifier)
    , m_watch(printers, times)
    , m_printerList(new QComboBox(this))
    , m_fonts(new QComboBox(this))
    , m_notes(new QPlainTextEdit(this))
    , m_print(new QPushButton(QStringLiteral("&Print"), this))
    , m_stop(new QPushButton(QStringLiteral("&Stop"), this))
    , m_cancel(new QPushButton(QStringLiteral("&Cancel"), this))
    , m_finish(new QPushButton(QStringLiteral("&Finish"), this))
{
    Name();
    LayOut();
    Wire();
    RestoreDesign();
}

void PrintOut::Name()
{
    setObjectName(QStringLiteral("PrintOut"));
    setWindowTitle(tr("Print Report"));
    m_printerList->setObjectName(QStringLiteral("cmbPrinter"));
    m_fonts->setObjectName(QStringLiteral("cmbFonts"));
    m_notes->setObjectName(QStringLiteral("txtNotes"));
    m_print->setObjectName(QStringLiteral("cmdPrint"));
    m_stop->setObjectName(QStringLiteral("cmdStop"));
    m_cancel->setObjectName(QStringLiteral("cmdCancel"));
    m_finish->setObjectName(QStringLiteral("cmdFinish"));
}

void PrintOut::Wire()
{
    connect(m_printerList, &QComboBox::currentIndexChanged, this, &PrintOut::cmbPrinter_Click);
    connect(m_print, &QPushButton::clicked, this, &PrintOut::cmdPrint_Click);
    connect(m_stop, &QPushButton::clicked, this, &PrintOut::cmdStop_Click);
    connect(m_cancel, &QPushButton::clicked, this, &PrintOut::reject);
    connect(m_finish, &QPushButton::clicked, this, &PrintOut::accept);
    connect(&m_watch, &JobWatch::Failed, this, &PrintOut::Watch_Failed);
}

void PrintOut::Open()
{
    Prepare();
    exec();
}

void PrintOut::RestoreDesign()
{
    m_print->setEnabled(true);
    m_cancel->setEnabled(true);
    m_stop->setEnabled(true);
    m_finish->setEnabled(true);
    m_fonts->clear();
    m_notes->clear();
    m_printer = {};
    m_job = 0;
    m_printerList->setFocus();
}

void PrintOut::Prepare()
{
    m_loaded = false;
    RestoreDesign();
    m_names = m_printers.Names();
    {
        const QSignalBlocker filling(m_printerList);
        m_printerList->clear();
        m_printerList->addItems(m_names);
        m_printerList->setCurrentIndex(-1);
    }
    m_printerList->setCurrentIndex(0);
    m_finish->setEnabled(false);
    m_stop->setEnabled(false);
    m_loaded = true;
}

void PrintOut::cmbPrinter_Click()
{
    for (const QString& name : m_names) {
        if (name == m_printerList->currentText()) {
            m_printer = {name, {}};
        }
    }
    m_fonts->clear();
    m_fonts->addItems(m_printers.FontNames());
    const int found = m_fonts->findText(kFontLookedFor, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    m_fonts->setCurrentIndex(found);
    if (found >= 0) {
        m_printer.fontName = kFontLookedFor;
    }
}

void PrintOut::cmdPrint_Click()
{
    if (m_printing) {
        return;
    }
    m_printing = true;
    const auto printed = qScopeGuard([this] { m_printing = false; });
    try {
        m_stop->setEnabled(true);
        m_finish->setEnabled(true);
        const QPageLayout page = m_printers.LandscapePage(m_printer.name);
        m_report.AppendNotes(m_notes->toPlainText());
        if (!PrintForm(page)) {
            return;
        }
        m_print->setEnabled(false);
        m_cancel->setEnabled(false);
        m_finish->setFocus();
    } catch (const PrintError& error) {
        TellFailure(error);
    }
}

bool PrintOut::PrintForm(const QPageLayout& page)
{
    m_job = 0;
    m_jobPrinter = m_printer.name;
    m_job = m_printers.Submit(m_jobPrinter, {kJobTitle, RenderReport(m_report, page), page});
    return WaitForJob();
}

bool PrintOut::WaitForJob()
{
    QEventLoop loop;
    bool closed = false;
    std::optional<PrintError> trouble;
    connect(&m_watch, &JobWatch::Settled, &loop, &QEventLoop::quit);
    connect(&m_watch, &JobWatch::Failed, &loop, [&trouble](const PrintError& error) { trouble = error; });
    connect(&m_watch, &JobWatch::Failed, &loop, &QEventLoop::quit);
    connect(this, &QDialog::finished, &loop, [&closed] { closed = true; });
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    m_watch.Start(m_jobPrinter, m_job);
    loop.exec();
    if (trouble) {
        throw PrintError(*trouble);
    }
    return !closed;
}

void PrintOut::cmdStop_Click()
{
    if (m_job > 0) {
        m_printers.Cancel(m_jobPrinter, m_job);
    }
}

// While cmdPrint_Click waits, the failure is its own.
void PrintOut::Watch_Failed(const PrintError& error)
{
    if (!m_printing) {
        TellFailure(error);
    }
}

// What has been reported as failed must not come out of the printer later, when somebody mends it.
void PrintOut::TellFailure(const PrintError& error)
{
    cmdStop_Click();
    const QString text = QStringLiteral("Error Printing, Error Number ") + QString::number(error.number) +
                         QStringLiteral(" Error Description ") + error.text + QStringLiteral(" Error Source ") +
                         error.source;
    m_notifier.Inform(text.toStdString(), "Printer Error");
}

void PrintOut::done(int result)
{
    m_watch.Stop();
    QDialog::done(result);
}

void PrintOut::keyPressEvent(QKeyEvent* event)
{
    if (!PressFocusedButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon::ui
