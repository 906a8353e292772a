#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWindow>
#include <Qt>

class QWidget;

namespace quillon::test {

/// Keyboard and mouse: hands events over as the desktop does, to a window, from where they take their usual way.
class Hands
{
public:
    void PressKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers, bool repeated = false);
    void ReleaseKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers);
    /// A text that an input method has put together.
    void Commit(const QString& text);

    /// @param local  in the window's coordinates
    void PressButton(QWindow* window, QPoint local, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});
    void ReleaseButton(QWindow* window, QPoint local, Qt::MouseButton button);
    void MoveMouse(QWindow* window, QPoint local);
    void TurnWheel(QWindow* window, QPoint local, QPoint angle);

    /// Time between this event and the one before it, for what counts as a double click.
    void Wait(int milliseconds) { m_time += milliseconds; }

private:
    QPointer<QWindow> m_pressedIn; ///< gets the movements and the release that belong to a press
    Qt::MouseButtons m_buttons;
    int m_time = 0;
};

/// The window that the keyboard's events go to.
[[nodiscard]] QWindow* KeyboardWindow();

/// The window in front: an open list or menu, else the modal window, else the active one.
[[nodiscard]] QWidget* FrontWindow();

} // namespace quillon::test
