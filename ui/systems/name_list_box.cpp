#include "ui/systems/name_list_box.h"

#include "ui/widgets/looks.h"

#include <QHelpEvent>
#include <QListView>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>

namespace quillon::ui {

namespace {

constexpr int kCharacters = 36;

} // namespace

NameListBox::NameListBox(QWidget* parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kCharacters);
    auto* names = new QListView(this);
    names->setUniformItemSizes(true);
    setView(names);
}

QString NameListBox::ShownName() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return option.currentText;
}

void NameListBox::initStyleOption(QStyleOptionComboBox* option) const
{
    QComboBox::initStyleOption(option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    // The style leaves a pixel free at either side of the name.
    option->currentText = fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width() - 2);
}

bool NameListBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && ShownName() != currentText()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainToolTip(currentText()), this);
        return true;
    }
    return QComboBox::event(event);
}

} // namespace quillon::ui
