#pragma once

#include "engine/notifier.h"

namespace quillon::engine {

/// Key-down check of the output power field. Any key but digits, keypad digits, keypad decimal point (110), Enter,
/// Backspace, Left, Right, Delete and Tab shows "Please Enter Only Numbers!". The point of the main keyboard (190)
/// is not among them, as given. The key itself goes through in any case.
/// @param keyCode  virtual key code: 48 to 57 digits, 96 to 105 keypad digits, 8, 9, 13, 37, 39, 46, 110.
/// @return always true.
bool CheckNumericKey(int keyCode, Notifier& notifier);

/// Key-press filter of the gain fields: characters 8 to 10, 13, 27, "0" to "9", "-" and "." pass.
/// @return keyAscii, or 0 for a character that is swallowed.
[[nodiscard]] int FilterGainKey(int keyAscii) noexcept;

/// Key filter of the catalogue lists: 8, 9, 10, 13, 27 and 32 to 90 pass, small letters become capitals.
/// @return the character to take, or 0 for one that is dropped.
[[nodiscard]] int FilterListKey(int keyAscii) noexcept;

} // namespace quillon::engine
