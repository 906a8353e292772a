#include "ui/widgets/number_box.h"

#include "ui/widgets/digit_cells.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/mark_painting.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QInputMethodEvent>
#include <QPainter>
#include <QStyleOptionFrame>

#include <cmath>

namespace quillon::ui {

namespace {

constexpr double kDialledFactor = 1.15;
/// Blank that a line edit keeps at either side of its text, and the caret.
constexpr int kInnerMargins = 2 * 2 + 1;

} // namespace

NumberBox::NumberBox(int digits, QWidget* parent)
    : QLineEdit(parent)
    , m_digits(digits)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void NumberBox::Mark(const QString& why)
{
    m_marked = true;
    m_why = why;
    Say();
}

void NumberBox::ClearMark()
{
    m_marked = false;
    m_why.clear();
    Say();
}

void NumberBox::SetHint(const QString& text)
{
    m_hint = text;
    Say();
}

void NumberBox::SetInk(const QColor& color, const QString& warning)
{
    m_warning = warning;
    Say();
    if (m_ink != color) {
        m_ink = color;
        ApplyInk(color);
    }
}

void NumberBox::ApplyInk(const QColor& color)
{
    QPalette own;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        own.setColor(group, QPalette::Base, Qt::white);
        own.setColor(group, QPalette::Text, color);
    }
    setPalette(own);
}

void NumberBox::Say()
{
    QStringList words{m_warning, m_hint};
    words.removeAll(QString());
    Explain(*this, m_marked ? m_why : words.join(u'\n'));
    update();
}

void NumberBox::SetDialled(bool dialled)
{
    m_dialled = dialled;
    ApplyFont();
}

void NumberBox::ApplyFont()
{
    setFont(m_dialled ? ScaledFont(kDialledFactor, QFont::DemiBold) : QFont());
    updateGeometry();
}

void NumberBox::SetByArrowsOnly()
{
    setReadOnly(true);
    m_byArrowsOnly = true;
    update();
}

QSize NumberBox::sizeHint() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const int digits = static_cast<int>(std::ceil(m_digits * DigitCells(font()).Cell()));
    const QSize inner(digits + kInnerMargins + BaseUnit(), 0);
    return {style()->sizeFromContents(QStyle::CT_LineEdit, &option, inner, this).width(),
            QLineEdit::sizeHint().height()};
}

QSize NumberBox::minimumSizeHint() const
{
    return sizeHint();
}

bool NumberBox::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange && m_dialled) {
        ApplyFont();
    }
    return QLineEdit::event(event);
}

void NumberBox::inputMethodEvent(QInputMethodEvent* event)
{
    // Qt keeps keys out of a read-only box, but not what dead keys and input methods put together.
    if (isReadOnly()) {
        event->ignore();
        return;
    }
    QLineEdit::inputMethodEvent(event);
}

void NumberBox::initStyleOption(QStyleOptionFrame* option) const
{
    QLineEdit::initStyleOption(option);
    if (m_byArrowsOnly) {
        option->state &= ~QStyle::State_ReadOnly;
    } else if (isReadOnly()) {
        // Made once per palette: a fresh one at each painting would fill the styles' caches.
        if (m_followingMadeFrom != option->palette.cacheKey()) {
            m_followingMadeFrom = option->palette.cacheKey();
            m_following = option->palette;
            m_following.setBrush(QPalette::Base, option->palette.brush(QPalette::Window));
        }
        m_following.setCurrentColorGroup(option->palette.currentColorGroup());
        option->palette = m_following;
    }
}

void NumberBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!m_marked && m_warning.isEmpty()) {
        return;
    }
    QPainter painter(this);
    PaintWarning(painter);
    if (m_marked) {
        PaintMarkOutline(painter, rect(), palette().color(QPalette::Active, QPalette::Text));
    }
}

void NumberBox::PaintWarning(QPainter& painter) const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRectF room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QFontMetricsF metrics(font());
    const double side = std::ceil(metrics.capHeight() * 1.15);
    const double gap = BaseUnit() / 2.0 + 1;
    const double text = metrics.horizontalAdvance(displayText()) + kInnerMargins;
    const QColor color = palette().color(QPalette::Active, QPalette::Text);

    if (side + 2 * gap + text <= room.width()) {
        PaintWarningTriangle(painter, {room.left() + gap, room.center().y() - side / 2, side, side}, color);
    } else if (!m_marked) {
        const double width = std::min(text, room.width());
        painter.fillRect(QRectF(room.right() - width, height() - 5.0, width, 2), color);
    }
}

} // namespace quillon::ui
