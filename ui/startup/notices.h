#pragma once

#include <QStringView>

namespace quillon::ui {

/// Whose program it is.
inline constexpr QStringView kMakersNotice = u"© 2026 Tarvel Software";

} // namespace quillon::ui
