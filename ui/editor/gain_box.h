#pragma once

#include "ui/widgets/number_box.h"
#include "ui/widgets/typed_number.h"

#include <cstdint>
#include <string_view>

namespace quillon::ui {

/// Text box of a band's gain in dB. Lets digits, minus signs and decimal separators through, and marks what is no gain.
class GainBox : public NumberBox
{
    Q_OBJECT

public:
    explicit GainBox(QWidget* parent);

    /// Shows a gain as the catalogue has it, in tenths of a dB; a text that is no number is 0.
    void ShowTenths(std::string_view gain);

    /// The typed gain in tenths of a dB; an empty box is 0.
    [[nodiscard]] Typed<std::int16_t> Tenths() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void txtGainFigure_Change();
    [[nodiscard]] QString Filtered(const QString& text) const;
};

} // namespace quillon::ui
