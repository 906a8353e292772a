#pragma once

#include "engine/system_id.h"

#include <QString>

namespace quillon::ui {

/// Object name of one control of an array: "vsOutputPower(3)".
[[nodiscard]] QString IndexedName(const QString& name, int index);

/// Object name of a control whose array index is the system's number: "txtFrequency(2)".
[[nodiscard]] QString NameFor(const QString& name, engine::SystemId system);

/// Object name of a control that spells its system out: "cboSystem%1Coax" gives "cboSystemOneCoax".
[[nodiscard]] QString SpelledName(const QString& pattern, engine::SystemId system);

/// Place of a control that exists twice per system: 0 and 1 for System One, 2 and 3 for System Two.
[[nodiscard]] int PairIndex(engine::SystemId system, int part);

} // namespace quillon::ui
