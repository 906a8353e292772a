#pragma once

#include <string_view>

namespace quillon::engine {

/// Tells the user something. Implemented with message boxes by the windows, with a list by tests.
class Notifier
{
public:
    virtual ~Notifier() = default;

    /// A message with an OK button and an information icon. An empty title stands for the program's name.
    virtual void Inform(std::string_view text, std::string_view title) = 0;
};

} // namespace quillon::engine
