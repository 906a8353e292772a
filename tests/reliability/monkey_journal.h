#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillon::test {

/// What a run of events has done so far, in memory that its process shares with the one that started it: after a crash
/// it still tells which event was the last.
class Journal
{
public:
    static constexpr std::size_t kLines = 16;
    static constexpr std::size_t kWidth = 160;

    /// Notes an event before it is delivered. Nothing is allocated.
    void Note(std::string_view what)
    {
        auto& line = m_lines.at(static_cast<std::size_t>(Events()) % kLines);
        const std::size_t length = std::min(what.size(), kWidth - 1);
        std::copy_n(what.begin(), length, line.begin());
        line.at(length) = '\0';
        m_events.fetch_add(1);
    }

    /// Number of events noted so far.
    [[nodiscard]] long Events() const { return m_events.load(); }

    /// The last events, the latest one last, one a line.
    [[nodiscard]] std::string LastEvents() const
    {
        std::string text;
        const auto count = static_cast<std::size_t>(Events());
        for (std::size_t place = count - std::min(count, kLines); place < count; ++place) {
            text += "    " + std::to_string(place + 1) + " " + m_lines.at(place % kLines).data() + "\n";
        }
        return text;
    }

    std::atomic<bool> isBroken = false; ///< a broken invariant ended the run
    std::atomic<bool> isHung = false;   ///< the watchdog ended it

private:
    std::atomic<long> m_events = 0;
    std::array<std::array<char, kWidth>, kLines> m_lines{};
};

} // namespace quillon::test
