#pragma once

#include "tests/looks/findings.h"
#include "tests/looks/text_recorder.h"

namespace quillon::test {

/// Texts that are cut, elided, drawn over one another or drawn over. What a view or a document scrolls may be cut by
/// its edges; texts elide where the program means them to.
[[nodiscard]] Findings CheckPlaces(const Recording& recording);

/// Texts that are hard to read on what is behind them. Those of disabled controls do not count.
[[nodiscard]] Findings CheckContrast(const Recording& recording);

/// Labels, buttons, boxes, lists and titles whose text is not drawn anywhere though they are shown.
[[nodiscard]] Findings CheckNoneMissing(const QWidget& root, const Recording& recording);

} // namespace quillon::test
