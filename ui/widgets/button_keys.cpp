#include "ui/widgets/button_keys.h"

#include "ui/widgets/list_keys.h"

#include <QKeyEvent>
#include <QPushButton>

namespace quillon::ui {

bool PressFocusedButton(const QWidget& window, const QKeyEvent& event)
{
    auto* button = qobject_cast<QPushButton*>(window.focusWidget());
    if (button == nullptr || !IsEnter(event)) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        button->click();
    }
    return true;
}

} // namespace quillon::ui
