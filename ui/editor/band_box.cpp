#include "ui/editor/band_box.h"

#include <QMouseEvent>

namespace quillon::ui {

void BandBox::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasChecked = isChecked();
    QCheckBox::mouseReleaseEvent(event);
    if (isChecked() != wasChecked) {
        emit ChangedByMouse();
    }
}

} // namespace quillon::ui
