#include "store/file_calls.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

namespace quillon::store {
namespace {

TEST(FileCallsTest, ListEverythingInAFolderButItselfAndTheOneAbove)
{
    support::TempFolder folder;
    folder.Put("file", "");
    std::filesystem::create_directory(folder / ".hidden");
    std::vector<FolderEntry> entries;
    EXPECT_EQ(FileCalls().List(folder.Path().c_str(), entries), 0);
    std::vector<std::string> names;
    std::ranges::transform(entries, std::back_inserter(names), &FolderEntry::name);
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<std::string>{".hidden", "file"}));
}

TEST(FileCallsTest, TellOfAFailureLikeTheSystem)
{
    std::vector<FolderEntry> entries;
    EXPECT_EQ(FileCalls().List("/no/such/folder", entries), -1);
    EXPECT_EQ(errno, ENOENT);
}

/// Gives every file the same descriptor, and counts what is closed.
class OneDescriptor : public FileCalls
{
public:
    explicit OneDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }

    int Open(const char* /*path*/, int /*flags*/, mode_t /*mode*/) override { return m_descriptor; }

    int Close(int descriptor) override
    {
        closed += descriptor == m_descriptor ? 1 : 0;
        return 0;
    }

    int closed = 0;

private:
    int m_descriptor;
};

TEST(OpenFileTest, ClosesTheFirstDescriptorTooWhichAFileGetsWhereThereIsNoStandardInput)
{
    OneDescriptor calls(0);
    {
        const OpenFile file(calls, "any", O_RDONLY);
        EXPECT_TRUE(file);
    }
    EXPECT_EQ(calls.closed, 1);
}

TEST(OpenFileTest, ClosesNothingWhenNothingWasOpened)
{
    OneDescriptor calls(-1);
    {
        const OpenFile file(calls, "any", O_RDONLY);
        EXPECT_FALSE(file);
    }
    EXPECT_EQ(calls.closed, 0);
}

} // namespace
} // namespace quillon::store
