#include "bench/ui/watch/memory.h"

#include <QFile>

namespace quillon::bench {

namespace {

double Kilobytes(const QByteArray& line)
{
    return line.mid(line.indexOf(':') + 1).simplified().split(' ').first().toDouble();
}

} // namespace

QJsonObject HeldMemory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QJsonObject held;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Rss:")) {
            held[QStringLiteral("resident")] = Kilobytes(line);
        } else if (line.startsWith("Anonymous:")) {
            held[QStringLiteral("anonymous")] = Kilobytes(line);
        }
    }
    return held;
}

} // namespace quillon::bench
