#pragma once

#include "store/profile_store.h"
#include "store/program_folder.h"

#include <string>
#include <vector>

namespace quillon::reliability {

/// A command that writes a data file, with that file's text before and behind it.
struct Operation
{
    std::string name;
    std::string file;         ///< from the program folder
    std::string before;       ///< lines end with LF
    std::string after;        ///< of before
    std::string afterNothing; ///< of an empty file; lines end with CR LF
    bool createsFile;         ///< a missing file is made; otherwise the command refuses to work without one
    bool isRefused;           ///< because of what stands in before: only a file without it is written
    bool (*run)(store::ProfileStore& store, const store::ProgramFolder& folder);
};

/// All of them, always in the same order.
[[nodiscard]] const std::vector<Operation>& Operations();

/// @throws std::out_of_range for a name that there is not.
[[nodiscard]] const Operation& OperationOf(const std::string& name);

} // namespace quillon::reliability
