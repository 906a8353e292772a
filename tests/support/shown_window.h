#pragma once

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <stdexcept>

namespace quillon::test {

/// Shows a window and waits until it has the keyboard.
inline void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("the window did not become active");
    }
}

/// Presses or releases a key as the desktop hands it over: to the window, which passes it to an open drop-down list or
/// to the control with the focus.
inline void Press(const QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyPress(window.windowHandle(), key, modifiers);
}

inline void Release(const QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyRelease(window.windowHandle(), key, modifiers);
}

inline void Click(const QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    Press(window, key, modifiers);
    Release(window, key, modifiers);
}

/// Types characters one by one, each pressed and released.
inline void Type(const QWidget& window, const QString& text)
{
    for (const QChar character : text) {
        QTest::keyClick(window.windowHandle(), character.toLatin1());
    }
}

} // namespace quillon::test
