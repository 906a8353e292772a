#pragma once

#include "bench/recalculation/samples.h"
#include "engine/results_display.h"

namespace quillon::bench {

/// Shows what a sample gives as a textbook would have it worked out: in doubles, with power functions and logarithms in
/// place of tables, and the texts by snprintf. The same nine results and five formulas at the same labels.
void ShowTextbookResults(const Sample& sample, engine::ResultsDisplay& display);

} // namespace quillon::bench
