#pragma once

#include "engine/system_id.h"

#include <QWidget>

namespace quillon::ui {

enum class MarkerSize { Row, Total };

/// Triangle that points outward to its system: filled on the better side of a result row.
class ResultMarker : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool filled READ IsFilled WRITE SetFilled NOTIFY FilledChanged)

public:
    ResultMarker(engine::SystemId system, MarkerSize size, QWidget* parent = nullptr);

    [[nodiscard]] bool IsFilled() const noexcept { return m_filled; }

    void SetFilled(bool filled);
    [[nodiscard]] QSize sizeHint() const override;

signals:
    void FilledChanged(bool filled);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] double Side() const;

    engine::SystemId m_system;
    MarkerSize m_size;
    bool m_filled = false;
};

} // namespace quillon::ui
