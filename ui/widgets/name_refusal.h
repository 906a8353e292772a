#pragma once

#include "store/name_fault.h"

#include <QString>

#include <cstddef>

namespace quillon::ui {

/// A name that a person typed: what it is for, and how many characters there is room for.
struct TypedName
{
    QString subject; ///< "The system name", as a sentence begins
    QString text;
    std::size_t longest;
};

/// What is told of a name that cannot be taken, a whole sentence; empty for one without fault.
[[nodiscard]] QString NameRefusal(const TypedName& name, store::NameFault fault);

} // namespace quillon::ui
