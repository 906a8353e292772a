#include "ui/widgets/quiet_label.h"

#include "ui/widgets/looks.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace quillon::ui {

namespace {

/// An eliding label gives way down to so many characters before the ellipsis.
constexpr int kLeastCharacters = 3;

} // namespace

QuietLabel::QuietLabel(Tone tone, double factor, QWidget* parent)
    : QLabel(parent)
    , m_tone(tone)
    , m_factor(factor)
{
    setTextFormat(Qt::PlainText);
    ApplyFont();
}

void QuietLabel::ApplyFont()
{
    if (m_factor != 1.0) {
        setFont(ScaledFont(m_factor));
    }
}

void QuietLabel::SetElides(bool elides, Qt::TextElideMode where)
{
    m_elides = elides;
    m_where = where;
    updateGeometry();
    update();
}

QString QuietLabel::ShownText() const
{
    return m_elides ? fontMetrics().elidedText(text(), m_where, contentsRect().width()) : text();
}

int QuietLabel::LineHeight() const
{
    return fontMetrics().height() + 2 * margin();
}

QSize QuietLabel::sizeHint() const
{
    return QLabel::sizeHint().expandedTo({0, LineHeight()});
}

QSize QuietLabel::minimumSizeHint() const
{
    if (!m_elides) {
        return QLabel::minimumSizeHint().expandedTo({0, LineHeight()});
    }
    const QString least = text().left(kLeastCharacters) + QChar(0x2026);
    return {std::min(sizeHint().width(), fontMetrics().horizontalAdvance(least) + 2 * margin()), LineHeight()};
}

bool QuietLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        ApplyFont();
    }
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && ShownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainToolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void QuietLabel::paintEvent(QPaintEvent* /*event*/)
{
    int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    flags |= wordWrap() ? Qt::TextWordWrap : 0;
    flags |= buddy() != nullptr ? Qt::TextShowMnemonic : 0;

    QPainter painter(this);
    painter.setPen(m_tone == Tone::Quiet ? QuietColor(palette())
                                         : palette().color(QPalette::Active, QPalette::WindowText));
    const int inset = margin();
    painter.drawText(contentsRect().adjusted(inset, inset, -inset, -inset), flags, ShownText());
}

} // namespace quillon::ui
