#include "store/profile_batch.h"
#include "tests/store/profile_store_fixture.h"

#include <system_error>
#include <unistd.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

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
