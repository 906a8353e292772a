#include "ui/main/command_frame.h"

#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace quillon::ui {

CommandFrame::CommandFrame(QWidget* parent)
    : TitledFrame({}, parent)
{
    setObjectName(QStringLiteral("FrameControls"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * BaseUnit());
    for (const CommandButton& button : kCommandButtons) {
        if (button.command == Command::Close) {
            row->addStretch(1);
        }
        auto* made = new QPushButton(QString::fromLatin1(button.caption), this);
        made->setObjectName(QString::fromLatin1(button.name));
        made->setToolTip(QString::fromLatin1(button.toolTip));
        const auto give = [this, &button] { emit Given(button.command); };
        connect(made, &QPushButton::clicked, this, give);
        if (*button.shortcut != '\0') {
            // Not the button's own shortcut: that would take the place of the caption's access key.
            const QKeySequence keys(QString::fromLatin1(button.shortcut));
            connect(new QShortcut(keys, made), &QShortcut::activated, this, give);
        }
        row->addWidget(made);
        m_buttons.append(made);
    }
    FitButtons(m_buttons);
}

QList<QWidget*> CommandFrame::TabOrder() const
{
    return {m_buttons.begin(), m_buttons.end()};
}

void CommandFrame::changeEvent(QEvent* event)
{
    TitledFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        FitButtons(m_buttons);
    }
}

} // namespace quillon::ui
