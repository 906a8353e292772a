#pragma once

#include "ui/platform/system_version.h"

#include <QString>

#include <cstdint>

namespace quillon::ui {

/// The operating system as the program writes of it; all texts are empty until it is filled.
struct SystemInfo
{
    std::int32_t Platform = 0; ///< the system's own identifier of its kind
    QString Name;
    QString Version; ///< major and minor version, "4.10"
    QString ServicePack;
    QString Build; ///< as the system reports it
};

/// Fills a record with what the system tells of itself. When it does not tell, nothing is filled.
[[nodiscard]] SystemInfo FillSystemInfo(const SystemVersionCall& ask);

} // namespace quillon::ui
