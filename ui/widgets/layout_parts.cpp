#include "ui/widgets/layout_parts.h"

#include "ui/widgets/looks.h"
#include "ui/widgets/quiet_label.h"

#include <QHBoxLayout>

namespace quillon::ui {

QHBoxLayout* FieldRow(const QList<QWidget*>& widgets)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(BaseUnit() / 2);
    for (QWidget* widget : widgets) {
        row->addWidget(widget, widget == widgets.first() ? 1 : 0);
    }
    return row;
}

QLabel* FieldLabel(const QString& text, QWidget* buddy, QWidget* parent)
{
    auto* label = new QuietLabel(QuietLabel::Tone::Quiet, 1.0, parent);
    label->setText(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace quillon::ui
