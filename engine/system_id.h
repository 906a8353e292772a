#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>

namespace quillon::engine {

/// One of the two antenna systems that stand side by side.
enum class SystemId : std::uint8_t { One, Two };

/// Both systems, in the order in which they are shown.
inline constexpr std::array kBothSystems{SystemId::One, SystemId::Two};

/// Turns a system's number into its identity: the one place where a number from outside is checked.
/// @param number  1 for System One, 2 for System Two.
/// @throws std::out_of_range for any other number.
[[nodiscard]] constexpr SystemId ToSystemId(int number)
{
    switch (number) {
    case 1:
        return SystemId::One;
    case 2:
        return SystemId::Two;
    default:
        throw std::out_of_range("a system number is 1 or 2");
    }
}

/// @return 1 for System One, 2 for System Two: the number shown to people.
[[nodiscard]] constexpr int Number(SystemId system) noexcept
{
    return system == SystemId::One ? 1 : 2;
}

/// @return the system that the given one is compared with.
[[nodiscard]] constexpr SystemId Other(SystemId system) noexcept
{
    return system == SystemId::One ? SystemId::Two : SystemId::One;
}

/// Holds whatever exists once per system.
template <class T>
class PerSystem
{
public:
    constexpr PerSystem() = default;

    constexpr PerSystem(T one, T two)
        : m_elements{std::move(one), std::move(two)}
    {
    }

    [[nodiscard]] constexpr T& operator[](SystemId system) noexcept
    {
        return m_elements[static_cast<std::size_t>(system)];
    }

    [[nodiscard]] constexpr const T& operator[](SystemId system) const noexcept
    {
        return m_elements[static_cast<std::size_t>(system)];
    }

    [[nodiscard]] bool operator==(const PerSystem&) const = default;

private:
    std::array<T, 2> m_elements{};
};

} // namespace quillon::engine
