#include "store/file_reader.h"

#include "tests/store/failing_calls.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;

class ReadFileTest : public ::testing::Test
{
protected:
    FileState Read(const char* name)
    {
        m_bytes = Bytes(18); // of an earlier file
        return ReadFile(m_calls, (m_folder / name).c_str(), m_bytes).state;
    }

    support::TempFolder m_folder;
    FailingCalls m_calls;
    Bytes m_bytes;
};

TEST_F(ReadFileTest, ReadsEveryByte)
{
    const std::string all("a\0\r\n\xFF", 5);
    m_folder.Put("f", all);
    EXPECT_EQ(Read("f"), FileState::Regular);
    EXPECT_EQ(m_bytes.View(), all);
}

TEST_F(ReadFileTest, ReadsAnEmptyFile)
{
    m_folder.Put("f", "");
    EXPECT_EQ(Read("f"), FileState::Regular);
    EXPECT_EQ(m_bytes.View(), "");
}

TEST_F(ReadFileTest, ReadsThroughALink)
{
    m_folder.Put("f", "text");
    fs::create_symlink("f", m_folder / "g");
    EXPECT_EQ(Read("g"), FileState::Regular);
    EXPECT_EQ(m_bytes.View(), "text");
}

TEST_F(ReadFileTest, CallsMissingWhatIsNotThere)
{
    m_folder.Put("f", "text");
    fs::create_symlink("nowhere", m_folder / "g");
    for (const char* name : {"missing", "missing/f", "f/below", "g"}) {
        EXPECT_EQ(Read(name), FileState::Missing) << name;
        EXPECT_EQ(m_bytes.View(), "");
    }
}

TEST_F(ReadFileTest, RefusesAFolder)
{
    fs::create_directory(m_folder / "d");
    EXPECT_EQ(Read("d"), FileState::Refused);
    EXPECT_EQ(m_bytes.View(), "");
}

TEST_F(ReadFileTest, RefusesAPipeWithoutWaitingForItsWriter)
{
    ASSERT_EQ(::mkfifo((m_folder / "p").c_str(), 0600), 0);
    EXPECT_EQ(Read("p"), FileState::Refused);
}

TEST_F(ReadFileTest, RefusesADeviceWithoutOpeningIt)
{
    fs::create_symlink("/dev/zero", m_folder / "z");
    EXPECT_EQ(Read("z"), FileState::Refused);
    EXPECT_EQ(m_calls.Made(), std::vector<std::string>{"stat"});
}

TEST_F(ReadFileTest, RefusesLinksThatGoRoundInACircle)
{
    fs::create_symlink("c", m_folder / "c");
    EXPECT_EQ(Read("c"), FileState::Refused);
}

TEST_F(ReadFileTest, ReadsTheLargestFileAndRefusesALargerOne)
{
    const fs::path file = m_folder.Put("f", "");
    ASSERT_EQ(::truncate(file.c_str(), 67108864), 0); // 64 MiB
    EXPECT_EQ(Read("f"), FileState::Regular);
    EXPECT_EQ(m_bytes.View().size(), 67108864U);
    ASSERT_EQ(::truncate(file.c_str(), 67108865), 0);
    EXPECT_EQ(Read("f"), FileState::Refused);
    EXPECT_EQ(m_bytes.View(), "");
}

TEST_F(ReadFileTest, RefusesAFileWhenAnyCallFails)
{
    m_folder.Put("f", "text");
    for (const int number : {1, 2, 3, 4}) { // stat, open, fstat, read
        m_calls.FailAt(number, EIO);
        EXPECT_EQ(Read("f"), FileState::Refused) << m_calls.Made().back();
        EXPECT_EQ(m_bytes.View(), "");
    }
}

TEST_F(ReadFileTest, GoesOnWhenReadingIsInterrupted)
{
    m_folder.Put("f", "text");
    m_calls.FailAt(4, EINTR);
    EXPECT_EQ(Read("f"), FileState::Regular);
    EXPECT_EQ(m_bytes.View(), "text");
}

/// Another thing takes the file's place between the look and the opening.
class SwappingCalls : public FileCalls
{
public:
    explicit SwappingCalls(fs::path replacement)
        : m_replacement(std::move(replacement))
    {
    }

    int Open(const char* /*path*/, int flags, mode_t mode) override
    {
        return FileCalls::Open(m_replacement.c_str(), flags, mode);
    }

private:
    fs::path m_replacement;
};

TEST_F(ReadFileTest, RefusesAPipeThatTookTheFilesPlace)
{
    m_folder.Put("f", "text");
    ASSERT_EQ(::mkfifo((m_folder / "p").c_str(), 0600), 0);
    SwappingCalls calls(m_folder / "p");
    EXPECT_EQ(ReadFile(calls, (m_folder / "f").c_str(), m_bytes).state, FileState::Refused);
    EXPECT_EQ(m_bytes.View(), "");
}

/// Gives a byte at a time, as a slow medium may.
class BytewiseCalls : public FileCalls
{
public:
    ssize_t Read(int descriptor, void* buffer, std::size_t length) override
    {
        m_asked.push_back(length);
        return FileCalls::Read(descriptor, buffer, 1);
    }

    [[nodiscard]] const std::vector<std::size_t>& Asked() const noexcept { return m_asked; }

private:
    std::vector<std::size_t> m_asked;
};

TEST_F(ReadFileTest, ReadsPieceByPieceAndAsksForNoMoreThanIsLeft)
{
    m_folder.Put("f", "text");
    BytewiseCalls calls;
    EXPECT_EQ(ReadFile(calls, (m_folder / "f").c_str(), m_bytes).state, FileState::Regular);
    EXPECT_EQ(m_bytes.View(), "text");
    EXPECT_EQ(calls.Asked(), (std::vector<std::size_t>{4, 3, 2, 1}));
}

/// The file shrinks while it is read.
class EndingCalls : public FileCalls
{
public:
    ssize_t Read(int descriptor, void* buffer, std::size_t /*length*/) override
    {
        if (m_isRead++ == 0) {
            return FileCalls::Read(descriptor, buffer, 2);
        }
        errno = EINTR; // as an earlier call left it: an end says nothing of its own
        return 0;
    }

private:
    int m_isRead = 0;
};

TEST_F(ReadFileTest, RefusesAFileThatShrinksMeanwhile)
{
    m_folder.Put("f", "text");
    EndingCalls calls;
    EXPECT_EQ(ReadFile(calls, (m_folder / "f").c_str(), m_bytes).state, FileState::Refused);
    EXPECT_EQ(m_bytes.View(), "");
}

TEST_F(ReadFileTest, StampsTellReplacedChangedAndTouchedFilesApart)
{
    const fs::path file = m_folder.Put("f", "text");
    const FileStamp first = InspectFile(m_calls, file.c_str()).stamp;
    EXPECT_EQ(InspectFile(m_calls, file.c_str()).stamp, first);

    m_folder.Put("g", "text");
    fs::rename(m_folder / "g", file);
    const FileStamp replaced = InspectFile(m_calls, file.c_str()).stamp;
    EXPECT_NE(replaced.inode, first.inode);

    m_folder.Put("f", "texts");
    EXPECT_EQ(InspectFile(m_calls, file.c_str()).stamp.size, 5);

    const std::array<timespec, 2> times{{{1000, 7}, {1000, 7}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0);
    EXPECT_EQ(InspectFile(m_calls, file.c_str()).stamp.modified, 1'000'000'000'007);
}

} // namespace
} // namespace quillon::store
