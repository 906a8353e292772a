#pragma once

class QUrl;

namespace quillon::ui {

/// Starts what is outside of the program. Nothing tells whether it started: what the user sees is up to the desktop.
class Shell
{
public:
    virtual ~Shell() = default;

    virtual void StartCalculator() = 0;
    /// Opens a web page in the browser, a "mailto:" address in the mail program.
    virtual void Open(const QUrl& address) = 0;
};

/// The desktop the program runs on. Programs are started by their path and given their arguments one by one; no command
/// line is put together for an interpreter to take apart.
class DesktopShell : public Shell
{
public:
    /// Starts the first that is installed of a fixed list of calculators. Without one, nothing happens.
    void StartCalculator() override;
    void Open(const QUrl& address) override;
};

} // namespace quillon::ui
