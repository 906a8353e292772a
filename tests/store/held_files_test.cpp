// What the store keeps of files that it has read, and when it reads them again.
#include "tests/store/profile_store_fixture.h"

#include <chrono>
#include <ctime>
#include <optional>
#include <unistd.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class HeldFiles : public ProfileStoreTest
{
protected:
    /// Asks for the value of a file in the folder. @return whether the file is read for that
    bool IsRead(const std::string& file, const std::string& value = "1")
    {
        m_calls.FailAt(0, 0);
        EXPECT_EQ(Value(m_folder / file), value);
        return Count("read") > 0;
    }

    /// Puts a file of a length there that has been so for long.
    void PutLong(const std::string& file, off_t length)
    {
        m_folder.Put(file, "[s]\nk=1\n");
        ASSERT_EQ(::truncate((m_folder / file).c_str(), length), 0);
        Settle(m_folder / file);
    }
};

TEST_F(HeldFiles, ReadsAFileOnceAndThenLooksAtItsStampOnly)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    Settle(m_file);
    EXPECT_EQ(Value(m_file), "1");
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_file), "1");
    EXPECT_EQ(m_calls.Made(), Names{"stat"});
}

TEST_F(HeldFiles, SeesAChangeFromOutsideAtTheNextCall)
{
    for (int round = 0; round < 200; ++round) { // as quickly as the times of the file system allow, and of equal size
        const std::string value = std::to_string(100 + round);
        m_folder.Put("f.dat", "[s]\nk=" + value + "\n");
        ASSERT_EQ(Value(m_file), value);
    }
}

/// A file system whose times stand still.
class StoppedClock : public FileCalls
{
public:
    explicit StoppedClock(timespec time)
        : m_time(time)
    {
    }

    int Stat(const char* path, struct stat* status) override { return Set(FileCalls::Stat(path, status), status); }

    int Fstat(int descriptor, struct stat* status) override
    {
        return Set(FileCalls::Fstat(descriptor, status), status);
    }

    ssize_t Read(int descriptor, void* buffer, std::size_t length) override
    {
        ++m_reads;
        return FileCalls::Read(descriptor, buffer, length);
    }

    [[nodiscard]] int Reads() const noexcept { return m_reads; }

private:
    int Set(int result, struct stat* status) const
    {
        status->st_mtim = m_time;
        status->st_ctim = m_time;
        return result;
    }

    timespec m_time;
    int m_reads = 0;
};

TEST_F(HeldFiles, SeesAChangeWithinOneStepOfTheFileSystemsClock)
{
    timespec now{};
    ASSERT_EQ(::clock_gettime(CLOCK_REALTIME, &now), 0);
    now.tv_sec += 60; // just now, however long the test takes
    StoppedClock calls(now);
    ProfileStore store(calls);
    m_folder.Put("f.dat", "[s]\nk=1\n");
    EXPECT_EQ(store.Read(m_file).Value("s", "k"), "1");
    m_folder.Put("f.dat", "[s]\nk=2\n");
    EXPECT_EQ(store.Read(m_file).Value("s", "k"), "2");
}

TEST_F(HeldFiles, SeesAChangeWithinTheStepThatIsJustPast)
{
    using namespace std::chrono;
    m_folder.Put("f.dat", "[s]\nk=1\n");
    std::optional<StoppedClock> calls;
    std::optional<ProfileStore> store;
    nanoseconds now{};
    // Again when the machine was busy elsewhere: the step is long past then.
    do {
        now = system_clock::now().time_since_epoch();
        calls.emplace(timespec{now / 1s, (now % 1s).count()});
        store.emplace(*calls);
        EXPECT_EQ(store->Read(m_file).Value("s", "k"), "1");
    } while (system_clock::now().time_since_epoch() - now > 15ms);
    m_folder.Put("f.dat", "[s]\nk=2\n");
    EXPECT_EQ(store->Read(m_file).Value("s", "k"), "2");
}

TEST_F(HeldFiles, TakesAFileAsUnchangedOnceItsTimeIsPast)
{
    StoppedClock calls({1000, 0});
    ProfileStore store(calls);
    m_folder.Put("f.dat", "[s]\nk=1\n");
    EXPECT_EQ(store.Read(m_file).Value("s", "k"), "1");
    EXPECT_EQ(store.Read(m_file).Value("s", "k"), "1");
    EXPECT_EQ(calls.Reads(), 1);
}

TEST_F(HeldFiles, SeesAChangeBehindAModificationTimePutBack)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    Settle(m_file);
    EXPECT_EQ(Value(m_file), "1");
    const auto time = fs::last_write_time(m_file);
    m_folder.Put("f.dat", "[s]\nk=2\n");
    fs::last_write_time(m_file, time);
    EXPECT_EQ(Value(m_file), "2");
}

TEST_F(HeldFiles, SeesAFileGoAndCome)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    EXPECT_EQ(Value(m_file), "1");
    fs::remove(m_file);
    EXPECT_EQ(Value(m_file), "none");
    m_folder.Put("f.dat", "[s]\nk=2\n");
    EXPECT_EQ(Value(m_file), "2");
}

TEST_F(HeldFiles, KeepsTheFileInMemoryWhenNothingChanges)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    Settle(m_file);
    EXPECT_TRUE(Write(m_file, "1"));
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_file), "1");
    EXPECT_EQ(Count("read"), 0);
}

TEST_F(HeldFiles, HoldsTheLastFilesOnly)
{
    for (int number = 0; number < 9; ++number) {
        const std::string name = std::to_string(number);
        Settle(m_folder.Put(name, "[s]\nk=" + name + "\n"));
        EXPECT_EQ(Value(m_folder / name), name);
    }
    EXPECT_FALSE(IsRead("1", "1"));
    EXPECT_TRUE(IsRead("0", "0"));
}

TEST_F(HeldFiles, HoldsALongFileOnlyWhileNoOtherOneIsAskedFor)
{
    PutLong("long", 5'000'000);
    PutLong("short", 8);
    EXPECT_TRUE(IsRead("long"));
    EXPECT_FALSE(IsRead("long"));
    EXPECT_TRUE(IsRead("short"));
    EXPECT_FALSE(IsRead("short"));
    EXPECT_TRUE(IsRead("long"));
}

TEST_F(HeldFiles, HoldsFourMebibytesAndNotAByteMore)
{
    constexpr off_t kHalf = off_t{2} * 1024 * 1024;
    PutLong("one", kHalf);
    PutLong("other", kHalf);
    PutLong("longer", kHalf + 1);
    EXPECT_TRUE(IsRead("one"));
    EXPECT_TRUE(IsRead("other"));
    EXPECT_FALSE(IsRead("one"));
    EXPECT_TRUE(IsRead("longer"));
    EXPECT_TRUE(IsRead("one"));
}

} // namespace
} // namespace quillon::store
