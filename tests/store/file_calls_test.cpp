#include "store/file_calls.h"

#include <gtest/gtest.h>

#include <fcntl.h>

namespace quillon::store {
namespace {

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
