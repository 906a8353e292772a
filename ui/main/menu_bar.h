#pragma once

#include "ui/main/commands.h"

#include <functional>

class QMenuBar;

namespace quillon::ui {

/// Fills the main window's menu bar.
/// @param give  is called with the command of each entry that a person chooses
void FillMenuBar(QMenuBar& bar, const std::function<void(Command)>& give);

} // namespace quillon::ui
