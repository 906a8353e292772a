#pragma once

#include <QString>

class QKeyEvent;

namespace quillon::ui {

/// A text as the lists' key filter lets it through: small letters become capitals, what the filter drops is left out.
[[nodiscard]] QString FilteredListText(const QString& text);

[[nodiscard]] bool IsEnter(const QKeyEvent& event);

/// Whether the key types a character, as opposed to moving, editing or commanding.
[[nodiscard]] bool TypesCharacter(const QKeyEvent& event);

/// Code of a released key for the lists' key filter: the character of a printable key, 8 Backspace, 9 Tab, 13 Enter,
/// 27 Esc, 33 to 40 the paging and arrow keys, 45 Insert, 46 Delete; 0 for modifiers, function keys and all others.
[[nodiscard]] int ReleasedKeyCode(const QKeyEvent& event);

} // namespace quillon::ui
