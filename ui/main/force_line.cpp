#include "ui/main/force_line.h"

#include "ui/widgets/looks.h"

#include <QHBoxLayout>

namespace quillon::ui {

ForceLine::ForceLine(int held, int facts, QWidget* parent)
    : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * BaseUnit());
    for (int place = 0; place < held; ++place) {
        auto* label = new QuietLabel(QuietLabel::Tone::Quiet, 1.0, this);
        label->SetElides(true);
        m_held.append(label);
        row->addWidget(label);
    }
    row->addStretch(1);
    for (int place = 0; place < facts; ++place) {
        auto* label = new QuietLabel(QuietLabel::Tone::Normal, 1.0, this);
        m_facts.append(label);
        row->addWidget(label);
    }
}

} // namespace quillon::ui
