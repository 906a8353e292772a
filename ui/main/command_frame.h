#pragma once

#include "ui/main/commands.h"
#include "ui/widgets/titled_frame.h"

#include <QList>

class QPushButton;

namespace quillon::ui {

/// The command buttons below the frames of both systems.
class CommandFrame : public TitledFrame
{
    Q_OBJECT

public:
    explicit CommandFrame(QWidget* parent = nullptr);

    [[nodiscard]] QList<QWidget*> TabOrder() const;

signals:
    void Given(Command command);

protected:
    void changeEvent(QEvent* event) override;

private:
    QList<QPushButton*> m_buttons;
};

} // namespace quillon::ui
