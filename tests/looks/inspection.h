#pragma once

#include "tests/looks/findings.h"

#include <QWidget>

namespace quillon::test {

/// Looks at a window that stands open, as it is and as small as it gets, and at what it scrolls. Its size stays.
[[nodiscard]] Findings Inspect(QWidget& window);

} // namespace quillon::test
