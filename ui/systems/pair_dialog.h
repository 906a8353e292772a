#pragma once

#include "engine/system_id.h"
#include "ui/systems/system_frame.h"

#include <QDialog>
#include <QList>

class QPushButton;

namespace quillon::ui {

/// What saving and loading a pair have in common: a card with a field above, a card for each system below, buttons at
/// the bottom right. Enter presses the button that has the focus and no other; Esc closes.
class PairDialog : public QDialog
{
    Q_OBJECT

protected:
    /// @param lines  object name of the array of labels that show the systems
    PairDialog(const QString& lines, QWidget* parent);

    [[nodiscard]] SystemFrame& Frame(engine::SystemId system) { return *m_frames[system]; }

    /// Puts everything in its place. @param buttons  from the left, the way out last; also the order of the Tab key,
    /// behind the field.
    void LayOut(TitledFrame* fieldFrame, QWidget* field, const QList<QPushButton*>& buttons);
    /// Makes all buttons as wide as the widest of their captions of this moment asks for.
    void FitButtons();

    void keyPressEvent(QKeyEvent* event) override;

private:
    engine::PerSystem<SystemFrame*> m_frames;
    QList<QPushButton*> m_buttons;
};

} // namespace quillon::ui
