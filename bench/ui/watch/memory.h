#pragma once

#include <QJsonObject>

namespace quillon::bench {

/// What the process holds, in kilobytes: "resident", of which "anonymous" is no file's.
[[nodiscard]] QJsonObject HeldMemory();

} // namespace quillon::bench
