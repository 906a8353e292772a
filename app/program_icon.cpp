#include "app/program_icon.h"

#include <array>

namespace quillon {

namespace {

/// Every window hands all of them to the display before it is shown. Larger ones a desktop takes from the menu entry.
constexpr std::array kSizes{16, 24, 32, 48, 64, 128};

} // namespace

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int size : kSizes) {
        // With its size a picture is read only when it is asked for.
        icon.addFile(QStringLiteral(":/icons/quillon_%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace quillon
