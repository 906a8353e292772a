#pragma once

#include <QList>

#include <optional>

namespace quillon::ui {

/// The places in a document that a reader came along, as text positions. Each step takes the place that is left.
class HelpHistory
{
public:
    void Clear() { *this = {}; }

    /// The reader goes on from a place to another one that is not in the history.
    void Leave(int from);
    /// @return the place to go to; nothing at the end of the history.
    [[nodiscard]] std::optional<int> Back(int from);
    [[nodiscard]] std::optional<int> Forward(int from);

    [[nodiscard]] bool HasBack() const { return !m_behind.isEmpty(); }

    [[nodiscard]] bool HasForward() const { return !m_ahead.isEmpty(); }

private:
    QList<int> m_behind;
    QList<int> m_ahead;
};

} // namespace quillon::ui
