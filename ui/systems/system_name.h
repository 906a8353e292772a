#pragma once

#include <QString>

namespace quillon::ui {

/// What is told of a name that no pair of systems can be saved under; empty for one that will do. Names too long for
/// the file are left to its own limit, which is told for each value.
/// @param name  not empty, without blanks around it.
[[nodiscard]] QString SystemNameRefusal(const QString& name);

} // namespace quillon::ui
