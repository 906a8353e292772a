#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quillon::store {

/// The first eight bytes of a name, or as many as it has, which it loses.
[[nodiscard]] inline std::uint64_t TakeWord(std::string_view& name) noexcept
{
    std::uint64_t word = 0;
    if (name.size() >= sizeof(word)) {
        std::memcpy(&word, name.data(), sizeof(word));
        name.remove_prefix(sizeof(word));
        return word;
    }
    for (const char character : name) { // not copied: a word put together in memory is waited for when it is read
        word = word << 8U | static_cast<unsigned char>(character);
    }
    name = {};
    return word;
}

/// A number that is the same for names which differ in letter case only, and hardly ever for others.
/// @param before  the number of the name that stands before this one, where two belong together.
[[nodiscard]] inline std::uint64_t HashName(std::string_view name, std::uint64_t before = 0) noexcept
{
    constexpr std::uint64_t kSmall = 0x2020202020202020U; // the bits that make small letters of capitals
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = before + name.size();
    while (!name.empty()) {
        hash = (hash ^ (TakeWord(name) | kSmall)) * kOdd;
        hash ^= hash >> 32U;
    }
    return hash;
}

} // namespace quillon::store
