#pragma once

#include <QWidget>

namespace quillon::ui {

/// Rounded rectangle with a hairline that lies behind a column of frames, or a plate behind a column of values.
class Card : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { Card, Plate };

    explicit Card(Kind kind, QWidget* parent = nullptr);

private:
    Kind m_kind;
};

/// Line of one pixel, in the hairline's colour.
class Hairline : public QWidget
{
    Q_OBJECT

public:
    explicit Hairline(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;
};

} // namespace quillon::ui
