#include "ui/help/modal_companion.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quillon::ui {

ModalCompanion::ModalCompanion(QWidget* window)
    : QObject(window)
    , m_window(*window)
{
    window->installEventFilter(this);
}

void ModalCompanion::Follow()
{
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* owner = modal != nullptr ? modal : m_window.parentWidget();
    QWindow* wanted = owner != nullptr ? owner->window()->windowHandle() : nullptr;
    m_window.winId(); // makes the native window, which is what can be joined to another one
    m_window.windowHandle()->setTransientParent(wanted);
    if (wanted == m_joined) {
        return;
    }
    if (m_joined != nullptr) {
        m_joined->disconnect(this);
    }
    m_joined = wanted;
    if (modal != nullptr) {
        // The next modal window may stand below this one, and would block again.
        connect(m_joined, &QWindow::visibleChanged, this, &ModalCompanion::FollowLater);
        connect(m_joined, &QObject::destroyed, this, &ModalCompanion::FollowLater);
    }
}

// Neither while windows are being blocked one after the other, nor while the modal one is still on its way out.
void ModalCompanion::FollowLater()
{
    QMetaObject::invokeMethod(this, &ModalCompanion::Follow, Qt::QueuedConnection);
}

bool ModalCompanion::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) {
        FollowLater();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon::ui
