#pragma once

#include "ui/main/input_frame.h"
#include "ui/widgets/spin_control.h"

class QLabel;

namespace quillon::ui {

/// Coax length and number of connectors of one system.
class CoaxDataFrame : public InputFrame
{
    Q_OBJECT

public:
    CoaxDataFrame(engine::SystemId system, Workspace& workspace, QWidget* parent = nullptr);

    void ShowLength(float feet);
    /// Takes the spin control's position: the record first holds the position itself, then the count shown.
    void TakeConnectorPosition();
    /// Shows the record's length in tenths of a foot and its connectors, whose loss at the record's frequency is stored
    /// anew.
    void ShowRecord();
    [[nodiscard]] QList<QWidget*> TabOrder() const;

private slots:
    void vsCoaxLength_Change();
    void vsNumConnectors_Change();
    void txtCoaxLength_Change();
    void txtNumConnectors_Change();

private:
    void Name();
    void LayOut();
    void Wire();
    void StoreConnectors(std::int16_t count);
    /// The tool tip of the length follows its text; it has none while the text is no number.
    void TellMetres();

    NumberBox* m_length;
    SpinControl* m_lengthSpin;
    NumberBox* m_connectors;
    SpinControl* m_connectorSpin;
    QLabel* m_lengthLabel;
    QLabel* m_connectorLabel;
};

} // namespace quillon::ui
