#include "ui/editor/editor_clock.h"

#include <QDate>

namespace quillon::ui {

std::uint32_t TickCount()
{
    using namespace std::chrono;
    return static_cast<std::uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

std::chrono::year_month_day Today()
{
    const QDate today = QDate::currentDate();
    return {std::chrono::year(today.year()), std::chrono::month(static_cast<unsigned>(today.month())),
            std::chrono::day(static_cast<unsigned>(today.day()))};
}

} // namespace quillon::ui
