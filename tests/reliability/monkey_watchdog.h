#pragma once

#include "tests/reliability/monkey_journal.h"

#include <atomic>
#include <thread>

namespace quillon::test {

/// Ends the process when an event takes too long. Time that the process waits for a processor or a disk does not
/// count, other programs may be busy; and neither does what further events take in a dialog that the event has opened.
class Watchdog
{
public:
    /// To be made in the thread that handles the events, which it watches.
    explicit Watchdog(Journal& journal);
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog();

private:
    void Watch(int watchedThread);

    Journal& m_journal;
    std::atomic<bool> m_ends = false;
    std::thread m_thread;
};

} // namespace quillon::test
