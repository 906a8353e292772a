#include "ui/startup/notice_label.h"

#include "ui/widgets/looks.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetricsF>
#include <QScreen>
#include <QtMath>

#include <algorithm>

namespace quillon::ui {

NoticeLabel::NoticeLabel(Tone tone, const Column& column, QWidget* parent)
    : QuietLabel(tone, 1.0, parent)
    , m_column(column)
{
    setWordWrap(true);
}

QSize NoticeLabel::sizeHint() const
{
    const int wanted = qCeil(m_column.characters * QFontMetricsF(QApplication::font()).averageCharWidth());
    const int rest = screen()->availableSize().width() - m_column.beside * BaseUnit();
    const int width = std::max(std::min(wanted, rest), BaseUnit());
    return {width, heightForWidth(width)};
}

QSize NoticeLabel::minimumSizeHint() const
{
    return sizeHint();
}

bool NoticeLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        updateGeometry(); // the column is as wide as that font has it, whatever the label's own is
    }
    return QuietLabel::event(event);
}

} // namespace quillon::ui
