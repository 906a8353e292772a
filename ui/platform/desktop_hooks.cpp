#include "ui/platform/desktop_hooks.h"

#include <QApplication>

namespace quillon::ui {

void DesktopHooks::Beep()
{
    QApplication::beep();
}

void DesktopHooks::LetPendingEventsRun()
{
    // A timer may stand for a person, too: it clicks the button whose access key was pressed, and repeats a held arrow.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::X11ExcludeTimers);
}

} // namespace quillon::ui
