#pragma once

#include "ui/widgets/quiet_label.h"

#include <QWidget>

namespace quillon::ui {

/// The line below a group of lists: at its left what the record holds, at its right the facts that came with the
/// choice.
class ForceLine : public QWidget
{
    Q_OBJECT

public:
    /// @param held   number of labels at the left, quiet; they give way when the line is narrow
    /// @param facts  number of labels at the right, in the normal tone; they never give way
    ForceLine(int held, int facts, QWidget* parent);

    [[nodiscard]] QuietLabel* Held(int place) const { return m_held.at(place); }

    [[nodiscard]] QuietLabel* Fact(int place) const { return m_facts.at(place); }

private:
    QList<QuietLabel*> m_held;
    QList<QuietLabel*> m_facts;
};

} // namespace quillon::ui
