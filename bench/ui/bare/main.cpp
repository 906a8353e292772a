#include "bench/ui/bare/bare_window.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    quillon::bench::BareWindow window;
    window.show();
    return QApplication::exec();
}
