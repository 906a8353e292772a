#include "ui/main/input_frame.h"

#include "ui/widgets/typed_number.h"

#include <QSignalBlocker>

namespace quillon::ui {

InputFrame::InputFrame(const QString& title, engine::SystemId system, Workspace& workspace, QWidget* parent)
    : TitledFrame(title, parent)
    , m_system(system)
    , m_workspace(workspace)
{
}

void InputFrame::TakeOver(NumberBox& box, const std::function<void(float)>& store)
{
    const QString text = box.text();
    if (text.isEmpty()) {
        Compute(box, [] {});
        return;
    }
    const Typed<float> number = ReadNumber(text, m_workspace.Locale());
    if (!number.value) {
        box.Mark(number.problem);
        return;
    }
    Compute(box, [&] { store(*number.value); });
}

void InputFrame::Compute(NumberBox& box, const std::function<void()>& change)
{
    const bool stands = m_workspace.Attempt(m_system, [&] {
        change();
        m_workspace.RefreshData(m_system);
    });
    if (stands) {
        box.ClearMark();
    } else {
        box.Mark(TooLarge(box.text()));
    }
}

void InputFrame::ComputeAgain(NumberBox& box)
{
    if (!box.IsMarked()) {
        Compute(box, [] {});
    }
}

void InputFrame::WriteBox(NumberBox& box, const QString& text, const std::function<void()>& changeHandler)
{
    if (box.text() == text) {
        changeHandler();
    } else {
        box.setText(text);
    }
}

void InputFrame::ShowFigure(NumberBox& box, const QString& text)
{
    const QSignalBlocker blocker(&box);
    box.setText(text);
    box.ClearMark();
}

} // namespace quillon::ui
