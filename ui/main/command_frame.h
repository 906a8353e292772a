#pragma once

#include "ui/main/commands.h"

#include <QGroupBox>
#include <QList>

class QPushButton;

namespace quillon::ui {

/// The command buttons below the frames of both systems.
class CommandFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit CommandFrame(QWidget* parent = nullptr);

    [[nodiscard]] QList<QWidget*> TabOrder() const;

signals:
    void Given(Command command);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Gives all buttons the width of the widest caption.
    void FitButtons();

    QList<QPushButton*> m_buttons;
};

} // namespace quillon::ui
