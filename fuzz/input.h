#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace quillon::fuzz {

/// The bytes of one run, taken off from the front. Behind the end there are zeros and empty texts.
///
/// Texts are records closed by 0x1E, and fields of records closed by 0x1F: they can be read in the corpus and put
/// together by hand, and a mutation of one leaves the others in place.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) noexcept
        : m_rest(reinterpret_cast<const char*>(data), size)
    {
    }

    explicit Input(std::string_view text) noexcept
        : m_rest(text)
    {
    }

    [[nodiscard]] bool IsEmpty() const noexcept { return m_rest.empty(); }

    [[nodiscard]] char Front() const noexcept { return m_rest.empty() ? '\0' : m_rest.front(); }

    [[nodiscard]] std::string_view Record() noexcept { return UpTo('\x1E'); }

    /// A record as the text of a file. With 0x1D in front it is repeated as often as the byte behind that says, so that
    /// short inputs make files that overflow the buffers of lists.
    [[nodiscard]] std::string FileText()
    {
        std::string_view record = Record();
        if (!record.starts_with('\x1D') || record.size() < 2) {
            return std::string(record);
        }
        constexpr std::size_t kLongest = 2400;
        const auto count = static_cast<unsigned char>(record[1]);
        record.remove_prefix(2);
        std::string text;
        for (unsigned place = 0; place <= count && text.size() + record.size() <= kLongest; ++place) {
            text.append(record);
        }
        return text;
    }

    [[nodiscard]] std::string_view Field() noexcept { return UpTo('\x1F'); }

    [[nodiscard]] std::string_view Rest() noexcept { return Take(m_rest.size()); }

    [[nodiscard]] unsigned Byte() noexcept
    {
        const std::string_view byte = Take(1);
        return byte.empty() ? 0U : static_cast<unsigned char>(byte.front());
    }

    [[nodiscard]] std::uint32_t Bits() noexcept
    {
        const std::uint32_t high = Byte() << 24U | Byte() << 16U;
        return high | Byte() << 8U | Byte();
    }

    [[nodiscard]] std::int16_t Short() noexcept
    {
        const unsigned high = Byte() << 8U;
        return static_cast<std::int16_t>(high | Byte());
    }

    /// A figure as people enter it, one at the edge of a float's range, or any bits at all.
    [[nodiscard]] float Float() noexcept
    {
        using Limits = std::numeric_limits<float>;
        constexpr std::array kEdges{0.0F,
                                    -0.0F,
                                    Limits::infinity(),
                                    -Limits::infinity(),
                                    Limits::quiet_NaN(),
                                    1.0F,
                                    1.1F,
                                    Limits::max(),
                                    Limits::lowest(),
                                    Limits::min(),
                                    3.9F,
                                    Limits::denorm_min(),
                                    19.9F,
                                    0.05F,
                                    0.005F,
                                    1e30F,
                                    8388608.5F,
                                    32767.5F,
                                    -32768.5F,
                                    0.004F};
        switch (Byte() % 5) {
        case 0:
            return std::bit_cast<float>(Bits());
        case 1:
            return kEdges.at(Byte() % kEdges.size());
        case 2:
            return static_cast<float>(Short()) / 10;
        case 3:
            return static_cast<float>(Short()) / 1000;
        default:
            return static_cast<float>(Byte());
        }
    }

private:
    std::string_view Take(std::size_t length) noexcept
    {
        const std::string_view taken = m_rest.substr(0, length);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    std::string_view UpTo(char end) noexcept
    {
        const std::string_view text = Take(std::min(m_rest.find(end), m_rest.size()));
        static_cast<void>(Take(1));
        return text;
    }

    std::string_view m_rest;
};

} // namespace quillon::fuzz
