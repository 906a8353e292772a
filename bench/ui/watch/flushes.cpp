#include "bench/ui/watch/flushes.h"

#include <QBackingStore>

#include <dlfcn.h>
#include <utility>

namespace quillon::bench {

namespace {

FlushListener& Listener()
{
    static FlushListener listener;
    return listener;
}

} // namespace

void ListenToFlushes(FlushListener listener)
{
    Listener() = std::move(listener);
}

} // namespace quillon::bench

// This library is loaded before Qt, so this one is called in place of Qt's.
void QBackingStore::flush(const QRegion& region, QWindow* flushed, const QPoint& offset)
{
    using Flush = void (*)(QBackingStore*, const QRegion&, QWindow*, const QPoint&);
    static const auto original =
        reinterpret_cast<Flush>(::dlsym(RTLD_NEXT, "_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint"));
    original(this, region, flushed, offset);
    if (const auto& listener = quillon::bench::Listener(); listener) {
        listener(flushed != nullptr ? *flushed : *window(), quillon::bench::Moment::Now());
    }
}
