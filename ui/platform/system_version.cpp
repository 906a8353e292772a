#include "ui/platform/system_version.h"

#include <QSysInfo>
#include <QVersionNumber>

namespace quillon::ui {

std::optional<SystemVersion> AskSystemVersion()
{
    SystemVersion answer;
    answer.name = QSysInfo::prettyProductName();
    answer.build = QSysInfo::kernelVersion();
    if (answer.name.isEmpty() || answer.build.isEmpty()) {
        return std::nullopt;
    }
    const QVersionNumber kernel = QVersionNumber::fromString(answer.build);
    answer.major = kernel.majorVersion();
    answer.minor = kernel.minorVersion();
    return answer;
}

} // namespace quillon::ui
