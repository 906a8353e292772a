#pragma once

#include <QLineEdit>

namespace quillon::ui {

/// Text box of a new maker or model, out of use until one is to be added. Enter takes the name; it reaches no button.
class NameBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit NameBox(QWidget* parent);

    /// Takes the name that is to be added.
    void Ready();
    void Empty();

signals:
    /// Once however long the key is held down.
    void EnterPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace quillon::ui
