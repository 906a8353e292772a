#include "ui/editor/status_line.h"

#include <QTimer>

#include <utility>

namespace quillon::ui {

namespace {

constexpr std::uint32_t kShownFor = 10000;
constexpr int kTimerInterval = 100;

/// Whether a tick lies behind another one. Their difference counts, so that it holds across the counter's end.
bool IsBehind(std::uint32_t tick, std::uint32_t other)
{
    return static_cast<std::int32_t>(tick - other) > 0;
}

} // namespace

StatusLine::StatusLine(std::function<std::uint32_t()> ticks, QWidget* parent)
    : QuietLabel(Tone::Normal, 1.0, parent)
    , m_ticks(std::move(ticks))
    , m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("lblStatus"));
    m_timer->setObjectName(QStringLiteral("TimerStatusMsg"));
    m_timer->setInterval(kTimerInterval);
    SetElides(true);
    connect(m_timer, &QTimer::timeout, this, &StatusLine::TimerStatusMsg_Timer);
}

void StatusLine::Show(const QString& message)
{
    m_statusDeadline = m_ticks() + kShownFor;
    m_timer->start();
    setText(message);
}

void StatusLine::Clear()
{
    m_timer->stop();
    clear();
}

void StatusLine::TimerStatusMsg_Timer()
{
    if (IsBehind(m_ticks(), m_statusDeadline)) {
        Clear();
    }
}

} // namespace quillon::ui
