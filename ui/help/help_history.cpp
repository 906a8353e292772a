#include "ui/help/help_history.h"

namespace quillon::ui {

namespace {

std::optional<int> Move(QList<int>& source, QList<int>& target, int from)
{
    if (source.isEmpty()) {
        return std::nullopt;
    }
    target.append(from);
    return source.takeLast();
}

} // namespace

void HelpHistory::Leave(int from)
{
    m_behind.append(from);
    m_ahead.clear();
}

std::optional<int> HelpHistory::Back(int from)
{
    return Move(m_behind, m_ahead, from);
}

std::optional<int> HelpHistory::Forward(int from)
{
    return Move(m_ahead, m_behind, from);
}

} // namespace quillon::ui
