#include "ui/widgets/spin_control.h"

#include "ui/widgets/looks.h"
#include "ui/widgets/spoken_spin.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QHoverEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace quillon::ui {

namespace {

constexpr double kWidthOfHeight = 1.15;
constexpr double kChevronHalfWidth = 0.26;
constexpr double kChevronRise = 0.55;
constexpr double kHoverTint = 0.20;
constexpr double kPressedTint = 0.40;
constexpr double kFocusWidth = 1.6;
constexpr double kPanelRadius = 2;
constexpr int kWheelStep = 120;

} // namespace

SpinControl::SpinControl(const SpinRange& range, SpinLook look, QWidget* parent)
    : QAbstractSlider(parent)
    , m_look(look)
{
    QAccessible::installFactory(MakeSpokenSpin); // any further call is without effect
    setOrientation(Qt::Vertical);
    setRange(range.lowest, range.highest);
    setSingleStep(range.arrowStep);
    setPageStep(range.pageStep);
    setValue(range.start);
    // By Tab and click, not by the wheel: turning it over a window that scrolls must not change a figure.
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

QSize SpinControl::sizeHint() const
{
    const double height = QFontMetricsF(font()).height();
    return {static_cast<int>(std::ceil(height * kWidthOfHeight)), static_cast<int>(std::ceil(height)) + BaseUnit()};
}

QSize SpinControl::minimumSizeHint() const
{
    return sizeHint();
}

QRect SpinControl::UpArrow() const
{
    return {0, 0, width(), height() / 2};
}

QRect SpinControl::DownArrow() const
{
    return {0, height() / 2, width(), height() - height() / 2};
}

SpinControl::Arrow SpinControl::ArrowAt(QPoint position) const
{
    if (UpArrow().contains(position)) {
        return Arrow::Up;
    }
    return DownArrow().contains(position) ? Arrow::Down : Arrow::None;
}

bool SpinControl::CanMove(Arrow arrow) const
{
    return arrow == Arrow::Up ? value() > minimum() : value() < maximum();
}

void SpinControl::Repeat(Arrow arrow)
{
    if (arrow == Arrow::None) {
        setRepeatAction(SliderNoAction);
        return;
    }
    setRepeatAction(arrow == Arrow::Up ? SliderSingleStepSub : SliderSingleStepAdd,
                    style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold, nullptr, this),
                    style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate, nullptr, this));
}

void SpinControl::LetGo()
{
    m_held = Arrow::None;
    m_down = false;
    Repeat(Arrow::None);
    update();
}

void SpinControl::Hover(Arrow arrow)
{
    if (arrow != m_hovered) {
        m_hovered = arrow;
        update();
    }
}

bool SpinControl::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        Hover(ArrowAt(static_cast<QHoverEvent*>(event)->position().toPoint()));
        break;
    case QEvent::HoverLeave:
        Hover(Arrow::None);
        break;
    default:
        break;
    }
    return QAbstractSlider::event(event);
}

void SpinControl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        LetGo();
    }
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
    }
    QAbstractSlider::changeEvent(event);
}

void SpinControl::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_held = ArrowAt(event->position().toPoint());
    m_down = m_held != Arrow::None;
    // The repeat is set up first: a step that shows a message takes the focus away, which ends it.
    Repeat(m_held);
    update();
    if (m_down) {
        triggerAction(m_held == Arrow::Up ? SliderSingleStepSub : SliderSingleStepAdd);
    }
}

void SpinControl::mouseMoveEvent(QMouseEvent* event)
{
    if (m_held == Arrow::None) {
        return;
    }
    const bool down = ArrowAt(event->position().toPoint()) == m_held;
    if (down != m_down) {
        m_down = down;
        Repeat(down ? m_held : Arrow::None);
        update();
    }
}

void SpinControl::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        LetGo();
    } else {
        event->ignore();
    }
}

void SpinControl::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        triggerAction(SliderSingleStepSub);
        break;
    case Qt::Key_Down:
        triggerAction(SliderSingleStepAdd);
        break;
    case Qt::Key_PageUp:
        triggerAction(SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        triggerAction(SliderPageStepAdd);
        break;
    case Qt::Key_Home:
        triggerAction(SliderToMinimum);
        break;
    case Qt::Key_End:
        triggerAction(SliderToMaximum);
        break;
    default:
        event->ignore();
        break;
    }
}

void SpinControl::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    m_wheelTurn += event->angleDelta().y();
    for (; m_wheelTurn >= kWheelStep; m_wheelTurn -= kWheelStep) {
        triggerAction(SliderSingleStepSub);
    }
    for (; m_wheelTurn <= -kWheelStep; m_wheelTurn += kWheelStep) {
        triggerAction(SliderSingleStepAdd);
    }
    event->accept();
}

void SpinControl::focusOutEvent(QFocusEvent* event)
{
    LetGo();
    m_wheelTurn = 0;
    QAbstractSlider::focusOutEvent(event);
}

void SpinControl::hideEvent(QHideEvent* event)
{
    LetGo();
    QAbstractSlider::hideEvent(event);
}

void SpinControl::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionButton panel;
    panel.initFrom(this);
    panel.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintHalf(painter, panel, Arrow::Up);
    PaintHalf(painter, panel, Arrow::Down);
    painter.fillRect(QRectF(1, DownArrow().top() - 0.5, width() - 2, 1), HairlineColor(palette()));
    PaintChevrons(painter, Arrow::Up);
    PaintChevrons(painter, Arrow::Down);
    if (hasFocus()) {
        constexpr double half = kFocusWidth / 2;
        painter.setPen(QPen(FocusColor(palette()), kFocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), kPanelRadius, kPanelRadius);
    }
}

void SpinControl::PaintHalf(QPainter& painter, const QStyleOptionButton& panel, Arrow arrow) const
{
    const bool pressed = m_down && m_held == arrow;
    const bool hovered = m_hovered == arrow && m_held == Arrow::None && CanMove(arrow);
    QStyleOptionButton half = panel;
    half.state |= pressed ? QStyle::State_Sunken : QStyle::State_Raised;

    painter.save();
    painter.setClipRect(arrow == Arrow::Up ? UpArrow() : DownArrow());
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &half, &painter, this);
    if (isEnabled() && (pressed || hovered)) {
        QColor tint = palette().color(QPalette::Active, QPalette::Highlight);
        tint.setAlphaF(static_cast<float>(pressed ? kPressedTint : kHoverTint));
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kPanelRadius - 1, kPanelRadius - 1);
    }
    painter.restore();
}

void SpinControl::PaintChevrons(QPainter& painter, Arrow arrow) const
{
    const QPalette::ColorGroup group = isEnabled() && CanMove(arrow) ? QPalette::Active : QPalette::Disabled;
    const double pen = std::max(1.4, QFontMetricsF(font()).height() / 11);
    const double halfWidth = width() * kChevronHalfWidth;
    const double rise = halfWidth * kChevronRise * (arrow == Arrow::Up ? 1 : -1);
    const QPointF middle = QRectF(arrow == Arrow::Up ? UpArrow() : DownArrow()).center();
    painter.setPen(QPen(palette().color(group, QPalette::ButtonText), pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);

    const double gap = m_look == SpinLook::Coarse ? pen * 1.15 : 0;
    for (const double shift : m_look == SpinLook::Coarse ? QList<double>{-gap, gap} : QList<double>{0}) {
        const QPointF center = middle + QPointF(0, shift);
        painter.drawPolyline(QPolygonF{center + QPointF(-halfWidth, rise / 2), center + QPointF(0, -rise / 2),
                                       center + QPointF(halfWidth, rise / 2)});
    }
}

} // namespace quillon::ui
