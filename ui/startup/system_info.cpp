#include "ui/startup/system_info.h"

namespace quillon::ui {

namespace {

enum Platform : std::int32_t { kWin32s = 0, kWindows = 1, kWindowsNT = 2 };

/// The systems of platform 1 are told apart by their minor version alone.
QString WindowsName(int minor)
{
    switch (minor) {
    case 0:
        return QStringLiteral("Windows 95");
    case 90:
        return QStringLiteral("Windows ME");
    default:
        return QStringLiteral("Windows 98");
    }
}

QString NameOf(const SystemVersion& version)
{
    switch (version.platform) {
    case kWin32s:
        return QStringLiteral("Win32s");
    case kWindows:
        return WindowsName(version.minor);
    case kWindowsNT:
        return QStringLiteral("Windows NT");
    default:
        return version.name;
    }
}

} // namespace

SystemInfo FillSystemInfo(const SystemVersionCall& ask)
{
    SystemInfo info;
    if (const auto version = ask()) {
        info.Platform = version->platform;
        info.Name = NameOf(*version);
        info.Version = QStringLiteral("%1.%2").arg(version->major).arg(version->minor);
        info.ServicePack = version->servicePack.left(version->servicePack.indexOf(QChar::Null));
        info.Build = version->build;
    }
    return info;
}

} // namespace quillon::ui
