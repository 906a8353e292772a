#include "ui/widgets/value_label.h"

#include "ui/widgets/card.h"
#include "ui/widgets/digit_cells.h"
#include "ui/widgets/looks.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillon::ui {

namespace {

constexpr double kRowFactor = 1.1;
constexpr double kTotalFactor = 1.4;
constexpr double kUnitFactor = 0.9;

/// Room of a column whatever its values are: nothing moves while they stay within it.
constexpr int kWholeDigits = 5;
constexpr int kFractionDigits = 4;

QFont ValueFont(ValueLabel::Size size, bool bold)
{
    const double factor = size == ValueLabel::Size::Total ? kTotalFactor : kRowFactor;
    return SansSerif(ScaledFont(factor, bold ? QFont::Bold : QFont::Normal));
}

/// Widths that all labels of a column agree on, whatever their own size and value.
struct Column
{
    double margin;
    double whole;
    double separator;
    double fraction;
    double unit;

    [[nodiscard]] double Narrow() const { return 2 * margin + whole + separator + fraction; }

    [[nodiscard]] double Full() const { return Narrow() + unit; }

    /// Left of the separator's middle, margin included.
    [[nodiscard]] double UsualLeft() const { return margin + whole + separator / 2; }
};

Column ColumnWidths()
{
    const DigitCells rows(ValueFont(ValueLabel::Size::Row, true));
    const DigitCells total(ValueFont(ValueLabel::Size::Total, true));
    const double unit = QFontMetricsF(ScaledFont(kUnitFactor)).horizontalAdvance(QStringLiteral("W"));
    return {BaseUnit() * 1.0, kWholeDigits * total.Cell(), total.Width(QStringLiteral(".")),
            kFractionDigits * rows.Cell(), BaseUnit() + unit};
}

/// Place of the separator in a column of some width: the unit gives way first, and what is left over goes half to
/// either side.
double SeparatorIn(const Column& column, double width)
{
    return column.UsualLeft() + std::max(0.0, width - column.Full()) / 2;
}

/// Room that a number takes left of the separator's middle.
double LeftOf(const DigitCells& cells, const NumberParts& parts)
{
    return cells.Width(parts.whole) + cells.Width(QStringLiteral(".")) / 2;
}

double RightOf(const DigitCells& cells, const NumberParts& parts)
{
    return cells.Width(parts.separator) / 2 + cells.Width(parts.fraction);
}

} // namespace

ValueLabel::ValueLabel(Size size, QString unit, QWidget* parent)
    : QLabel(parent)
    , m_size(size)
    , m_unit(std::move(unit))
{
    setTextFormat(Qt::PlainText);
    ApplyFont();
}

void ValueLabel::ApplyFont()
{
    setFont(ValueFont(m_size, m_better));
}

void ValueLabel::setText(const QString& text)
{
    if (text == this->text()) {
        return;
    }
    const double before = NeededLeft();
    QLabel::setText(text);
    if (std::max(before, NeededLeft()) > ColumnWidths().UsualLeft()) {
        for (ValueLabel* label : Neighbours()) {
            label->updateGeometry();
        }
    }
}

void ValueLabel::SetBetter(bool better)
{
    if (better == m_better) {
        return;
    }
    m_better = better;
    ApplyFont();
    update();
}

void ValueLabel::SetFormula(const QString& text)
{
    setToolTip(PlainToolTip(text));
}

double ValueLabel::SeparatorX() const
{
    return SeparatorIn(ColumnWidths(), width());
}

QFont ValueLabel::PaintedFont() const
{
    const double left = SeparatorX() - BaseUnit();
    const double right = width() - SeparatorX() - BaseUnit();
    const NumberParts parts = SplitNumber(text());
    const DigitCells own(font());
    const bool fits = LeftOf(own, parts) <= left && RightOf(own, parts) <= right;
    return fits ? font() : ValueFont(Size::Row, m_better);
}

bool ValueLabel::ShowsUnit() const
{
    if (m_unit.isEmpty()) {
        return false;
    }
    const double unit = QFontMetricsF(ScaledFont(kUnitFactor)).horizontalAdvance(m_unit);
    const double room = width() - SeparatorX() - 2 * BaseUnit() - unit;
    return RightOf(DigitCells(PaintedFont()), SplitNumber(text())) <= room;
}

QList<ValueLabel*> ValueLabel::Neighbours() const
{
    return parentWidget() == nullptr ? QList<ValueLabel*>()
                                     : parentWidget()->findChildren<ValueLabel*>(QString(), Qt::FindDirectChildrenOnly);
}

double ValueLabel::NeededLeft() const
{
    // Measured once per value: every hint of every label asks all labels for it.
    if (m_measured != text()) {
        m_measured = text();
        m_neededLeft = LeftOf(DigitCells(ValueFont(Size::Row, true)), SplitNumber(text())) + BaseUnit();
    }
    return m_neededLeft;
}

int ValueLabel::HintWidth(bool withUnit) const
{
    const Column column = ColumnWidths();
    const double usual = withUnit ? column.Full() : column.Narrow();
    double needed = NeededLeft();
    for (const ValueLabel* label : Neighbours()) {
        needed = std::max(needed, label->NeededLeft());
    }
    const double missing = needed - column.UsualLeft();
    // Beyond the full width every second pixel goes to the left of the separator.
    return static_cast<int>(std::ceil(missing > 0 ? column.Full() + 2 * missing : usual));
}

QSize ValueLabel::sizeHint() const
{
    const double air = BaseUnit() * (m_size == Size::Total ? 4.0 : 2.0);
    const double height = DigitCells(ValueFont(m_size, true)).Height() + air;
    return {HintWidth(true), static_cast<int>(std::ceil(height))};
}

QSize ValueLabel::minimumSizeHint() const
{
    return {HintWidth(false), static_cast<int>(std::ceil(DigitCells(ValueFont(m_size, true)).Height()))};
}

bool ValueLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        m_measured.reset();
        ApplyFont();
        updateGeometry();
    }
    return QLabel::event(event);
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintCell(painter);
    PaintValue(painter);
    PaintUnit(painter);
}

void ValueLabel::PaintCell(QPainter& painter) const
{
    if (!m_better) {
        return;
    }
    QPainterPath cell;
    cell.addRect(rect());
    const auto cards = parentWidget() != nullptr
                           ? parentWidget()->findChildren<const Card*>(QString(), Qt::FindDirectChildrenOnly)
                           : QList<const Card*>();
    for (const Card* card : cards) {
        if (card->Shape() == Card::Kind::Plate && card->geometry().contains(geometry().center())) {
            cell = cell.intersected(card->Inside().translated(-pos()));
        }
    }
    painter.fillPath(cell, BetterColor(palette()));
}

void ValueLabel::PaintValue(QPainter& painter) const
{
    const DigitCells cells(PaintedFont());
    painter.setPen(palette().color(QPalette::Active, QPalette::Text));
    cells.Paint(painter, SplitNumber(text()), {SeparatorX(), cells.Baseline(height())});
}

void ValueLabel::PaintUnit(QPainter& painter) const
{
    if (!ShowsUnit()) {
        return;
    }
    const QFont unitFont = ScaledFont(kUnitFactor);
    const double width = QFontMetricsF(unitFont).horizontalAdvance(m_unit);
    const double baseline = DigitCells(PaintedFont()).Baseline(height());
    painter.setFont(unitFont);
    painter.setPen(QuietColor(palette()));
    painter.drawText(QPointF(this->width() - BaseUnit() - width, baseline), m_unit);
}

} // namespace quillon::ui
