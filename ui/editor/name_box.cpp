#include "ui/editor/name_box.h"

#include "ui/widgets/list_keys.h"

#include <QKeyEvent>

namespace quillon::ui {

NameBox::NameBox(QWidget* parent)
    : QLineEdit(parent)
{
    setEnabled(false);
}

void NameBox::Ready()
{
    setEnabled(true);
    setFocus();
    selectAll();
}

void NameBox::Empty()
{
    clear();
    setEnabled(false);
}

void NameBox::keyPressEvent(QKeyEvent* event)
{
    if (!IsEnter(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat()) {
        emit EnterPressed();
    }
}

} // namespace quillon::ui
