#include "store/sort_arrays.h"

#include <algorithm>

namespace quillon::store {

void SortArrays(std::vector<std::string>& texts)
{
    std::sort(texts.begin(), texts.end());
}

} // namespace quillon::store
