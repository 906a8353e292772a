#pragma once

#include "engine/notifier.h"

class QWidget;

namespace quillon::ui {

/// Shows messages in modal boxes with an OK button and an information icon, as plain text.
class MessageNotifier : public engine::Notifier
{
public:
    /// @param owner  window that the boxes belong to while no dialog is open; may be null until there is one.
    explicit MessageNotifier(QWidget* owner = nullptr);

    void SetOwner(QWidget* owner) { m_owner = owner; }

    void Inform(std::string_view text, std::string_view title) override;

private:
    [[nodiscard]] QWidget* Owner() const;

    QWidget* m_owner;
};

} // namespace quillon::ui
