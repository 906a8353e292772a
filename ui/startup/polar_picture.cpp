#include "ui/startup/polar_picture.h"

#include "ui/widgets/looks.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace quillon::ui {

namespace {

// Lengths in outer radii of the grid.
constexpr std::array kRings{1.0, 0.65, 0.32};
constexpr QRectF kWeakLobe{-0.66, -0.31, 0.66, 0.62};
constexpr QRectF kStrongLobe{0, -0.37, 0.98, 0.74};
constexpr double kLobeLine = 0.028;

/// The grid shows through.
constexpr double kLobeOpacity = 0.85;

void PaintGrid(QPainter& painter)
{
    for (const double radius : kRings) {
        painter.drawEllipse(QPointF(), radius, radius);
    }
    painter.drawLine(QPointF(-1, 0), QPointF(1, 0));
    painter.drawLine(QPointF(0, -1), QPointF(0, 1));
}

} // namespace

PolarPicture::PolarPicture(int units, QWidget* parent)
    : QWidget(parent)
    , m_units(units)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize PolarPicture::sizeHint() const
{
    const int side = m_units * BaseUnit();
    return {side, side};
}

void PolarPicture::paintEvent(QPaintEvent* /*event*/)
{
    const double radius = (std::min(width(), height()) - 2) / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.scale(radius, radius);

    QPen grid(HairlineColor(palette()), 1);
    grid.setCosmetic(true);
    painter.setPen(grid);
    PaintGrid(painter);

    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::WindowText), kLobeLine));
    painter.drawEllipse(kWeakLobe);

    painter.setOpacity(kLobeOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(FilledMarkerColor(palette()));
    painter.drawEllipse(kStrongLobe);
}

} // namespace quillon::ui
