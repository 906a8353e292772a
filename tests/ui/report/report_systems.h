#pragma once

#include "engine/records.h"

namespace quillon::ui {

/// Two systems that differ in every value, with antenna and coax each.
[[nodiscard]] engine::AntennaSystems DifferentSystems();

/// Two systems with the same values, with antenna and coax each.
[[nodiscard]] engine::AntennaSystems EqualSystems();

} // namespace quillon::ui
