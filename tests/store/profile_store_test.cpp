#include "store/profile_store.h"

#include "store/profile_batch.h"
#include "tests/store/failing_calls.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <system_error>
#include <unistd.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class ProfileStoreTest : public ::testing::Test
{
protected:
    std::string Value(const fs::path& file) { return std::string(m_store.Read(file).Value("s", "k").value_or("none")); }

    bool Write(const fs::path& file, const char* value) { return m_store.Edit(file, {"s", "k", value}); }

    /// Waits until a further change of the file cannot leave the same time stamp.
    static void Settle(const fs::path& file)
    {
        const auto written = fs::last_write_time(file);
        while (fs::file_time_type::clock::now() - written < std::chrono::milliseconds(25)) {
        }
    }

    long Count(const char* call) { return std::count(m_calls.Made().begin(), m_calls.Made().end(), call); }

    support::TempFolder m_folder;
    fs::path m_file = m_folder / "f.dat";
    FailingCalls m_calls;
    ProfileStore m_store{m_calls};
};

TEST_F(ProfileStoreTest, ReadsAFileOnceAndThenLooksAtItsStampOnly)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    Settle(m_file);
    EXPECT_EQ(Value(m_file), "1");
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_file), "1");
    EXPECT_EQ(m_calls.Made(), Names{"stat"});
}

TEST_F(ProfileStoreTest, SeesAChangeFromOutsideAtTheNextCall)
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

TEST_F(ProfileStoreTest, SeesAChangeWithinOneStepOfTheFileSystemsClock)
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

TEST_F(ProfileStoreTest, TakesAFileAsUnchangedOnceItsTimeIsPast)
{
    StoppedClock calls({1000, 0});
    ProfileStore store(calls);
    m_folder.Put("f.dat", "[s]\nk=1\n");
    EXPECT_EQ(store.Read(m_file).Value("s", "k"), "1");
    EXPECT_EQ(store.Read(m_file).Value("s", "k"), "1");
    EXPECT_EQ(calls.Reads(), 1);
}

TEST_F(ProfileStoreTest, SeesAChangeBehindAModificationTimePutBack)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    Settle(m_file);
    EXPECT_EQ(Value(m_file), "1");
    const auto time = fs::last_write_time(m_file);
    m_folder.Put("f.dat", "[s]\nk=2\n");
    fs::last_write_time(m_file, time);
    EXPECT_EQ(Value(m_file), "2");
}

TEST_F(ProfileStoreTest, SeesAFileGoAndCome)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    EXPECT_EQ(Value(m_file), "1");
    fs::remove(m_file);
    EXPECT_EQ(Value(m_file), "none");
    m_folder.Put("f.dat", "[s]\nk=2\n");
    EXPECT_EQ(Value(m_file), "2");
}

TEST_F(ProfileStoreTest, ReadsItsOwnWrites)
{
    EXPECT_TRUE(Write(m_file, "1"));
    EXPECT_EQ(Value(m_file), "1");
    EXPECT_TRUE(Write(m_file, "2"));
    EXPECT_EQ(Value(m_file), "2");
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\r\nk=2\r\n");
}

TEST_F(ProfileStoreTest, WritesNothingWhenNothingChanges)
{
    m_folder.Put("f.dat", "[s]\n k = 1");
    EXPECT_TRUE(Write(m_file, "1"));
    EXPECT_TRUE(m_store.Edit(m_file, {"s", "missing", std::nullopt}));
    EXPECT_TRUE(m_store.Edit(m_file, {"missing", std::nullopt, std::nullopt}));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\n k = 1");
    EXPECT_EQ(Count("write"), 0);
    EXPECT_EQ(Count("rename"), 0);
    EXPECT_EQ(Count("unlink"), 0);
}

TEST_F(ProfileStoreTest, KeepsTheFileInMemoryWhenNothingChanges)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    Settle(m_file);
    EXPECT_TRUE(Write(m_file, "1"));
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_file), "1");
    EXPECT_EQ(Count("read"), 0);
}

TEST_F(ProfileStoreTest, HoldsTheLastFilesOnly)
{
    for (int number = 0; number < 9; ++number) {
        const std::string name = std::to_string(number);
        Settle(m_folder.Put(name, "[s]\nk=" + name + "\n"));
        EXPECT_EQ(Value(m_folder / name), name);
    }
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_folder / "1"), "1");
    EXPECT_EQ(Count("read"), 0);
    EXPECT_EQ(Value(m_folder / "0"), "0");
    EXPECT_GT(Count("read"), 0);
}

TEST_F(ProfileStoreTest, HoldsALongFileOnlyWhileNoOtherOneIsAskedFor)
{
    for (const char* name : {"long", "short"}) {
        Settle(m_folder.Put(name, "[s]\nk=1\n"));
    }
    ASSERT_EQ(::truncate((m_folder / "long").c_str(), 5'000'000), 0);
    Settle(m_folder / "long");
    EXPECT_EQ(Value(m_folder / "long"), "1");
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_folder / "long"), "1");
    EXPECT_EQ(Count("read"), 0);
    EXPECT_EQ(Value(m_folder / "short"), "1");
    m_calls.FailAt(0, 0);
    EXPECT_EQ(Value(m_folder / "short"), "1");
    EXPECT_EQ(Count("read"), 0);
    EXPECT_EQ(Value(m_folder / "long"), "1");
    EXPECT_GT(Count("read"), 0);
}

/// Sections with lines of all line ends and some that look like headers, until the text is so long.
std::string SectionsOf(std::size_t size)
{
    std::string text;
    for (std::size_t number = 0; text.size() < size; ++number) {
        const std::string name = std::to_string(number * number);
        text.append("[").append(name).append("] ]\r\nk=[no]\n [open\r;[no]\n\n").append(number % 40, '=').append("\n");
    }
    return text;
}

TEST_F(ProfileStoreTest, ListsTheSectionsOfALongFileAsIfItWereReadWhole)
{
    const std::string text = SectionsOf(10'000);
    m_folder.Put("f.dat", text);
    const PrivateProfile whole(text);
    for (std::size_t enough = 0; enough < 600; ++enough) {
        ASSERT_EQ(ProfileStore().SectionNames(m_file, enough), whole.SectionNames(enough)) << enough;
    }
}

TEST_F(ProfileStoreTest, TakesNoNameFromALineThatGoesOnBehindWhatItRead)
{
    for (std::size_t filler = 100; filler < 250; ++filler) { // one of which ends the reading in the second header
        const std::string text = "[1234567]\n" + std::string(filler, '=') + "\n[b]c] \n" + std::string(200, '=');
        m_folder.Put("f.dat", text);
        ASSERT_EQ(ProfileStore().SectionNames(m_file, 10), std::string("1234567\0b]c\0", 12)) << filler;
    }
}

TEST_F(ProfileStoreTest, ReadsOfALongFileOnlyWhatTheListOfItsSectionsTakes)
{
    Settle(m_folder.Put("f.dat", SectionsOf(100'000)));
    m_calls.FailAt(0, 0);
    const std::string names = m_store.SectionNames(m_file, 100);
    EXPECT_GE(names.size(), 100U);
    EXPECT_EQ(m_calls.Made(), (Names{"stat", "open", "fstat", "read", "close"}));
    EXPECT_EQ(m_store.Read(m_file).Value("0]", "k"), "[no]"); // which is read now
    m_calls.FailAt(0, 0);
    EXPECT_EQ(m_store.SectionNames(m_file, 100), names);
    EXPECT_EQ(m_calls.Made(), Names{"stat"});
}

TEST_F(ProfileStoreTest, ListsTheSectionsAlsoOfAFileWhoseBeginningHasTooFew)
{
    m_folder.Put("f.dat", std::string(50'000, '=') + "\n[a]\n[b]\n");
    EXPECT_EQ(m_store.SectionNames(m_file, 100), std::string("a\0b\0", 4));
    EXPECT_EQ(m_store.SectionNames(m_folder / "missing", 100), "");
}

TEST_F(ProfileStoreTest, ListsNoSectionsOfALongFileThatCannotBeRead)
{
    const std::string text = SectionsOf(10'000);
    m_folder.Put("f.dat", text);
    for (const int number : {2, 3, 4}) { // open, fstat, read: once more, then, as a whole
        m_calls.FailAt(number, EIO);
        EXPECT_EQ(m_store.SectionNames(m_file, 100), PrivateProfile(text).SectionNames(100));
    }
    m_calls.FailAt(1, EIO);
    EXPECT_EQ(m_store.SectionNames(m_file, 100), "");
}

TEST_F(ProfileStoreTest, ListsTheSectionsThatAnOpenBatchAdds)
{
    const std::string text = SectionsOf(10'000);
    m_folder.Put("f.dat", text);
    const ProfileBatch batch(m_store, m_file);
    ASSERT_TRUE(m_store.Edit(m_file, {"0]", std::nullopt, std::nullopt}));
    PrivateProfile edited(text);
    edited.Make(edited.SectionRemoval("0]"));
    EXPECT_EQ(m_store.SectionNames(m_file, 100), edited.SectionNames(100));
    EXPECT_NE(m_store.SectionNames(m_file, 100), PrivateProfile(text).SectionNames(100));
}

TEST_F(ProfileStoreTest, ReadsAndWritesTheFileOfAnotherSpelling)
{
    m_folder.Put("Foo.dat", "[s]\nk=1\n");
    EXPECT_EQ(Value(m_folder / "FOO.DAT"), "1");
    EXPECT_TRUE(Write(m_folder / "FOO.DAT", "2"));
    m_store.CreateIfMissing(m_folder / "foo.DAT");
    EXPECT_EQ(m_folder.Get("Foo.dat"), "[s]\nk=2\n");
    EXPECT_EQ(m_folder.Names(), Names{"Foo.dat"});
}

TEST_F(ProfileStoreTest, NeverPutsASecondFileBesideOneOfAnotherSpelling)
{
    for (int number = 1; number <= 8; ++number) {
        m_folder.Put("Foo.dat", "[s]\nk=1\n");
        m_calls.FailAt(number, EIO);
        Write(m_folder / "FOO.DAT", "2");
        m_calls.FailAt(number, EIO);
        try {
            m_store.CreateIfMissing(m_folder / "FOO.DAT");
        } catch (const std::system_error&) {
            EXPECT_LE(number, 3);
        }
        EXPECT_EQ(m_folder.Names(), Names{"Foo.dat"}) << number;
    }
}

TEST_F(ProfileStoreTest, FailsToWriteInAMissingFolder)
{
    EXPECT_FALSE(Write(m_folder / "missing/f.dat", "1"));
    EXPECT_TRUE(m_folder.Names().empty());
}

TEST_F(ProfileStoreTest, ReadsWhatIsNoRegularFileAsEmptyAndNeverWritesIt)
{
    fs::create_directory(m_file);
    EXPECT_EQ(Value(m_file), "none");
    EXPECT_FALSE(Write(m_file, "1"));
    ASSERT_EQ(::mkfifo((m_folder / "p").c_str(), 0600), 0);
    EXPECT_EQ(Value(m_folder / "p"), "none");
    EXPECT_FALSE(Write(m_folder / "p", "1"));
    EXPECT_TRUE(fs::is_directory(m_file));
    EXPECT_TRUE(fs::is_fifo(m_folder / "p"));
}

TEST_F(ProfileStoreTest, NeverWritesAFileThatItCannotRead)
{
    m_folder.Put("f.dat", "[s]\nl=precious\n");
    for (const int number : {1, 2, 3, 4}) { // stat, open, fstat, read
        m_calls.FailAt(number, EIO);
        EXPECT_FALSE(Write(m_file, "1")) << number;
        m_calls.FailAt(number, EACCES);
        EXPECT_EQ(Value(m_file), "none") << number;
    }
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\nl=precious\n");
}

TEST_F(ProfileStoreTest, TakesAFileThatItFoundMissingForUnreadableOnceItIs)
{
    EXPECT_TRUE(m_store.Edit(m_file, {"s", "k", std::nullopt}));
    ProfileBatch batch(m_store, m_folder / "g.dat");
    ASSERT_TRUE(m_store.Edit(m_folder / "g.dat", {"s", "k", "1"}));
    m_calls.FailAt(1, EIO);
    EXPECT_EQ(Value(m_file), "none");
    EXPECT_FALSE(batch.Commit());
}

TEST_F(ProfileStoreTest, RefusesAnEditThatMakesAFileTooLargeToReadBack)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    ASSERT_EQ(::truncate(m_file.c_str(), 67'108'864), 0);
    EXPECT_FALSE(Write(m_file, "12"));
    EXPECT_TRUE(Write(m_file, "2"));
    EXPECT_EQ(fs::file_size(m_file), 67'108'864U);
}

TEST_F(ProfileStoreTest, NeverShowsOtherTextThanStandsOnTheDiskWhateverFails)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    ASSERT_TRUE(Write(m_file, "2"));
    const int calls = static_cast<int>(m_calls.Made().size());
    for (int number = 1; number <= calls; ++number) {
        m_folder.Put("f.dat", "[s]\nk=1\n");
        EXPECT_EQ(Value(m_file), "1");
        m_calls.FailAt(number, ENOSPC);
        const bool isWritten = Write(m_file, "2");
        m_calls.FailAt(0, 0);
        const bool isNew = m_folder.Get("f.dat") == "[s]\nk=2\n";
        EXPECT_TRUE(isNew || m_folder.Get("f.dat") == "[s]\nk=1\n") << number;
        EXPECT_TRUE(isNew || !isWritten) << number;
        EXPECT_EQ(Value(m_file), isNew ? "2" : "1") << number;
        EXPECT_EQ(m_folder.Names(), Names{"f.dat"}) << number;
    }
}

TEST_F(ProfileStoreTest, CreatesAMissingFileEmptyAndLeavesOneThatIsThere)
{
    m_store.CreateIfMissing(m_file);
    EXPECT_EQ(m_folder.Get("f.dat"), "");
    m_folder.Put("f.dat", "text");
    m_store.CreateIfMissing(m_file);
    EXPECT_EQ(m_folder.Get("f.dat"), "text");
    EXPECT_THROW(m_store.CreateIfMissing(m_folder / "missing/f.dat"), std::system_error);
}

TEST_F(ProfileStoreTest, CreatesNothingBehindALinkThatLeadsNowhere)
{
    fs::create_symlink("nowhere", m_file);
    m_store.CreateIfMissing(m_file);
    EXPECT_EQ(m_folder.Names(), Names{"f.dat"});
    EXPECT_EQ(Value(m_file), "none");
}

TEST(ProfileStore, WorksOnTheSystemsCallsByItself)
{
    support::TempFolder folder;
    ProfileStore store;
    EXPECT_TRUE(store.Edit(folder / "f.dat", {"s", "k", "1"}));
    EXPECT_EQ(store.Read(folder / "f.dat").Value("s", "k"), "1");
}

} // namespace
} // namespace quillon::store
