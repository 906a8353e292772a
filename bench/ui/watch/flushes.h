#pragma once

#include "bench/ui/watch/clocks.h"

#include <QWindow>

#include <functional>

namespace quillon::bench {

/// Is told of each flush of a window, which brings a repaint to the display, once it is done.
using FlushListener = std::function<void(QWindow& window, const Moment& done)>;

/// There is one listener: what calls it stands in place of a function of Qt and knows no object to ask.
void ListenToFlushes(FlushListener listener);

} // namespace quillon::bench
