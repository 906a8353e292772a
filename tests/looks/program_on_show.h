#pragma once

#include "tests/support/whole_program.h"

namespace quillon::test {

/// The program behind the splash, over a copy of the shipped data; printers and other programs are not touched.
class ProgramOnShow
{
public:
    ProgramOnShow();

    [[nodiscard]] ui::Quillon& Window() { return m_program.window; }

    [[nodiscard]] ui::MessageNotifier& Notifier() { return m_program.notifier; }

    /// Sets a system up from the catalogues, as a person would.
    void Choose(int system, const QString& cable, const QString& antenna, const QString& band);

    /// Chooses an entry of a list by its text.
    static void Choose(const QWidget& window, const QString& list, const QString& entry);

    /// Replaces a box's text as typing does.
    static void Type(const QWidget& window, const QString& box, const QString& text);

private:
    support::WholeProgram m_program;
};

/// Lets fonts, hints and sizes go their way through the event loop until nothing moves any more.
void Settle();

} // namespace quillon::test
