#pragma once

#include "engine/records.h"
#include "tests/support/temp_folder.h"

namespace quillon::ui {

/// Writes small catalogues into a program folder: three antenna makers besides "WIRECRAFT", two cable makers.
void PutCatalogues(support::TempFolder& folder);

/// What reading a saved pair leaves in a record that was chosen from them, at 20 meters: no flags, no results,
/// catalogue figures as they were saved.
[[nodiscard]] engine::SystemData SavedRecord();

} // namespace quillon::ui
