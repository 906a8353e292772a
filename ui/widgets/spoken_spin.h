#pragma once

class QAccessibleInterface;
class QObject;
class QString;

namespace quillon::ui {

/// What a spin control is to screen readers: a slider whose value is the figure that its position stands for, so that
/// it rises with the upper arrow. Nothing for other objects.
[[nodiscard]] QAccessibleInterface* MakeSpokenSpin(const QString& className, QObject* object);

} // namespace quillon::ui
