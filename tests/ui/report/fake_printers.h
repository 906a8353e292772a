#pragma once

#include "ui/platform/printers.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon::test {

/// Printers that do what a test tells them and note what they are asked.
class FakePrinters : public ui::Printers
{
public:
    QStringList names{QStringLiteral("Shack"), QStringLiteral("Attic")};
    QStringList fonts{QStringLiteral("Courier"), QStringLiteral("Lucida Console"), QStringLiteral("Times")};
    std::optional<ui::PrintError> pageFault;
    std::optional<ui::PrintError> submitFault;
    ui::JobNews news{ui::JobPhase::Ended, {}};
    ui::JobPhase afterCancel = ui::JobPhase::Ended;

    std::vector<std::string> calls; ///< all but looks at a job
    std::vector<ui::PrintJob> jobs;
    int looks = 0;
    std::function<void()> duringLook; ///< what happens while a job is looked at

    QStringList Names() override
    {
        calls.emplace_back("names");
        return names;
    }

    QStringList FontNames() override { return fonts; }

    QPageLayout LandscapePage(const QString& printer) override
    {
        calls.push_back("page of " + printer.toStdString());
        if (pageFault) {
            throw ui::PrintError(*pageFault);
        }
        return {QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()};
    }

    int Submit(const QString& printer, const ui::PrintJob& job) override
    {
        calls.push_back("print on " + printer.toStdString());
        if (submitFault) {
            throw ui::PrintError(*submitFault);
        }
        jobs.push_back(job);
        return static_cast<int>(jobs.size()) + 40;
    }

    ui::JobNews LookAt(const QString&, int) override
    {
        ++looks;
        if (duringLook) {
            duringLook();
        }
        return news;
    }

    void Cancel(const QString& printer, int job) override
    {
        calls.push_back("cancel " + std::to_string(job) + " on " + printer.toStdString());
        news = {afterCancel, {}};
    }
};

} // namespace quillon::test
