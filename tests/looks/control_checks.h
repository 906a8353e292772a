#pragma once

#include "tests/looks/findings.h"

namespace quillon::test {

/// Shapes that tell something and are hard to see: markers, outlines of check boxes, options, text boxes and lists.
/// Those of disabled controls do not count.
[[nodiscard]] Findings CheckShapes(QWidget& root);

/// Controls that take the keyboard and hardly show that they have it. The window is active and stays so.
[[nodiscard]] Findings CheckFocusMarks(QWidget& root);

} // namespace quillon::test
