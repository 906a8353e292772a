#pragma once

#include "engine/notifier.h"
#include "store/file_calls.h"
#include "store/program_folder.h"

namespace quillon {

/// Tells a user who may not write in the program's folder, or in the one of the antennas, that nothing can be saved
/// there: better before the work than after it. A folder that is missing or cannot be asked about is told of by what
/// then fails.
void TellUnwritableFolder(store::FileCalls& calls, const store::ProgramFolder& folder, engine::Notifier& notifier);

} // namespace quillon
