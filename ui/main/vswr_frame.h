#pragma once

#include "ui/main/input_frame.h"
#include "ui/widgets/spin_control.h"

namespace quillon::ui {

/// Standing-wave ratio of one system, set by its spin controls only: figures off the table's steps have no factor.
class VSWRFrame : public InputFrame
{
    Q_OBJECT

public:
    VSWRFrame(engine::SystemId system, Workspace& workspace, QWidget* parent = nullptr);

    void ShowVSWR(float ratio);
    /// Shows the record's ratio in tenths.
    void ShowRecord();
    [[nodiscard]] QList<QWidget*> TabOrder() const;

private slots:
    void vsVSWR_Change();

private:
    void Name();
    void LayOut();

    NumberBox* m_text;
    QLineEdit* m_suffix;
    SpinControl* m_whole;
    SpinControl* m_tenths;
};

} // namespace quillon::ui
