#include "ui/platform/close_guard.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

namespace quillon::ui {

CloseGuard::CloseGuard(QWidget& window)
    : QObject(&window)
{
    // Without the first flag the desktop's usual title bar comes back, with its box.
    window.setWindowFlag(Qt::CustomizeWindowHint);
    window.setWindowFlag(Qt::WindowTitleHint);
    window.setWindowFlag(Qt::WindowSystemMenuHint);
    window.setWindowFlag(Qt::WindowCloseButtonHint, false);
    window.installEventFilter(this);
}

// The flags are a request that not every desktop follows, and they do not keep keys away.
bool CloseGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && static_cast<const QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon::ui
