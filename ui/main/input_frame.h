#pragma once

#include "ui/main/workspace.h"
#include "ui/widgets/number_box.h"
#include "ui/widgets/titled_frame.h"

#include <functional>

namespace quillon::ui {

/// A frame of inputs of one system.
class InputFrame : public TitledFrame
{
    Q_OBJECT

public:
    InputFrame(const QString& title, engine::SystemId system, Workspace& workspace, QWidget* parent);

    [[nodiscard]] engine::SystemId System() const noexcept { return m_system; }

protected:
    [[nodiscard]] Workspace& Work() const noexcept { return m_workspace; }

    [[nodiscard]] engine::SystemData& Data() const { return m_workspace.Data(m_system); }

    /// Takes a box's text over as a number and computes anew. A text that is no number, or one that cannot be computed
    /// with, changes nothing and marks the box; an empty text stores nothing.
    void TakeOver(NumberBox& box, const std::function<void(float)>& store);

    /// Stores a change and computes anew; marks the box when it cannot be computed with.
    void Compute(NumberBox& box, const std::function<void()>& change);

    /// Computes anew what the box's own handler has computed already; nothing when that could not take the text.
    void ComputeAgain(NumberBox& box);

    /// Writes a box's text and has its change handler run once, also when the text stays the same. The handler alone
    /// stores the figure: one that cannot be computed with must not reach the record on another way.
    static void WriteBox(NumberBox& box, const QString& text, const std::function<void()>& changeHandler);

    /// Writes a box's text without its change handler: the record holds the figure already, and more exactly.
    static void ShowFigure(NumberBox& box, const QString& text);

private:
    engine::SystemId m_system;
    Workspace& m_workspace;
};

} // namespace quillon::ui
