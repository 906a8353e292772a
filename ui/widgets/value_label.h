#pragma once

#include <QLabel>

#include <optional>

namespace quillon::ui {

/// One result value. text() is the value's text; it is painted digit by digit so that the decimal separators of all
/// labels of a column stand on one x. The better side is painted bold on a tinted cell.
class ValueLabel : public QLabel
{
    Q_OBJECT

public:
    enum class Size { Row, Total };

    /// @param unit  painted quietly beside the value when there is room, "W" or empty
    ValueLabel(Size size, QString unit, QWidget* parent = nullptr);

    /// Shows a value. What one value needs beyond the usual room all labels beside it ask for too, so that both
    /// columns stay equally wide.
    void setText(const QString& text);
    void SetBetter(bool better);

    [[nodiscard]] bool IsBetter() const noexcept { return m_better; }

    /// Tool tip shown as plain text whatever it holds.
    void SetFormula(const QString& text);

    /// Middle of the decimal separator, in the label's coordinates: depends on the width alone, so that it is the same
    /// in all labels of a column.
    [[nodiscard]] double SeparatorX() const;
    /// Whether the unit is painted: it gives way when the value needs its room.
    [[nodiscard]] bool ShowsUnit() const;
    /// Font that the value is painted in: the size steps down before a wide value would be cut.
    [[nodiscard]] QFont PaintedFont() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void ApplyFont();
    [[nodiscard]] QList<ValueLabel*> Neighbours() const;
    [[nodiscard]] double NeededLeft() const;
    [[nodiscard]] int HintWidth(bool withUnit) const;
    void PaintCell(QPainter& painter) const;
    void PaintValue(QPainter& painter) const;
    void PaintUnit(QPainter& painter) const;

    Size m_size;
    QString m_unit;
    bool m_better = false;
    mutable std::optional<QString> m_measured; ///< text that m_neededLeft was measured for
    mutable double m_neededLeft = 0;
};

} // namespace quillon::ui
