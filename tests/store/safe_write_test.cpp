#include "store/safe_write.h"

#include "tests/store/failing_calls.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr const char* kTemporary = ".f.dat.tmp";

// Places of some calls in a complete write, see BringsFileAndFolderToTheDiskInTheRightOrder.
constexpr int kWrite = 7;
constexpr int kFileSync = 9;
constexpr int kFileClose = 10;
constexpr int kRename = 11;
constexpr int kFolderSync = 12;

class ReplaceFileTest : public ::testing::Test
{
protected:
    mode_t Mode(const char* name)
    {
        struct stat status = {};
        EXPECT_EQ(::stat((m_folder / name).c_str(), &status), 0);
        return status.st_mode & 07777U;
    }

    support::TempFolder m_folder;
    fs::path m_file = m_folder / "f.dat";
    FailingCalls m_calls;
};

TEST_F(ReplaceFileTest, PutsTheNewTextInThePlaceOfTheOld)
{
    m_folder.Put("f.dat", "a much longer old text");
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "new");
    EXPECT_EQ(m_folder.Names(), Names{"f.dat"});
}

TEST_F(ReplaceFileTest, BringsFileAndFolderToTheDiskInTheRightOrder)
{
    m_folder.Put("f.dat", "old");
    ASSERT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_calls.Made(), (Names{"readlink", "stat", "access", "open", "unlink", "open", "write", "fchmod", "fsync",
                                     "close", "rename", "fsync", "close"}));
}

TEST_F(ReplaceFileTest, CreatesAMissingFileWithTheModeThatTheUserMaskLeaves)
{
    const std::array<std::pair<mode_t, unsigned>, 2> rows{{{0, 0666U}, {027, 0640U}}};
    for (const auto& [mask, mode] : rows) {
        fs::remove(m_file);
        const mode_t before = ::umask(mask);
        EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
        ::umask(before);
        EXPECT_EQ(m_folder.Get("f.dat"), "new");
        EXPECT_EQ(Mode("f.dat"), mode);
    }
}

TEST_F(ReplaceFileTest, KeepsTheModeAlsoAgainstTheUserMask)
{
    fs::permissions(m_folder.Put("f.dat", "old"), fs::perms(0666));
    const mode_t before = ::umask(077);
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    ::umask(before);
    EXPECT_EQ(Mode("f.dat"), 0666U);
}

TEST_F(ReplaceFileTest, WritesAnEmptyText)
{
    m_folder.Put("f.dat", "old");
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, ""));
    EXPECT_EQ(m_folder.Get("f.dat"), "");
}

TEST_F(ReplaceFileTest, WorksOnANameWithoutFolder)
{
    const fs::path before = fs::current_path();
    fs::current_path(m_folder.Path());
    EXPECT_TRUE(ReplaceFile(m_calls, "f.dat", "new"));
    fs::current_path(before);
    EXPECT_EQ(m_folder.Get("f.dat"), "new");
}

struct ErrorRow
{
    const char* name;
    int error;
};

/// Each call of a write up to the one that puts the new file in place fails once with each error.
class ReplaceFileFailure : public ReplaceFileTest, public ::testing::WithParamInterface<ErrorRow>
{
};

TEST_P(ReplaceFileFailure, LeavesTheOldFileAndNoTemporaryOne)
{
    for (int number = 1; number <= kRename; ++number) {
        m_folder.Put("f.dat", "old");
        m_calls.FailAt(number, GetParam().error);
        EXPECT_FALSE(ReplaceFile(m_calls, m_file, "new")) << number;
        EXPECT_EQ(m_folder.Get("f.dat"), "old") << number;
        EXPECT_EQ(m_folder.Names(), Names{"f.dat"}) << number;
    }
}

TEST_P(ReplaceFileFailure, AtTheFoldersSyncIsReportedThoughTheNewFileStands)
{
    m_folder.Put("f.dat", "old");
    m_calls.FailAt(kFolderSync, GetParam().error);
    EXPECT_FALSE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "new");
    EXPECT_EQ(m_folder.Names(), Names{"f.dat"});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Errors, ReplaceFileFailure, ::testing::Values(
    ErrorRow{"damaged disk", EIO},
    ErrorRow{"full disk", ENOSPC},
    ErrorRow{"quota used up", EDQUOT},
    ErrorRow{"no permission", EACCES},
    ErrorRow{"read-only file system", EROFS},
    ErrorRow{"no memory", ENOMEM}), support::RowName());

// clang-format on

TEST_F(ReplaceFileTest, GoesOnWhenACallIsInterrupted)
{
    for (const int number : {kWrite, kFileSync, kFileClose, kFolderSync}) {
        m_folder.Put("f.dat", "old");
        m_calls.FailAt(number, EINTR);
        EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new")) << number;
        EXPECT_EQ(m_folder.Get("f.dat"), "new") << number;
    }
}

TEST_F(ReplaceFileTest, TakesAFolderThatKnowsNoSyncingAsSynced)
{
    m_folder.Put("f.dat", "old");
    m_calls.FailAt(kFolderSync, EINVAL);
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
}

class SlowWriter : public FileCalls
{
public:
    explicit SlowWriter(std::size_t step)
        : m_step(step)
    {
    }

    ssize_t Write(int descriptor, const void* buffer, std::size_t length) override
    {
        const ssize_t count = FileCalls::Write(descriptor, buffer, std::min(length, m_step));
        errno = EINTR; // as an earlier call left it: no written byte is no error
        return count;
    }

private:
    std::size_t m_step;
};

TEST_F(ReplaceFileTest, WritesOnAfterShortWrites)
{
    SlowWriter calls(3);
    EXPECT_TRUE(ReplaceFile(calls, m_file, "0123456789"));
    EXPECT_EQ(m_folder.Get("f.dat"), "0123456789");
}

TEST_F(ReplaceFileTest, FailsWhenNothingGetsWritten)
{
    m_folder.Put("f.dat", "old");
    SlowWriter calls(0);
    EXPECT_FALSE(ReplaceFile(calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "old");
    EXPECT_EQ(m_folder.Names(), Names{"f.dat"});
}

TEST_F(ReplaceFileTest, KeepsTheOldFileWhenTheSystemStopsTheWriteHalfWay)
{
    m_folder.Put("f.dat", "old");
    auto* const signalBefore = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{4096, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_FALSE(ReplaceFile(m_calls, m_file, std::string(10000, 'n')));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, signalBefore);
    EXPECT_EQ(m_folder.Get("f.dat"), "old");
    EXPECT_EQ(m_folder.Names(), Names{"f.dat"});
}

TEST_F(ReplaceFileTest, FailsInAMissingFolder)
{
    EXPECT_FALSE(ReplaceFile(m_calls, m_folder / "missing/f.dat", "new"));
    EXPECT_TRUE(m_folder.Names().empty());
}

TEST_F(ReplaceFileTest, FailsBelowAFile)
{
    m_folder.Put("f.dat", "old");
    EXPECT_FALSE(ReplaceFile(m_calls, m_folder / "f.dat/g.dat", "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "old");
}

TEST_F(ReplaceFileTest, LeavesAloneWhatIsNoRegularFile)
{
    fs::create_directory(m_file);
    EXPECT_FALSE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_TRUE(fs::is_directory(m_file));
    // A pipe of the test's own: run as root, a mistake would replace a device of the machine.
    ASSERT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", m_folder / "link");
    EXPECT_FALSE(ReplaceFile(m_calls, m_folder / "link", "new"));
    EXPECT_TRUE(fs::is_fifo(m_folder / "pipe"));
    EXPECT_EQ(m_folder.Names(), (Names{"f.dat", "link", "pipe"}));
}

TEST_F(ReplaceFileTest, PutsPartsOneBehindTheOther)
{
    const std::array<std::string_view, 4> parts{"a", "", "bc", "d"};
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, parts));
    EXPECT_EQ(m_folder.Get("f.dat"), "abcd");
}

TEST_F(ReplaceFileTest, RemovesAStaleTemporaryFile)
{
    m_folder.Put("f.dat", "old");
    m_folder.Put(kTemporary, "left by a crash, longer than the new text");
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "new");
    EXPECT_EQ(m_folder.Names(), Names{"f.dat"});
}

TEST_F(ReplaceFileTest, NeverWritesThroughALinkAtTheTemporaryName)
{
    m_folder.Put("f.dat", "old");
    m_folder.Put("other", "untouched");
    fs::create_symlink("other", m_folder / kTemporary);
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("other"), "untouched");
    EXPECT_EQ(m_folder.Get("f.dat"), "new");
}

/// Somebody else takes the temporary name in the moment it is free.
class TakingCalls : public FileCalls
{
public:
    explicit TakingCalls(fs::path file)
        : m_file(std::move(file))
    {
    }

    int Unlink(const char* path) override
    {
        const int result = FileCalls::Unlink(path);
        if (!m_file.empty()) {
            fs::create_hard_link(std::exchange(m_file, {}), path);
        }
        return result;
    }

private:
    fs::path m_file;
};

TEST_F(ReplaceFileTest, NeverWritesIntoAFileThatTookTheTemporaryName)
{
    m_folder.Put("f.dat", "old");
    TakingCalls calls(m_folder.Put("other", "untouched"));
    EXPECT_FALSE(ReplaceFile(calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "old");
    EXPECT_EQ(m_folder.Get("other"), "untouched");
}

TEST_F(ReplaceFileTest, FailsWhenAFolderHasTheTemporaryName)
{
    m_folder.Put("f.dat", "old");
    fs::create_directory(m_folder / kTemporary);
    EXPECT_FALSE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_folder.Get("f.dat"), "old");
}

TEST_F(ReplaceFileTest, ReplacesTheFileBehindALinkAndKeepsTheLink)
{
    m_folder.Put("real/g.dat", "old");
    fs::create_symlink("g.dat", m_folder / "real/second");
    fs::create_symlink("real/second", m_file);
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_TRUE(fs::is_symlink(m_file));
    EXPECT_TRUE(fs::is_symlink(m_folder / "real/second"));
    EXPECT_FALSE(fs::is_symlink(m_folder / "real/g.dat"));
    EXPECT_EQ(m_folder.Get("real/g.dat"), "new");
    EXPECT_EQ(m_folder.Names(), (Names{"f.dat", "real"}));
}

TEST_F(ReplaceFileTest, CreatesTheFileThatALinkLeadsTo)
{
    fs::create_symlink("g.dat", m_file);
    EXPECT_TRUE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_TRUE(fs::is_symlink(m_file));
    EXPECT_EQ(m_folder.Get("g.dat"), "new");
}

TEST_F(ReplaceFileTest, FailsOnLinksThatGoRoundInACircle)
{
    fs::create_symlink("g.dat", m_file);
    fs::create_symlink("f.dat", m_folder / "g.dat");
    EXPECT_FALSE(ReplaceFile(m_calls, m_file, "new"));
    EXPECT_EQ(m_folder.Names(), (Names{"f.dat", "g.dat"}));
}

} // namespace
} // namespace quillon::store
