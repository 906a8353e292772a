#include "bench/ui/watch/clocks.h"

#include <QString>

#include <ctime>

namespace quillon::bench {

namespace {

double Microseconds(clockid_t clock)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) * 1e-3;
}

} // namespace

Moment Moment::Now()
{
    return {Microseconds(CLOCK_MONOTONIC), Microseconds(CLOCK_PROCESS_CPUTIME_ID)};
}

Moment Moment::Start()
{
    return {qEnvironmentVariable("WATCH_START").toDouble() * 1e6, 0};
}

QJsonObject Times(const Moment& from, const Moment& to)
{
    return {{QStringLiteral("real_time"), to.wall - from.wall},
            {QStringLiteral("cpu_time"), to.processor - from.processor}};
}

} // namespace quillon::bench
