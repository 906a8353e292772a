#pragma once

#include <QAbstractSlider>

#include <functional>
#include <utility>

class QStyleOptionButton;

namespace quillon::ui {

/// Stored properties of a spin control. Positions count downwards: the upper arrow lowers the position, which raises
/// the value shown.
struct SpinRange
{
    int lowest;
    int highest;
    int start;
    int arrowStep;
    int pageStep;
};

enum class SpinLook { Coarse, Fine };

/// Two arrows, one above the other, beside a text box. value() is the stored position.
/// Keys: Up and Page Up lower the position by the arrow and page step, Down and Page Down raise it, Home and End go to
/// the lowest and highest position; the wheel moves by the arrow step, and only when the control has the focus.
class SpinControl : public QAbstractSlider
{
    Q_OBJECT

public:
    SpinControl(const SpinRange& range, SpinLook look, QWidget* parent = nullptr);

    /// What a position stands for is told to screen readers in place of it.
    void SetFigure(std::function<double(int position)> figure) { m_figure = std::move(figure); }

    /// The figure that a position stands for, where that is known, and else the position.
    [[nodiscard]] double FigureAt(int position) const { return m_figure ? m_figure(position) : position; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Clickable halves in the control's coordinates.
    [[nodiscard]] QRect UpArrow() const;
    [[nodiscard]] QRect DownArrow() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum class Arrow { None, Up, Down };

    [[nodiscard]] Arrow ArrowAt(QPoint position) const;
    [[nodiscard]] bool CanMove(Arrow arrow) const;
    void Repeat(Arrow arrow);
    void LetGo();
    void Hover(Arrow arrow);
    void PaintHalf(QPainter& painter, const QStyleOptionButton& panel, Arrow arrow) const;
    void PaintChevrons(QPainter& painter, Arrow arrow) const;

    SpinLook m_look;
    std::function<double(int position)> m_figure;
    Arrow m_hovered = Arrow::None;
    Arrow m_held = Arrow::None; ///< arrow that the mouse button went down on
    bool m_down = false;        ///< the pointer is still on it
    int m_wheelTurn = 0;        ///< turn that has not made a whole step yet, eighths of a degree
};

} // namespace quillon::ui
