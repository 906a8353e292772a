#include "ui/main/command_frame.h"

#include "ui/widgets/looks.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace quillon::ui {

CommandFrame::CommandFrame(QWidget* parent)
    : TitledFrame({}, parent)
{
    setObjectName(QStringLiteral("FrameControls"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * BaseUnit());
    for (const CommandButton& button : kCommandButtons) {
        auto* made = new QPushButton(QString::fromLatin1(button.caption), this);
        made->setObjectName(QString::fromLatin1(button.name));
        made->setToolTip(QString::fromLatin1(button.toolTip));
        connect(made, &QPushButton::clicked, this, [this, &button] { emit Given(button.command); });
        row->addWidget(made);
        m_buttons.append(made);
    }
    row->addStretch(1);
    FitButtons();
}

QList<QWidget*> CommandFrame::TabOrder() const
{
    return {m_buttons.begin(), m_buttons.end()};
}

void CommandFrame::changeEvent(QEvent* event)
{
    TitledFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        FitButtons();
    }
}

void CommandFrame::FitButtons()
{
    int widest = 0;
    for (const QPushButton* button : m_buttons) {
        const QFontMetrics metrics(button->font());
        widest = std::max(widest, metrics.size(Qt::TextShowMnemonic, button->text()).width());
    }
    for (QPushButton* button : m_buttons) {
        button->setMinimumWidth(widest + 5 * BaseUnit());
    }
}

} // namespace quillon::ui
