#pragma once

#include <QLabel>

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

    void SetBetter(bool better);
    [[nodiscard]] bool IsBetter() const noexcept { return m_better; }
    /// Tool tip shown as plain text whatever it holds.
    void SetFormula(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    Size m_size;
    QString m_unit;
    bool m_better = false;
};

} // namespace quillon::ui
