#include "tests/reliability/monkey_hands.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

namespace quillon::test {

QWidget* FrontWindow()
{
    for (QWidget* window :
         {QApplication::activePopupWidget(), QApplication::activeModalWidget(), QApplication::activeWindow()}) {
        // Without a window manager, a window that was hidden may still count as the active one.
        if (window != nullptr && window->window()->isVisible()) {
            return window->window();
        }
    }
    return nullptr;
}

QWindow* KeyboardWindow()
{
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr || !window->isVisible()) {
        window = FrontWindow() != nullptr ? FrontWindow()->windowHandle() : nullptr;
    }
    return window;
}

void Hands::PressKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers, bool repeated)
{
    if (QWindow* window = KeyboardWindow()) {
        qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text, repeated);
    }
}

void Hands::ReleaseKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    if (QWindow* window = KeyboardWindow()) {
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
    }
}

void Hands::Commit(const QString& text)
{
    QObject* focus = QGuiApplication::focusObject();
    QInputMethodQueryEvent query(Qt::ImEnabled);
    if (focus != nullptr && QCoreApplication::sendEvent(focus, &query) && query.value(Qt::ImEnabled).toBool()) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(focus, &event);
    }
}

void Hands::PressButton(QWindow* window, QPoint local, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    m_pressedIn = window;
    m_buttons |= button;
    qt_handleMouseEvent(window, local, window->mapToGlobal(local), m_buttons, button, QEvent::MouseButtonPress,
                        modifiers, ++m_time);
}

void Hands::ReleaseButton(QWindow* window, QPoint local, Qt::MouseButton button)
{
    m_buttons &= ~Qt::MouseButtons(button);
    QWindow* target = m_pressedIn != nullptr && m_pressedIn->isVisible() ? m_pressedIn.data() : window;
    if (target != nullptr) {
        qt_handleMouseEvent(target, local, target->mapToGlobal(local), m_buttons, button, QEvent::MouseButtonRelease,
                            {}, ++m_time);
    }
}

void Hands::MoveMouse(QWindow* window, QPoint local)
{
    QWindow* target = m_buttons != Qt::NoButton && m_pressedIn != nullptr ? m_pressedIn.data() : window;
    if (target != nullptr && target->isVisible()) {
        qt_handleMouseEvent(target, local, target->mapToGlobal(local), m_buttons, Qt::NoButton, QEvent::MouseMove, {},
                            ++m_time);
    }
}

void Hands::TurnWheel(QWindow* window, QPoint local, QPoint angle)
{
    // A window that waits behind a modal one gets no wheel.
    if (window != nullptr && FrontWindow() != nullptr && window == FrontWindow()->windowHandle()) {
        QWheelEvent event(local, window->mapToGlobal(local), {}, angle, m_buttons, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(window, &event);
    }
}

} // namespace quillon::test
