#pragma once

#include <QJsonObject>

namespace quillon::bench {

/// A moment by the two clocks that figures are taken from, in microseconds.
struct Moment
{
    double wall = 0;
    double processor = 0; ///< what the process has taken since its start

    [[nodiscard]] static Moment Now();
    /// When the process was about to be started, which whoever starts it writes to an environment variable.
    [[nodiscard]] static Moment Start();
};

/// The times between two moments, as "real_time" and "cpu_time".
[[nodiscard]] QJsonObject Times(const Moment& from, const Moment& to);

} // namespace quillon::bench
