#include "store/sort_arrays.h"

#include <algorithm>

namespace quillon::store {

void SortArrays(std::vector<std::string>& texts)
{
    if (!std::is_sorted(texts.begin(), texts.end())) { // most lists come sorted all but a few
        std::sort(texts.begin(), texts.end());
    }
}

} // namespace quillon::store
