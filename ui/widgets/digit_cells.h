#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

namespace quillon::ui {

/// A number's text in its three parts; whatever character is neither digit nor sign separates them.
struct NumberParts
{
    QString whole;     ///< sign included
    QString separator; ///< empty when the number has no fraction
    QString fraction;
};

[[nodiscard]] NumberParts SplitNumber(const QString& text);

/// Measures and paints numbers digit by digit in cells of the font's widest digit, so that figures stand below one
/// another in fonts whose digits differ in width.
class DigitCells
{
public:
    explicit DigitCells(const QFont& font);

    [[nodiscard]] double Cell() const noexcept { return m_cell; }

    [[nodiscard]] double Width(const QString& text) const;
    [[nodiscard]] double Height() const;
    /// Baseline that centres the digits in a height.
    [[nodiscard]] double Baseline(double height) const;

    /// Paints a number with the middle of its separator, or of the place it would have, on x.
    void Paint(QPainter& painter, const NumberParts& parts, QPointF separator) const;

private:
    void PaintRun(QPainter& painter, const QString& text, QPointF start) const;
    [[nodiscard]] double Advance(QChar character) const;

    QFont m_font;
    double m_cell = 0;
};

} // namespace quillon::ui
