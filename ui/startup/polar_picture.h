#pragma once

#include <QWidget>

namespace quillon::ui {

/// What the program is about, without words: the lobes of two antennas on a polar grid, one outlined and one filled as
/// the result markers are.
class PolarPicture : public QWidget
{
    Q_OBJECT

public:
    /// @param units  side of the picture in base units
    PolarPicture(int units, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_units;
};

} // namespace quillon::ui
