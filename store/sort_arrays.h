#pragma once

#include <string>
#include <vector>

namespace quillon::store {

/// Sorts texts in ascending order of their character codes: "Z" comes before "a".
void SortArrays(std::vector<std::string>& texts);

} // namespace quillon::store
