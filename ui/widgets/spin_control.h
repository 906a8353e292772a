#pragma once

#include <QAbstractSlider>

namespace quillon::ui {

/// Stored properties of a spin control. Positions count downwards: the upper arrow lowers the position, which raises
/// the value shown.
struct SpinRange {
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

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Clickable halves in the control's coordinates.
    [[nodiscard]] QRect UpArrow() const;
    [[nodiscard]] QRect DownArrow() const;
};

} // namespace quillon::ui
