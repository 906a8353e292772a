#include "app/program_icon.h"

#include <array>

namespace quillon {

namespace {

constexpr std::array kSizes{16, 24, 32, 48, 64, 128, 256};

} // namespace

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int size : kSizes) {
        icon.addFile(QStringLiteral(":/icons/quillon_%1.png").arg(size));
    }
    return icon;
}

} // namespace quillon
