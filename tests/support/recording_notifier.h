#pragma once

#include "engine/notifier.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillon::support {

/// Keeps the messages instead of showing them.
class RecordingNotifier : public engine::Notifier
{
public:
    struct Message
    {
        std::string text;
        std::string title;

        [[nodiscard]] bool operator==(const Message&) const = default;
    };

    void Inform(std::string_view text, std::string_view title) override
    {
        m_messages.push_back({std::string(text), std::string(title)});
    }

    [[nodiscard]] const std::vector<Message>& Messages() const noexcept { return m_messages; }

    void Clear() { m_messages.clear(); }

private:
    std::vector<Message> m_messages;
};

} // namespace quillon::support
