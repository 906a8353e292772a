#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillon::engine {

/// A text of exactly Width single-byte characters: longer texts are cut, shorter ones padded with blanks.
template <std::size_t Width>
class FixedText
{
public:
    FixedText() { m_characters.fill(' '); }

    /// Cuts or pads the text to the width, as every assignment to a record's text field does.
    FixedText& operator=(std::string_view text)
    {
        m_characters.fill(' ');
        std::copy_n(text.begin(), std::min(text.size(), Width), m_characters.begin());
        return *this;
    }

    /// @return all Width characters, padding included.
    [[nodiscard]] std::string_view Padded() const noexcept { return {m_characters.data(), Width}; }

    /// @return the text without the blanks around it, as every reader wants it.
    [[nodiscard]] std::string Trimmed() const
    {
        const std::string_view all = Padded();
        const std::size_t first = all.find_first_not_of(' ');
        if (first == std::string_view::npos) {
            return {};
        }
        return std::string(all.substr(first, all.find_last_not_of(' ') - first + 1));
    }

    [[nodiscard]] bool operator==(const FixedText&) const = default;

private:
    std::array<char, Width> m_characters;
};

} // namespace quillon::engine
