#include "ui/widgets/mark_painting.h"

#include "ui/widgets/looks.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace quillon::ui {

namespace {

constexpr double kOutlineWidth = 2;
constexpr double kOutlineRadius = 2.5;

} // namespace

void PaintMarkOutline(QPainter& painter, const QRectF& control, const QColor& color)
{
    constexpr double half = kOutlineWidth / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, kOutlineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(control.adjusted(half, half, -half, -half), kOutlineRadius, kOutlineRadius);
    painter.restore();
}

void PaintWarningTriangle(QPainter& painter, const QRectF& square, const QColor& color)
{
    const double side = square.height();
    const double pen = std::max(1.0, side / 10);
    const QRectF body = square.adjusted(pen / 2, pen, -pen / 2, -pen);
    const double middle = body.center().x();

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF{{middle, body.top()}, body.bottomRight(), body.bottomLeft()});
    painter.drawLine(QPointF(middle, body.top() + body.height() * 0.40),
                     QPointF(middle, body.top() + body.height() * 0.62));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(middle, body.top() + body.height() * 0.82), pen * 0.6, pen * 0.6);
    painter.restore();
}

void Explain(QWidget& control, const QString& words)
{
    control.setToolTip(PlainToolTip(words));
    control.setAccessibleDescription(words);
}

} // namespace quillon::ui
