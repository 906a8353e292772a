#pragma once

#include "ui/main/input_frame.h"
#include "ui/main/option_pair.h"
#include "ui/widgets/spin_control.h"

namespace quillon::ui {

/// Typed coax loss. System One only; hidden in normal use.
class CoaxLossFrame : public InputFrame
{
    Q_OBJECT

public:
    explicit CoaxLossFrame(Workspace& workspace, QWidget* parent = nullptr);

    /// Shows the record's loss, rounded to tenths.
    void ShowLoss();
    [[nodiscard]] QList<QWidget*> TabOrder() const;

signals:
    /// The coax lists are to be used (or the typed figure).
    void UseLists(bool lists);

private slots:
    void txtCoaxLoss_Change();
    void optCoaxCable_Click(bool user);

private:
    void Name();
    void LayOut();

    NumberBox* m_text;
    SpinControl* m_spin;
    OptionPair* m_options;
};

} // namespace quillon::ui
