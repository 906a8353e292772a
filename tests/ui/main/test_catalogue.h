#pragma once

#include "tests/support/temp_folder.h"

namespace quillon::ui {

/// Writes small catalogues into a program folder: three antenna makers besides "WIRECRAFT", two cable makers.
void PutCatalogues(support::TempFolder& folder);

} // namespace quillon::ui
