#pragma once

class QKeyEvent;
class QString;

namespace quillon::ui {

/// Virtual key code of a key event, as the numeric key check counts them: 48 to 57 digits of the main keyboard (with
/// Shift too), 96 to 105 and 110 the keypad, 8, 9, 13, 37 to 40, 46 as usual, 190 the point.
[[nodiscard]] int VirtualKey(const QKeyEvent& event);

/// The same for a windowing platform by name: "xcb" and "wayland" tell which place of the keyboard was pressed.
[[nodiscard]] int VirtualKey(const QKeyEvent& event, const QString& platform);

/// Whether the event is a modifier key alone (Shift, Ctrl, Alt, Meta, locks): nothing is typed by it.
[[nodiscard]] bool IsModifierAlone(const QKeyEvent& event);

} // namespace quillon::ui
