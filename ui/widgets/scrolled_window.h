#pragma once

#include <QSize>

class QWidget;

namespace quillon::ui {

/// Size that a window may have on its screen, below the title that a desktop puts above it.
[[nodiscard]] QSize RoomFor(const QWidget& window);

/// Lets a dialog become smaller than what it holds where its screen has no more room: the rest then scrolls. On other
/// screens nothing changes. To be called once its layout is complete.
void ScrollWhatHasNoRoom(QWidget& window);

} // namespace quillon::ui
