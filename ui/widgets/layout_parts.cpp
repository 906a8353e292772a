#include "ui/widgets/layout_parts.h"

#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/quiet_label.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

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

QGridLayout* InCard(QWidget* frame)
{
    auto* card = new Card(Card::Kind::Card, frame->parentWidget());
    card->lower();
    auto* cell = new QGridLayout;
    cell->addWidget(card, 0, 0);

    auto* inset = new QVBoxLayout;
    const int margin = 5 * BaseUnit() / 2;
    inset->setContentsMargins(margin, 2 * BaseUnit(), margin, margin);
    inset->addWidget(frame);
    cell->addLayout(inset, 0, 0);
    return cell;
}

void FitButtons(const QList<QPushButton*>& buttons)
{
    int width = 0;
    for (const QPushButton* button : buttons) {
        const QSize caption = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        width = std::max(width, caption.width() + 5 * BaseUnit());
    }
    for (QPushButton* button : buttons) {
        button->setMinimumWidth(width);
    }
}

QHBoxLayout* ButtonRow(const QList<QPushButton*>& left, const QList<QPushButton*>& right)
{
    FitButtons(left + right);
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * BaseUnit());
    for (QPushButton* button : left + right) {
        if (button == right.first()) {
            row->addStretch(1);
        }
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    return row;
}

} // namespace quillon::ui
