#pragma once

#include "ui/main/input_frame.h"
#include "ui/main/option_pair.h"
#include "ui/widgets/spin_control.h"

namespace quillon::ui {

/// Typed antenna gain. System One only; hidden in normal use.
class AntennaGainFrame : public InputFrame
{
    Q_OBJECT

public:
    explicit AntennaGainFrame(Workspace& workspace, QWidget* parent = nullptr);

    void ShowGain(float decibels);
    [[nodiscard]] QList<QWidget*> TabOrder() const;

signals:
    /// The antenna lists are to be used (or the typed figure).
    void UseLists(bool lists);

private slots:
    void txtAntennaGain_Change();
    void vsAntennaGain_Change();
    void optAntenna_Click(bool user);

private:
    void Name();
    void LayOut();

    NumberBox* m_text;
    SpinControl* m_coarse;
    SpinControl* m_fine;
    OptionPair* m_options;
};

} // namespace quillon::ui
