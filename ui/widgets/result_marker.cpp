#include "ui/widgets/result_marker.h"

#include "ui/widgets/looks.h"
#include "ui/widgets/spoken.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon::ui {

namespace {

constexpr double kSideOfAscent = 0.85;
constexpr double kTotalFactor = 1.4;
/// Height of a triangle with three equal sides.
constexpr double kHeightOfSide = 0.866;

} // namespace

ResultMarker::ResultMarker(engine::SystemId system, MarkerSize size, QWidget* parent)
    : QWidget(parent)
    , m_system(system)
    , m_size(size)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    SetSpokenRole(*this, QAccessible::Graphic);
}

void ResultMarker::SetFilled(bool filled)
{
    if (filled == m_filled) {
        return;
    }
    m_filled = filled;
    update();
    emit FilledChanged(filled);
}

double ResultMarker::Side() const
{
    return QFontMetricsF(font()).ascent() * kSideOfAscent * (m_size == MarkerSize::Total ? kTotalFactor : 1.0);
}

QSize ResultMarker::sizeHint() const
{
    const int side = static_cast<int>(std::ceil(Side())) + 2;
    return {side, side};
}

void ResultMarker::paintEvent(QPaintEvent* /*event*/)
{
    const double pen = std::max(1.2, Side() / 9);
    const double half = (Side() - pen) / 2;
    const double reach = half * kHeightOfSide * (m_system == engine::SystemId::One ? -1 : 1);
    const QPointF middle = QRectF(rect()).center();
    const QColor color = m_filled ? FilledMarkerColor(palette()) : EmptyMarkerColor(palette());

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(m_filled ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPolygon(
        QPolygonF{middle + QPointF(reach, 0), middle + QPointF(-reach, half), middle + QPointF(-reach, -half)});
}

void ResultMarker::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

} // namespace quillon::ui
