#pragma once

#include <QComboBox>

namespace quillon::ui {

/// List of the saved systems' names. It opens at once with ten thousand of them: neither the box nor its drop-down list
/// measures each. A name that is too long is elided and told in the tool tip.
class NameListBox : public QComboBox
{
    Q_OBJECT

public:
    explicit NameListBox(QWidget* parent = nullptr);

    /// What is painted: the current name, elided when it has to be.
    [[nodiscard]] QString ShownName() const;

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    bool event(QEvent* event) override;
};

} // namespace quillon::ui
