#pragma once

#include <QCheckBox>

namespace quillon::ui {

/// Check box of a band. As given, only the left mouse button asks about the band's gain; the space bar and the window
/// itself change the box without a question.
class BandBox : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

signals:
    /// The left mouse button has changed the box.
    void ChangedByMouse();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

} // namespace quillon::ui
