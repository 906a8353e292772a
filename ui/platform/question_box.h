#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace quillon::ui {

/// Asks in a modal box with Yes and No, as plain text. No is the default, and what closing the box means.
/// @param owner  window that the box belongs to.
/// @return whether the answer was Yes.
[[nodiscard]] bool AskYesNo(QWidget* owner, const QString& text, const QString& title);

/// As AskYesNo, with OK and Cancel; Cancel is the default. @return whether the answer was OK.
[[nodiscard]] bool AskOkCancel(QWidget* owner, const QString& text, const QString& title);

enum class Answer : std::uint8_t { Yes, No, Cancel };

/// Asks in a modal box with Yes, No and Cancel, as plain text. Cancel is the default, and what closing the box means.
/// @param owner  window that the box belongs to.
[[nodiscard]] Answer AskYesNoCancel(QWidget* owner, const QString& text, const QString& title);

} // namespace quillon::ui
