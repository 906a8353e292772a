#include "ui/systems/pair_dialog.h"

#include "ui/widgets/button_keys.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/spoken.h"

#include <QGridLayout>
#include <QPushButton>

namespace quillon::ui {

namespace {

enum Row { TopRow, SystemsRow, ButtonsRow };

constexpr int kColumns = 2;

} // namespace

PairDialog::PairDialog(const QString& lines, QWidget* parent)
    : QDialog(parent)
    , m_frames{new SystemFrame(engine::SystemId::One, lines, this), new SystemFrame(engine::SystemId::Two, lines, this)}
{
}

void PairDialog::LayOut(TitledFrame* fieldFrame, QWidget* field, const QList<QPushButton*>& buttons)
{
    m_buttons = buttons;
    auto* inFrame = new QVBoxLayout(fieldFrame);
    inFrame->setContentsMargins(0, 0, 0, 0);
    inFrame->addWidget(field);
    SetSpokenName(*field, fieldFrame->title());

    const int unit = BaseUnit();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(3 * unit, 3 * unit, 3 * unit, 3 * unit);
    grid->setSpacing(2 * unit);
    grid->addLayout(InCard(fieldFrame), TopRow, 0, 1, kColumns);
    grid->addLayout(InCard(m_frames[engine::SystemId::One]), SystemsRow, 0);
    grid->addLayout(InCard(m_frames[engine::SystemId::Two]), SystemsRow, 1);
    grid->addLayout(ButtonRow({}, buttons), ButtonsRow, 0, 1, kColumns, Qt::AlignBottom);
    grid->setRowStretch(ButtonsRow, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    QWidget* before = field;
    for (QPushButton* button : buttons) {
        setTabOrder(before, button);
        before = button;
    }
}

void PairDialog::FitButtons()
{
    ui::FitButtons(m_buttons);
}

void PairDialog::keyPressEvent(QKeyEvent* event)
{
    if (!PressFocusedButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon::ui
