#pragma once

#include "ui/platform/shell.h"

#include <QUrl>

#include <string>
#include <vector>

namespace quillon::support {

/// Starts nothing; keeps what was asked for, "calculator" or the address as it is handed over.
class RecordingShell : public ui::Shell
{
public:
    void StartCalculator() override { m_calls.emplace_back("calculator"); }

    void Open(const QUrl& address) override { m_calls.push_back(address.toEncoded().toStdString()); }

    [[nodiscard]] const std::vector<std::string>& Calls() const noexcept { return m_calls; }

private:
    std::vector<std::string> m_calls;
};

} // namespace quillon::support
