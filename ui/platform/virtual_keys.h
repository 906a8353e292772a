#pragma once

class QKeyEvent;
class QString;

namespace quillon::ui {

/// Virtual key code of a key event, as the numeric key check counts them: 48 to 57 digits of the main keyboard (with
/// Shift too), 96 to 105 and 110 the keypad, 8, 9, 13, 37 to 40, 46 as usual, 190 the point.
[[nodiscard]] int VirtualKey(const QKeyEvent& event);

/// The same for a windowing platform by name: "xcb" and "wayland" tell which place of the keyboard was pressed.
[[nodiscard]] int VirtualKey(const QKeyEvent& event, const QString& platform);

/// Code of a key that has one whatever it types: 8 Backspace, 9 Tab, 13 Enter, 27 Esc, 32 the space bar, 33 to 40 the
/// paging and arrow keys, 45 Insert, 46 Delete, 188 to 190 comma, minus and point; 0 for all others.
[[nodiscard]] int NamedKeyCode(int key);

/// Whether the event is a modifier key alone (Shift, Ctrl, Alt, Meta, locks): nothing is typed by it.
[[nodiscard]] bool IsModifierAlone(const QKeyEvent& event);

} // namespace quillon::ui
