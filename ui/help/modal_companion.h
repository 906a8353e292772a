#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>

class QWidget;

namespace quillon::ui {

/// Keeps a window usable while a modal one is open: it counts as belonging to the modal window that came last, and to
/// its own owner again when there is none.
class ModalCompanion : public QObject
{
    Q_OBJECT

public:
    /// @param window  owns this object
    explicit ModalCompanion(QWidget* window);

    /// Joins the modal window of now; to be called before the window is shown.
    void Follow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowLater();

    QWidget& m_window;
    QPointer<QWindow> m_joined;
};

} // namespace quillon::ui
