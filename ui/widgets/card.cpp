#include "ui/widgets/card.h"

#include "ui/widgets/looks.h"

#include <QPainter>

namespace quillon::ui {

namespace {

constexpr double kCardRadius = 1.25;
constexpr double kPlateRadius = 1.0;

} // namespace

Card::Card(Kind kind, QWidget* parent)
    : QWidget(parent)
    , m_kind(kind)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

double Card::Radius() const
{
    return BaseUnit() * (m_kind == Kind::Card ? kCardRadius : kPlateRadius);
}

QPainterPath Card::Inside() const
{
    QPainterPath path;
    path.addRoundedRect(QRectF(geometry()).adjusted(1, 1, -1, -1), Radius() - 1, Radius() - 1);
    return path;
}

void Card::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(HairlineColor(palette()), 1));
    painter.setBrush(m_kind == Kind::Card ? CardColor(palette()) : palette().color(QPalette::Active, QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius(), Radius());
}

Hairline::Hairline(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize Hairline::sizeHint() const
{
    return {1, 1};
}

void Hairline::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(0, (height() - 1) / 2, width(), 1, HairlineColor(palette()));
}

} // namespace quillon::ui
