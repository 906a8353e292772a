#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace quillon::ui {

/// What a system answers when it is asked for its version.
struct SystemVersion
{
    /// Systems outside the platforms that have numbers of their own.
    static constexpr std::int32_t kUnnumbered = -1;

    std::int32_t platform = kUnnumbered;
    QString name; ///< empty where the platform's number has to do
    int major = 0;
    int minor = 0;
    QString build;
    QString servicePack; ///< a buffer: the text ends at its first NUL, if there is one
};

/// Asks a system. @return nothing when it does not tell.
using SystemVersionCall = std::function<std::optional<SystemVersion>()>;

/// Asks the system that the program runs on. The name is the one its release file shows to people ("Debian GNU/Linux 12
/// (bookworm)"), the version is the kernel's, and the build the kernel's whole release ("6.1.0-28-amd64"), which tells
/// the distribution's builds of one kernel apart. There are no service packs.
[[nodiscard]] std::optional<SystemVersion> AskSystemVersion();

} // namespace quillon::ui
