#pragma once

#include "engine/system_id.h"
#include "store/system_entry.h"
#include "ui/widgets/titled_frame.h"

class QLabel;

namespace quillon::ui {

/// Text of a name that stands in the saved-systems file or in a record (single-byte code page).
[[nodiscard]] QString ShownText(std::string_view bytes);

/// What one system of a pair is made of: a line for the antenna, one for the coax.
class SystemFrame : public TitledFrame
{
    Q_OBJECT

public:
    /// @param lines  object name of the array that the two labels belong to, two places for each system
    SystemFrame(engine::SystemId system, const QString& lines, QWidget* parent);

    void Show(const store::SystemNames& names);
    void Clear();

private:
    QLabel* m_antenna;
    QLabel* m_coax;
};

} // namespace quillon::ui
