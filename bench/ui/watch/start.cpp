#include "bench/ui/watch/session.h"

#include <QApplication>

#include <dlfcn.h>

// This library is loaded before Qt, so this one is called in place of Qt's: the program under watch is the one that its
// users have, and the watch begins when its event loop does.
int QApplication::exec()
{
    const quillon::bench::Session session;
    const auto original = reinterpret_cast<int (*)()>(::dlsym(RTLD_NEXT, "_ZN12QApplication4execEv"));
    return original();
}
