#include "engine/vswr_table.h"

#include <algorithm>

namespace quillon::engine {

VSWRTable BuildVSWRTable()
{
    // As given: 1.1 equals 1.0, 3.1 passes as much as 3.0, and 2.6 and 3.6 pass more than 2.5 and 3.5.
    return {{
        {1.0F, 1.0F, 0.010F},     {1.1F, 1.0F, 0.010F},     {1.2F, 0.9997F, 0.03532F}, {1.3F, 0.9920F, 0.0750F},
        {1.4F, 0.9829F, 0.1126F}, {1.5F, 0.9744F, 0.1173F}, {1.6F, 0.9600F, 0.2500F},  {1.7F, 0.9442F, 0.3040F},
        {1.8F, 0.9341F, 0.3546F}, {1.9F, 0.9217F, 0.4576F}, {2.0F, 0.9000F, 0.5115F},  {2.1F, 0.8882F, 0.5821F},
        {2.2F, 0.8751F, 0.6773F}, {2.3F, 0.8670F, 0.7500F}, {2.4F, 0.8415F, 0.8428F},  {2.5F, 0.8204F, 0.8814F},
        {2.6F, 0.8280F, 0.9645F}, {2.7F, 0.8054F, 1.0500F}, {2.8F, 0.7943F, 1.1300F},  {2.9F, 0.7762F, 1.2110F},
        {3.0F, 0.7586F, 1.2454F}, {3.1F, 0.7586F, 1.3200F}, {3.2F, 0.7413F, 1.400F},   {3.3F, 0.7244F, 1.4500F},
        {3.4F, 0.7162F, 1.500F},  {3.5F, 0.7079F, 1.5500F}, {3.6F, 0.7159F, 1.6800F},  {3.7F, 0.6841F, 1.7100F},
        {3.8F, 0.6761F, 1.800F},  {3.9F, 0.6607F, 1.890F},
    }};
}

std::optional<VSWRRow> FindVSWRRow(const VSWRTable& table, float vswr) noexcept
{
    const auto* const found =
        std::find_if(table.begin(), table.end(), [vswr](const VSWRRow& row) { return row.vswr == vswr; });
    if (found == table.end()) {
        return std::nullopt;
    }
    return *found;
}

} // namespace quillon::engine
