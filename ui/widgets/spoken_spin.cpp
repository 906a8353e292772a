#include "ui/widgets/spoken_spin.h"

#include "ui/widgets/spin_control.h"

#include <QAccessibleWidget>

#include <cmath>

namespace quillon::ui {

namespace {

/// Figures have at most three decimals; as doubles they would drag the rest of their single precision along.
constexpr double kSteps = 1000;

class SpokenSpin : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SpokenSpin(SpinControl& spin)
        : QAccessibleWidget(&spin, QAccessible::Slider)
        , m_spin(spin)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant currentValue() const override { return FigureAt(m_spin.value()); }

    /// Goes to the position whose figure comes nearest.
    void setCurrentValue(const QVariant& value) override
    {
        const double wanted = value.toDouble();
        int nearest = m_spin.minimum();
        for (int position = m_spin.minimum(); position <= m_spin.maximum(); ++position) {
            if (std::abs(FigureAt(position) - wanted) < std::abs(FigureAt(nearest) - wanted)) {
                nearest = position;
            }
        }
        m_spin.setValue(nearest);
    }

    [[nodiscard]] QVariant maximumValue() const override { return FigureAt(m_spin.minimum()); }

    [[nodiscard]] QVariant minimumValue() const override { return FigureAt(m_spin.maximum()); }

    /// Not the same everywhere: bands are not evenly spaced.
    [[nodiscard]] QVariant minimumStepSize() const override { return {}; }

private:
    [[nodiscard]] double FigureAt(int position) const
    {
        return std::round(m_spin.FigureAt(position) * kSteps) / kSteps;
    }

    SpinControl& m_spin;
};

} // namespace

QAccessibleInterface* MakeSpokenSpin(const QString& /*className*/, QObject* object)
{
    auto* spin = qobject_cast<SpinControl*>(object);
    return spin != nullptr ? new SpokenSpin(*spin) : nullptr;
}

} // namespace quillon::ui
