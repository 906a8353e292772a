#pragma once

#include <QIcon>

namespace quillon {

/// The icon of the program's windows, in all sizes that it is drawn for.
[[nodiscard]] QIcon ProgramIcon();

} // namespace quillon
