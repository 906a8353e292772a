#pragma once

#include <QAccessible>

class QWidget;

namespace quillon::ui {

/// Tells screen readers what a widget is that Qt takes for a mere part of the layout; such parts they pass over. Its
/// name is its own, never the title of the frame that it stands in. To be called before the widget is shown.
void SetSpokenRole(QWidget& widget, QAccessible::Role role);

/// Names a control for screen readers; of a list box also its drop-down list and its text, either of which may have
/// the keyboard.
void SetSpokenName(QWidget& control, const QString& name);

/// Changes what screen readers call a widget and how they describe it. They are told of changes only.
void Say(QWidget& widget, const QString& name, const QString& description = {});

} // namespace quillon::ui
