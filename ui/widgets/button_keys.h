#pragma once

class QKeyEvent;
class QWidget;

namespace quillon::ui {

/// Enter presses the button that has the focus and no other, once however long it is held down.
/// @return whether the key was Enter on a button; any other key is left to the window.
bool PressFocusedButton(const QWidget& window, const QKeyEvent& event);

} // namespace quillon::ui
