#pragma once

#include "ui/main/input_frame.h"
#include "ui/widgets/spin_control.h"

class QLabel;

namespace quillon::ui {

class SystemPort;

/// Transmit frequency of one system.
class FrequencyFrame : public InputFrame
{
    Q_OBJECT

public:
    FrequencyFrame(engine::SystemId system, Workspace& workspace, SystemPort& port, QWidget* parent = nullptr);

    /// Takes the working frequency of the spin control's position.
    void TakeSpinFrequency();
    /// Writes the box; its change handler stores the figure. @return whether the figure could be computed with.
    bool ShowFrequency(float megahertz, std::string_view mask);
    /// Shows the record's frequency.
    void ShowRecord();
    /// A frequency that follows the chosen band is not for typing or turning.
    void SetFollowsBand(bool follows);
    [[nodiscard]] QList<QWidget*> TabOrder() const;

private slots:
    void vsFrequency_Change();
    void txtFrequency_Change();

private:
    void Name();
    void LayOut();

    SystemPort& m_port;
    NumberBox* m_text;
    SpinControl* m_spin;
    QLabel* m_label;
};

} // namespace quillon::ui
