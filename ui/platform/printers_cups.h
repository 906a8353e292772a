#pragma once

#include "ui/platform/printers.h"

namespace quillon::ui {

/// The printers of the print service, asked with its own library: it tells of every failure, where the window
/// library's printing reports success for a printer that is stopped and prints elsewhere when one is gone.
class CupsPrinters : public Printers
{
public:
    /// @param server  socket path or host of the service; empty for the one that the desktop is set up for
    explicit CupsPrinters(QByteArray server = {});

    /// One request to the service, whatever the number of printers.
    [[nodiscard]] QStringList Names() override;
    [[nodiscard]] QStringList FontNames() override;
    [[nodiscard]] QPageLayout LandscapePage(const QString& printer) override;
    [[nodiscard]] int Submit(const QString& printer, const PrintJob& job) override;
    [[nodiscard]] JobNews LookAt(const QString& printer, int job) override;
    void Cancel(const QString& printer, int job) override;

private:
    QByteArray m_server;
};

} // namespace quillon::ui
