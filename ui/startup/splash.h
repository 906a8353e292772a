#pragma once

#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>

namespace quillon::ui {

/// The program's first window: carries the notices, has the main window shown after a wait and goes away after another.
/// A click, a key or closing it ends the waiting at once.
class Splash : public QWidget
{
    Q_OBJECT

public:
    /// How long the window stands alone, and how long it then stays with the main window.
    struct Waits
    {
        std::chrono::milliseconds alone{2500};
        std::chrono::milliseconds together{2500};
    };

    /// @param showMainWindow  is called exactly once; outlives this object.
    Splash(std::function<void()> showMainWindow, const Waits& waits, QWidget* parent = nullptr);

    /// Shows the window and begins to wait; events are handled meanwhile.
    void Open();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void LayOut();
    void FitToScreen();
    void PlaceInMiddle();
    void EndWait();
    void Unload();
    void ShowMainWindow();

    std::function<void()> m_showMainWindow;
    Waits m_waits;
    QTimer m_timer;
    bool m_isMainWindowShown = false;
};

} // namespace quillon::ui
