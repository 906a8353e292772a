#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace quillon::store {

/// A block of bytes that is not cleared when it is made: to be filled by reading a file of tens of megabytes, clearing
/// it first would take half as long as the reading.
class Bytes
{
public:
    Bytes() = default;

    explicit Bytes(std::size_t size)
        : m_data(std::make_unique_for_overwrite<char[]>(size)) // NOLINT(modernize-avoid-c-arrays): see above
        , m_size(size)
    {
    }

    [[nodiscard]] char* Data() noexcept { return m_data.get(); }

    /// Leaves out what stands behind a number of bytes. @param size  at most as many as there are
    void Cut(std::size_t size) noexcept { m_size = size; }

    [[nodiscard]] std::string_view View() const noexcept { return {m_data.get(), m_size}; }

private:
    std::unique_ptr<char[]> m_data; // NOLINT(modernize-avoid-c-arrays)
    std::size_t m_size = 0;
};

} // namespace quillon::store
