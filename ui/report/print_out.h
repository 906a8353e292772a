#pragma once

#include "engine/notifier.h"
#include "ui/report/print_out_watch.h"

#include <QDialog>
#include <QStringList>

class QComboBox;
class QPlainTextEdit;
class QPushButton;

namespace quillon::ui {

class PrintSystemReport;

/// The printer that is printed on, and the font that is set for it; empty: its own.
struct CurrentPrinter
{
    QString name;
    QString fontName;
};

/// Print options: takes a printer and notes and prints the report. One object serves all openings.
class PrintOut : public QDialog
{
    Q_OBJECT

public:
    /// All but the parent must outlive this object.
    PrintOut(PrintSystemReport& report, Printers& printers, engine::Notifier& notifier, QWidget* parent = nullptr,
             const JobWatchTimes& times = {});

    /// Prepares the dialog and shows it until it is closed.
    void Open();

    /// The opening steps, from the designed state: lists the printers there are now and chooses the first one.
    void Prepare();

    /// False while the opening steps run, true after them.
    [[nodiscard]] bool Loaded() const noexcept { return m_loaded; }

    [[nodiscard]] const CurrentPrinter& Printer() const noexcept { return m_printer; }

    /// Closes the dialog; a job goes on, but nobody watches it any more.
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cmbPrinter_Click();
    void cmdPrint_Click();
    void cmdStop_Click();

    void Name();
    void LayOut();
    void Wire();
    void RestoreDesign();
    /// Hands the report over and waits until it prints well, with the window alive.
    /// @return false when the dialog was closed meanwhile
    /// @throws PrintError
    bool PrintForm(const QPageLayout& page);
    bool WaitForJob();
    void Watch_Failed(const PrintError& error);
    void TellFailure(const PrintError& error);

    PrintSystemReport& m_report;
    Printers& m_printers;
    engine::Notifier& m_notifier;
    JobWatch m_watch;

    QComboBox* m_printerList;
    QComboBox* m_fonts;
    QPlainTextEdit* m_notes;
    QPushButton* m_print;
    QPushButton* m_stop;
    QPushButton* m_cancel;
    QPushButton* m_finish;

    bool m_loaded = false;
    bool m_printing = false; ///< cmdPrint_Click runs; the event loop lets it be pressed again
    QStringList m_names;
    CurrentPrinter m_printer;
    QString m_jobPrinter;
    int m_job = 0; ///< of this opening, 0 before there is one
};

} // namespace quillon::ui
