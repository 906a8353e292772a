#pragma once

#include "ui/widgets/quiet_label.h"

#include <cstdint>
#include <functional>

class QTimer;

namespace quillon::ui {

/// Label of the messages that clear themselves.
class StatusLine : public QuietLabel
{
    Q_OBJECT

public:
    /// @param ticks  milliseconds; may start again at 0 at any time
    StatusLine(std::function<std::uint32_t()> ticks, QWidget* parent);

    /// Shows a message for ten seconds.
    void Show(const QString& message);
    void Clear();

private:
    void TimerStatusMsg_Timer();

    std::function<std::uint32_t()> m_ticks;
    QTimer* m_timer;
    std::uint32_t m_statusDeadline = 0; ///< tick after which the message goes
};

} // namespace quillon::ui
