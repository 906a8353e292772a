#pragma once

#include "bench/recalculation/samples.h"
#include "engine/db_table.h"
#include "engine/vswr_table.h"

namespace quillon::bench {

/// Works a sample out over the program's own tables in the plainest way: each row is looked at in turn until one fits,
/// and numbers are rounded by their binary value. No texts, no hooks, no checks.
[[nodiscard]] engine::SystemResults PlainResults(const Sample& sample, const engine::DBTable& dBTable,
                                                 const engine::VSWRTable& vswrTable);

} // namespace quillon::bench
