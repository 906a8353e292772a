#pragma once

#include "engine/mask.h"
#include "engine/number_text.h"

#include <string>
#include <string_view>
#include <utility>

namespace quillon::engine {

/// Writes texts and numbers one after the other, into memory that it keeps for the next text.
class NumberWriter
{
public:
    /// @param separator  decimal separator of the numbers.
    explicit NumberWriter(std::string separator)
        : m_separator(std::move(separator))
    {
    }

    NumberWriter& operator<<(std::string_view text)
    {
        m_text.append(text);
        return *this;
    }

    /// Writes a number as formulas have it. @throws ArithmeticError when it is not finite.
    NumberWriter& operator<<(float number)
    {
        AppendPlainText(m_text, number, m_separator);
        return *this;
    }

    /// Writes a number by a mask. @throws ArithmeticError when it is not finite.
    void Masked(float number, const Mask& mask) { AppendWithMask(m_text, number, mask, m_separator); }

    /// What has been written since the last Clear; stands until more is written.
    [[nodiscard]] std::string_view Text() const noexcept { return m_text; }

    void Clear() noexcept { m_text.clear(); }

private:
    std::string m_separator;
    std::string m_text;
};

} // namespace quillon::engine
