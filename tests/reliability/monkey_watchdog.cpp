#include "tests/reliability/monkey_watchdog.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <unistd.h>

namespace quillon::test {

namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""s;
using std::chrono::nanoseconds;

constexpr nanoseconds kLongest = 2s;
constexpr auto kLook = 50ms;

/// Processor time that this process has used.
nanoseconds Used()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

/// Whether a thread of this process sleeps: neither runs, nor waits for a processor or a disk.
bool Sleeps(int thread)
{
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string text;
    std::getline(file, text);
    const std::size_t end = text.rfind(')'); // the name before it may hold anything
    return end != std::string::npos && end + 2 < text.size() && text.at(end + 2) == 'S';
}

} // namespace

Watchdog::Watchdog(Journal& journal)
    : m_journal(journal)
    , m_thread([this, watched = ::gettid()] { Watch(watched); })
{
}

Watchdog::~Watchdog()
{
    m_ends = true;
    m_thread.join();
}

void Watchdog::Watch(int watchedThread)
{
    long event = m_journal.Events();
    nanoseconds began = Used();
    nanoseconds slept{};
    while (!m_ends) {
        std::this_thread::sleep_for(kLook);
        if (m_journal.Events() != event) {
            event = m_journal.Events();
            began = Used();
            slept = {};
            continue;
        }
        if (Sleeps(watchedThread)) {
            slept += kLook;
        }
        if (Used() - began + slept > kLongest) {
            m_journal.isHung = true;
            std::abort();
        }
    }
}

} // namespace quillon::test
