#pragma once

#include "fuzz/input.h"

namespace quillon::fuzz {

/// Runs writes on a file of the system's own, in a temporary folder, and compares every byte with the model. A few of
/// the inputs go this way, so that the calls that MemoryFiles stands in for are tried, too.
void RunOnDisk(Input input);

} // namespace quillon::fuzz
