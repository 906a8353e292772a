#pragma once

#include "ui/widgets/quiet_label.h"

namespace quillon::ui {

/// Label whose text wraps in a column of fixed width; the text sets the height.
class NoticeLabel : public QuietLabel
{
    Q_OBJECT

public:
    /// Width of the column.
    struct Column
    {
        int characters; ///< average ones of the application font that it has room for
        int beside;     ///< base units that the window needs beside it: on a narrow screen the column gets the rest
    };

    NoticeLabel(Tone tone, const Column& column, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    Column m_column;
};

} // namespace quillon::ui
