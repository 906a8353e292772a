#pragma once

#include "ui/startup/system_info.h"

#include <QString>
#include <QUrl>
#include <QVersionNumber>

namespace quillon::ui {

/// What runs.
struct ProgramInfo
{
    QString title;
    QVersionNumber version;
    QString path; ///< folder and file name, with the platform's separators

    /// The running program, by the name and the version that the application was given.
    [[nodiscard]] static ProgramInfo OfThisProgram();
};

/// "Quillon, Version 1.0 0, for Windows 98": major and minor version, the revision behind a blank, as given.
[[nodiscard]] QString VersionLine(const ProgramInfo& program, const SystemInfo& system);

/// "Running on Windows 98 4.10 Build 2222 ( A )", with an empty pair of brackets where there is no service pack.
[[nodiscard]] QString SystemLine(const SystemInfo& system);

/// A mail to the maker without a text.
[[nodiscard]] QUrl MailAddress(const ProgramInfo& program, const SystemInfo& system);

/// A mail to the maker that begins with a greeting; its subject differs from the other's, as given.
[[nodiscard]] QUrl CommentsAddress(const ProgramInfo& program, const SystemInfo& system);

} // namespace quillon::ui
