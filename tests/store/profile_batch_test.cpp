#include "store/profile_batch.h"

#include "tests/store/failing_calls.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <random>
#include <stdexcept>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;

class ProfileBatchTest : public ::testing::Test
{
protected:
    std::string Value(const char* key) { return std::string(m_store.Read(m_file).Value("s", key).value_or("none")); }

    bool Write(const char* key, const char* value) { return m_store.Edit(m_file, {"s", key, value}); }

    support::TempFolder m_folder;
    fs::path m_file = m_folder.Put("f.dat", "[s]\na=1\n");
    FailingCalls m_calls;
    ProfileStore m_store{m_calls};
};

TEST_F(ProfileBatchTest, WritesAtCommitAndOnce)
{
    ProfileBatch batch(m_store, m_file);
    EXPECT_TRUE(Write("a", "2"));
    EXPECT_TRUE(Write("b", "3"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=1\n");
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=2\nb=3\n");
    EXPECT_EQ(std::count(m_calls.Made().begin(), m_calls.Made().end(), "rename"), 1);
}

TEST_F(ProfileBatchTest, ShowsReadersItsEditsBeforeTheyAreWritten)
{
    ProfileBatch batch(m_store, m_file);
    Write("a", "2");
    EXPECT_EQ(Value("a"), "2");
    Write("b", "3");
    EXPECT_EQ(Value("b"), "3");
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(Value("b"), "3");
}

TEST_F(ProfileBatchTest, WritesNothingWithoutCommit)
{
    {
        const ProfileBatch batch(m_store, m_file);
        Write("a", "2");
    }
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=1\n");
    EXPECT_EQ(Value("a"), "1");
    EXPECT_TRUE(Write("a", "3"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=3\n");
}

TEST_F(ProfileBatchTest, WritesNothingWhenItsEditsChangeNothing)
{
    ProfileBatch batch(m_store, m_file);
    Write("a", "1");
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(std::count(m_calls.Made().begin(), m_calls.Made().end(), "write"), 0);
}

TEST_F(ProfileBatchTest, LeavesOtherFilesToBeWrittenAtOnce)
{
    ProfileBatch batch(m_store, m_file);
    EXPECT_TRUE(m_store.Edit(m_folder / "g.dat", {"s", "k", "v"}));
    EXPECT_EQ(m_folder.Get("g.dat"), "[s]\r\nk=v\r\n");
    EXPECT_TRUE(batch.Commit());
}

TEST_F(ProfileBatchTest, IsTheFilesAlsoUnderAnotherSpelling)
{
    ProfileBatch batch(m_store, m_folder / "F.DAT");
    Write("a", "2");
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=1\n");
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=2\n");
}

TEST_F(ProfileBatchTest, CreatesAMissingFile)
{
    fs::remove(m_file);
    ProfileBatch batch(m_store, m_file);
    Write("a", "1");
    EXPECT_EQ(Value("a"), "1");
    EXPECT_FALSE(fs::exists(m_file));
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\r\na=1\r\n");
}

TEST_F(ProfileBatchTest, CreatesNoFileForEditsThatTakeOneAnotherBack)
{
    m_file = m_folder / "new.dat";
    ProfileBatch batch(m_store, m_file);
    Write("a", "2");
    EXPECT_TRUE(m_store.Edit(m_file, {"s", {}, {}}));
    EXPECT_TRUE(batch.Commit());
    EXPECT_FALSE(fs::exists(m_file));
}

TEST_F(ProfileBatchTest, WritesNothingWhenItsEditsTakeOneAnotherBack)
{
    ProfileBatch batch(m_store, m_file);
    Write("a", "2");
    Write("b", "3");
    Write("a", "1");
    EXPECT_TRUE(m_store.Edit(m_file, {"s", "b", {}}));
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=1\n");
    EXPECT_EQ(std::count(m_calls.Made().begin(), m_calls.Made().end(), "write"), 0);
}

TEST_F(ProfileBatchTest, EmptiesAFileWhoseOnlySectionItRemoves)
{
    ProfileBatch batch(m_store, m_file);
    Write("a", "2");
    EXPECT_TRUE(m_store.Edit(m_file, {"s", {}, {}}));
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "");
}

TEST_F(ProfileBatchTest, KeepsAChangeMadeMeanwhileFromOutside)
{
    ProfileBatch batch(m_store, m_file);
    Write("a", "2");
    EXPECT_EQ(Value("a"), "2");
    m_folder.Put("f.dat", "[s]\na=1\nfrom=outside\n");
    EXPECT_EQ(Value("from"), "outside");
    EXPECT_EQ(Value("a"), "2");
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=2\nfrom=outside\n");
}

TEST_F(ProfileBatchTest, LeavesTheOldFileWhenTheWriteFails)
{
    ProfileBatch batch(m_store, m_folder / "missing/f.dat");
    EXPECT_TRUE(m_store.Edit(m_folder / "missing/f.dat", {"s", "k", "v"}));
    EXPECT_FALSE(batch.Commit());

    ProfileBatch second(m_store, m_file);
    Write("a", "2");
    Write("b", "3");
    m_calls.FailAt(10, ENOSPC); // some call of the write; all of them in turn are the writer's test
    EXPECT_FALSE(second.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=1\n");
}

TEST_F(ProfileBatchTest, FailsOnWhatCannotBeRead)
{
    fs::remove(m_file);
    fs::create_directory(m_file);
    ProfileBatch batch(m_store, m_file);
    EXPECT_FALSE(Write("a", "2"));
    EXPECT_EQ(Value("a"), "none");
    EXPECT_FALSE(batch.Commit());
}

TEST_F(ProfileBatchTest, IsTheOnlyOneOnItsFile)
{
    ProfileBatch batch(m_store, m_file);
    EXPECT_THROW(ProfileBatch(m_store, m_file), std::logic_error);
    ProfileBatch other(m_store, m_folder / "g.dat");
    EXPECT_TRUE(batch.Commit());
    ProfileBatch(m_store, m_file);
}

TEST_F(ProfileBatchTest, LeavesALaterOneOfItsFileAloneOnceItIsWritten)
{
    std::optional<ProfileBatch> first(std::in_place, m_store, m_file);
    Write("a", "2");
    EXPECT_TRUE(first->Commit());
    ProfileBatch second(m_store, m_file);
    Write("a", "3");
    first.reset();
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=2\n");
    EXPECT_TRUE(second.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=3\n");
}

ProfileEdit RandomEdit(std::mt19937& random)
{
    static constexpr std::array<const char*, 6> kNames{"a", "A", "b", "", "[k]", "c c"};
    static constexpr std::array<const char*, 5> kValues{"1", "", " 2 ", "\"3\"", "[s]"};
    const auto pick = [&random](const auto& texts) { return texts.at(random() % texts.size()); };
    ProfileEdit edit{pick(kNames), pick(kNames), pick(kValues)};
    if (random() % 6 == 0) {
        edit.value.reset();
    }
    if (random() % 12 == 0) {
        edit.key.reset();
    }
    return edit;
}

TEST_F(ProfileBatchTest, LeavesTheBytesThatWritingKeyByKeyLeaves)
{
    constexpr const char* kStart = "x\n;c\n[a]\n\n b = 1\n\n[b]\rc c=2";
    for (unsigned seed = 0; seed < 15; ++seed) {
        m_folder.Put("f.dat", kStart);
        m_folder.Put("g.dat", kStart);
        std::mt19937 random(seed);
        ProfileBatch batch(m_store, m_file);
        for (int number = 0; number < 20; ++number) {
            const ProfileEdit edit = RandomEdit(random);
            ASSERT_TRUE(m_store.Edit(m_file, edit));
            ASSERT_TRUE(m_store.Edit(m_folder / "g.dat", edit));
            ASSERT_TRUE(random() % 4 != 0 || m_store.Read(m_file).Bytes() == m_folder.Get("g.dat"));
        }
        ASSERT_TRUE(batch.Commit());
        ASSERT_EQ(m_folder.Get("f.dat"), m_folder.Get("g.dat")) << seed;
    }
}

TEST_F(ProfileBatchTest, WritesNothingMoreOnceAFileCouldNotBeRead)
{
    const fs::path other = m_folder.Put("other.dat", "[s]\nb=1\n");
    ProfileBatch batch(m_store, m_file);
    EXPECT_TRUE(Write("a", "2"));
    m_calls.FailAt(1, EIO);
    EXPECT_EQ(m_store.Read(other).Bytes(), "");
    m_calls.FailAt(0, 0);
    EXPECT_EQ(m_store.Read(other).Value("s", "b"), "1");
    EXPECT_FALSE(Write("a", "3"));
    EXPECT_FALSE(m_store.Edit(other, {"s", "b", "2"}));
    EXPECT_FALSE(batch.Commit());
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=1\n");
    EXPECT_EQ(m_folder.Get("other.dat"), "[s]\nb=1\n");
    EXPECT_TRUE(Write("a", "3"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\na=3\n");
}

TEST_F(ProfileBatchTest, DoesNotServeAReadFromBeforeTheFileBecameUnreadable)
{
    fs::remove(m_file);
    ProfileBatch batch(m_store, m_file);
    EXPECT_EQ(Value("a"), "none");
    fs::create_directory(m_file);
    EXPECT_EQ(Value("a"), "none");
    fs::remove(m_file);
    EXPECT_FALSE(Write("a", "2"));
    EXPECT_FALSE(batch.Commit());
    EXPECT_FALSE(fs::exists(m_file));
}

TEST_F(ProfileBatchTest, DoesNotServeAReadFromBeforeTheSystemCouldNotTell)
{
    fs::remove(m_file);
    ProfileBatch batch(m_store, m_file);
    EXPECT_EQ(Value("a"), "none");
    m_calls.FailAt(1, EIO);
    EXPECT_EQ(Value("a"), "none");
    EXPECT_FALSE(Write("a", "2"));
    EXPECT_FALSE(batch.Commit());
    EXPECT_FALSE(fs::exists(m_file));
}

/// With the file under another spelling, so that the folder has to be searched for it.
TEST_F(ProfileBatchTest, WritesAllOrNothingWhateverCallFails)
{
    const auto write = [this](ProfileStore& store) {
        ProfileBatch batch(store, m_folder / "F.DAT");
        const bool isWritten = store.Edit(m_folder / "F.DAT", {"s", "a", "2"});
        return store.Edit(m_folder / "F.DAT", {"s", "b", "3"}) && isWritten && batch.Commit();
    };
    bool isThrough = false;
    for (int number = 1; !isThrough; ++number) {
        m_folder.Put("f.dat", "[s]\na=1\n");
        ProfileStore store(m_calls);
        m_calls.FailAt(number, EIO);
        const bool isWritten = write(store);
        const bool isNew = m_folder.Get("f.dat") == "[s]\na=2\nb=3\n";
        EXPECT_TRUE(isNew || (!isWritten && m_folder.Get("f.dat") == "[s]\na=1\n")) << number;
        EXPECT_EQ(m_folder.Names(), std::vector<std::string>{"f.dat"}) << number;
        isThrough = static_cast<int>(m_calls.Made().size()) < number;
        EXPECT_TRUE(isWritten || !isThrough);
    }
}

} // namespace
} // namespace quillon::store
