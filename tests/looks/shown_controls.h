#pragma once

#include "tests/looks/findings.h"

#include <QList>
#include <QWidget>

namespace quillon::test {

/// The controls in a window, or in what an area of it scrolls: all that a person reads or works, none of the parts that
/// others consist of, and nothing that is scrolled within the root.
[[nodiscard]] QList<QWidget*> ShownControls(const QWidget& root);

/// Whether a control is meant to elide a text that it has no room for.
[[nodiscard]] bool MayElide(const QWidget* widget);

/// What the areas of a window scroll, each to be looked at as a whole.
[[nodiscard]] QList<QWidget*> ScrolledContents(const QWidget& window);

/// Whether a widget is scrolled by an area below the root.
[[nodiscard]] bool IsScrolled(const QWidget& root, const QWidget* widget);

/// Controls with less room than they need at least, outside of what they stand in, or on one another.
[[nodiscard]] Findings CheckRoom(const QWidget& root);

} // namespace quillon::test
