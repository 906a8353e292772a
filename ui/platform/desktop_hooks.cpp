#include "ui/platform/desktop_hooks.h"

#include <QApplication>

namespace quillon::ui {

void DesktopHooks::Beep()
{
    QApplication::beep();
}

void DesktopHooks::LetPendingEventsRun()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace quillon::ui
