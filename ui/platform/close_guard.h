#pragma once

#include <QObject>

class QWidget;

namespace quillon::ui {

/// Leaves a window no way out but its own: Close is gray in its system menu where the desktop has one, and neither the
/// close box in its title bar, nor Alt+F4, nor Esc do anything.
class CloseGuard : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window and lives as long. The window must not be on the screen yet.
    explicit CloseGuard(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillon::ui
