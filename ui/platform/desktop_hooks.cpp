#include "ui/platform/desktop_hooks.h"

#include <QApplication>

namespace quillon::ui {

namespace {

/// While it lives, windows put off their repaints.
class RepaintsPutOff : public QObject
{
public:
    RepaintsPutOff() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::UpdateRequest || !watched->isWidgetType()) {
            return false;
        }
        // A window asks once for all that is to be repainted, and not again before it was. So it has to be asked again,
        // behind all that is pending now; if that comes in the next step of the search, then it is put off once more.
        QMetaObject::invokeMethod(
            watched,
            [watched] {
                QCoreApplication::postEvent(watched, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
            },
            Qt::QueuedConnection);
        return true;
    }
};

} // namespace

void DesktopHooks::Beep()
{
    QApplication::beep();
}

void DesktopHooks::LetPendingEventsRun()
{
    // Else the window would show the new input first, and its results only at a second repaint.
    const RepaintsPutOff repaintsPutOff;
    // A timer may stand for a person, too: it clicks the button whose access key was pressed, and repeats a held arrow.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::X11ExcludeTimers);
}

} // namespace quillon::ui
