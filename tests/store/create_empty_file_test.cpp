#include "store/safe_write.h"

#include "tests/store/failing_calls.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <system_error>
#include <vector>

namespace quillon::store {
namespace {

using Names = std::vector<std::string>;

TEST(CreateEmptyFile, CreatesTheFile)
{
    support::TempFolder folder;
    FileCalls calls;
    CreateEmptyFile(calls, folder / "f.dat");
    EXPECT_EQ(folder.Get("f.dat"), "");
}

TEST(CreateEmptyFile, BringsFileAndFolderToTheDisk)
{
    const support::TempFolder folder;
    FailingCalls calls;
    CreateEmptyFile(calls, folder / "f.dat");
    EXPECT_EQ(calls.Made(), (Names{"open", "open", "fsync", "close", "fsync", "close"}));
}

TEST(CreateEmptyFile, LeavesNoFileWhenACallFails)
{
    const support::TempFolder folder;
    FailingCalls calls;
    for (int number = 1; number <= 5; ++number) {
        calls.FailAt(number, EIO);
        EXPECT_THROW(CreateEmptyFile(calls, folder / "f.dat"), std::system_error) << number;
        EXPECT_TRUE(folder.Names().empty()) << number;
    }
}

TEST(CreateEmptyFile, ThrowsInAMissingFolder)
{
    support::TempFolder folder;
    FileCalls calls;
    EXPECT_THROW(CreateEmptyFile(calls, folder / "missing/f.dat"), std::system_error);
}

TEST(CreateEmptyFile, ThrowsOnAFileThatIsThereAndLeavesIt)
{
    support::TempFolder folder;
    folder.Put("f.dat", "old");
    FileCalls calls;
    EXPECT_THROW(CreateEmptyFile(calls, folder / "f.dat"), std::system_error);
    EXPECT_EQ(folder.Get("f.dat"), "old");
}

} // namespace
} // namespace quillon::store
