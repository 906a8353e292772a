#include "store/saved_systems.h"

#include "tests/store/failing_calls.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/sample_pair.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::store {
namespace {

constexpr const char* kFile = "QuillonSystems.dat";
constexpr const char* kListBefore = "[SavedSystems]\nSystem:1=A\nSystem:2=B\nSystem:3=\n";

const std::string& Before()
{
    static const std::string bytes = std::string(kListBefore) + "[A]\nSystem1VSWR=3\n[B]\nSystem1VSWR=2\n";
    return bytes;
}

bool Save(const support::TempFolder& folder, FileCalls& calls)
{
    ProfileStore store(calls);
    support::RecordingNotifier notifier;
    ReadWrite readWrite(ProgramFolder(folder / "Quillon"), store, notifier);
    SavedSystems saved(readWrite, store);
    return saved.DataFileCheck() && saved.Write(saved.SystemExists("A"), "A", support::SamplePair());
}

/// The file as a save that nothing disturbs leaves it.
std::string After()
{
    support::TempFolder folder;
    folder.Put(kFile, Before());
    FileCalls calls;
    EXPECT_TRUE(Save(folder, calls));
    return folder.Get(kFile).value();
}

TEST(SavedSystemsSafety, EachFailingCallLeavesTheOldPairOrTheNewOne)
{
    const std::string after = After();
    ASSERT_NE(after, Before());
    for (const int error : {EIO, ENOSPC, EACCES}) {
        bool isThrough = false;
        for (int number = 1; !isThrough; ++number) {
            support::TempFolder folder;
            folder.Put(kFile, Before());
            FailingCalls calls;
            calls.FailAt(number, error);
            const bool isSaved = Save(folder, calls);
            const std::string bytes = folder.Get(kFile).value();
            EXPECT_TRUE(bytes == Before() || bytes == after) << number;
            EXPECT_TRUE(!isSaved || bytes == after) << number;
            EXPECT_EQ(folder.Names(), std::vector<std::string>{kFile}) << number;
            isThrough = static_cast<int>(calls.Made().size()) < number;
        }
    }
}

/// Kills the process at one of its calls, before it is made or after it; a write that is killed got half way.
class DeadlyCalls : public FileCalls
{
public:
    enum class Moment { Before, After };

    DeadlyCalls(int number, Moment moment)
        : m_number(number)
        , m_moment(moment)
    {
    }

    int Open(const char* path, int flags, mode_t mode) override
    {
        return Around<int>([&] { return FileCalls::Open(path, flags, mode); });
    }

    ssize_t Read(int descriptor, void* buffer, std::size_t length) override
    {
        return Around<ssize_t>([&] { return FileCalls::Read(descriptor, buffer, length); });
    }

    ssize_t Write(int descriptor, const void* buffer, std::size_t length) override
    {
        const std::size_t part = m_made + 1 == m_number ? length / 2 : length;
        return Around<ssize_t>([&] { return FileCalls::Write(descriptor, buffer, part); });
    }

    int Stat(const char* path, struct stat* status) override
    {
        return Around<int>([&] { return FileCalls::Stat(path, status); });
    }

    int Fstat(int descriptor, struct stat* status) override
    {
        return Around<int>([&] { return FileCalls::Fstat(descriptor, status); });
    }

    int Fchmod(int descriptor, mode_t mode) override
    {
        return Around<int>([&] { return FileCalls::Fchmod(descriptor, mode); });
    }

    int Fsync(int descriptor) override
    {
        return Around<int>([&] { return FileCalls::Fsync(descriptor); });
    }

    int Close(int descriptor) override
    {
        return Around<int>([&] { return FileCalls::Close(descriptor); });
    }

    int Rename(const char* from, const char* to) override
    {
        return Around<int>([&] { return FileCalls::Rename(from, to); });
    }

    int Unlink(const char* path) override
    {
        return Around<int>([&] { return FileCalls::Unlink(path); });
    }

    int MayWrite(const char* path) override
    {
        return Around<int>([&] { return FileCalls::MayWrite(path); });
    }

private:
    template <class Result>
    Result Around(const std::function<Result()>& call)
    {
        const bool isLast = ++m_made == m_number;
        if (isLast && m_moment == Moment::Before) {
            std::raise(SIGKILL);
        }
        const Result result = call();
        if (isLast) {
            std::raise(SIGKILL);
        }
        return result;
    }

    int m_made = 0;
    int m_number;
    Moment m_moment;
};

/// Saves in a process of its own. @return whether that process was killed.
bool SaveAndDie(const support::TempFolder& folder, int number, DeadlyCalls::Moment moment)
{
    const pid_t child = ::fork();
    if (child == 0) {
        DeadlyCalls calls(number, moment);
        ::_exit(Save(folder, calls) ? 0 : 1);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
}

TEST(SavedSystemsSafety, ProcessKilledAtAnyCallLeavesTheOldPairOrTheNewOneAndTheNextSaveWorks)
{
    const std::string after = After();
    for (const auto moment : {DeadlyCalls::Moment::Before, DeadlyCalls::Moment::After}) {
        int number = 1;
        for (bool isKilled = true; isKilled; ++number) {
            support::TempFolder folder;
            folder.Put(kFile, Before());
            isKilled = SaveAndDie(folder, number, moment);
            const std::string bytes = folder.Get(kFile).value();
            EXPECT_TRUE(bytes == Before() || bytes == after) << number;

            FileCalls calls;
            EXPECT_TRUE(Save(folder, calls)) << number;
            EXPECT_EQ(folder.Get(kFile), after) << number;
            EXPECT_EQ(folder.Names(), std::vector<std::string>{kFile}) << number;
        }
        EXPECT_GT(number, 12); // a replacement alone takes twelve calls
    }
}

} // namespace
} // namespace quillon::store
