#pragma once

#include "ui/main/input_frame.h"
#include "ui/widgets/spin_control.h"

namespace quillon::ui {

/// Transmitter output power of one system.
class XmitPowerFrame : public InputFrame
{
    Q_OBJECT

public:
    XmitPowerFrame(engine::SystemId system, Workspace& workspace, QWidget* parent = nullptr);

    void ShowPower(float watts);
    /// Shows the record's power in whole watts; the record keeps its tenths.
    void ShowRecord();
    /// Marks the figure, so that what is typed next replaces it.
    void MarkFigure();
    [[nodiscard]] QList<QWidget*> TabOrder() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void vsOutputPower_CoarseChange();
    void vsOutputPower_FineChange();
    void txtOutputPower_Change();

private:
    void Name();
    void LayOut();
    void Wire();
    [[nodiscard]] float BothPositions(int fine) const;
    void TakePosition(float position);
    void ColourText(float watts);

    NumberBox* m_text;
    SpinControl* m_coarse;
    SpinControl* m_fine;
};

} // namespace quillon::ui
