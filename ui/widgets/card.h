#pragma once

#include <QPainterPath>
#include <QWidget>

namespace quillon::ui {

/// Rounded rectangle with a hairline that lies behind a column of frames, or a plate behind a column of values.
class Card : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { Card, Plate };

    explicit Card(Kind kind, QWidget* parent = nullptr);

    [[nodiscard]] Kind Shape() const noexcept { return m_kind; }

    /// What lies inside the hairline, in the parent's coordinates: a tinted cell on a plate keeps to it.
    [[nodiscard]] QPainterPath Inside() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double Radius() const;

    Kind m_kind;
};

/// Line of one pixel, in the hairline's colour; in the middle when it is given more room.
class Hairline : public QWidget
{
    Q_OBJECT

public:
    explicit Hairline(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon::ui
