#include "ui/widgets/digit_cells.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace quillon::ui {

NumberParts SplitNumber(const QString& text)
{
    const auto* const end = std::ranges::find_if(
        text, [](QChar c) { return !c.isDigit() && c != u'-' && c != u'+' && c != QChar(0x2212); });
    const qsizetype place = std::distance(text.begin(), end);
    return {text.left(place), text.mid(place, 1), text.mid(place + 1)};
}

DigitCells::DigitCells(const QFont& font)
    : m_font(font)
{
    const QFontMetricsF metrics(font);
    for (char digit = '0'; digit <= '9'; ++digit) {
        m_cell = std::max(m_cell, metrics.horizontalAdvance(QLatin1Char(digit)));
    }
}

double DigitCells::Advance(QChar character) const
{
    return character.isDigit() ? m_cell : QFontMetricsF(m_font).horizontalAdvance(character);
}

double DigitCells::Width(const QString& text) const
{
    double width = 0;
    for (const QChar character : text) {
        width += Advance(character);
    }
    return width;
}

double DigitCells::Height() const
{
    return QFontMetricsF(m_font).height();
}

double DigitCells::Baseline(double height) const
{
    const QFontMetricsF metrics(m_font);
    return (height + metrics.ascent() - metrics.descent()) / 2;
}

void DigitCells::Paint(QPainter& painter, const NumberParts& parts, QPointF separator) const
{
    // A number without fraction ends where the separator would begin.
    const double half = Width(parts.separator.isEmpty() ? QStringLiteral(".") : parts.separator) / 2;
    painter.setFont(m_font);
    PaintRun(painter, parts.whole, separator - QPointF(half + Width(parts.whole), 0));
    PaintRun(painter, parts.separator, separator - QPointF(half, 0));
    PaintRun(painter, parts.fraction, separator + QPointF(half, 0));
}

void DigitCells::PaintRun(QPainter& painter, const QString& text, QPointF start) const
{
    const QFontMetricsF metrics(m_font);
    for (const QChar character : text) {
        const double advance = Advance(character);
        painter.drawText(start + QPointF((advance - metrics.horizontalAdvance(character)) / 2, 0), QString(character));
        start.rx() += advance;
    }
}

} // namespace quillon::ui
