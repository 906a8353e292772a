#include "app/unwritable_folder.h"

#include "tests/support/recording_notifier.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quillon {
namespace {

/// Answers whether a folder may be written as it is told to.
class Rights : public store::FileCalls
{
public:
    Rights(std::string_view folder, int error)
        : m_folder(folder)
        , m_error(error)
    {
    }

    int MayWrite(const char* path) override
    {
        errno = m_error;
        return path == m_folder ? -1 : 0;
    }

private:
    std::string m_folder;
    int m_error;
};

struct Row
{
    const char* name;
    const char* forbidden;
    int error;
    bool isTold;
};

class UnwritableFolder : public ::testing::TestWithParam<Row>
{
};

TEST_P(UnwritableFolder, IsTold)
{
    Rights calls(GetParam().forbidden, GetParam().error);
    support::RecordingNotifier notifier;
    TellUnwritableFolder(calls, store::ProgramFolder("/some where/Quillon"), notifier);
    if (!GetParam().isTold) {
        EXPECT_TRUE(notifier.Messages().empty());
        return;
    }
    ASSERT_EQ(notifier.Messages().size(), 1U);
    EXPECT_EQ(notifier.Messages().front().title, "Folder Cannot Be Written");
    EXPECT_EQ(notifier.Messages().front().text, "The folder " + std::string(GetParam().forbidden) +
                                                    " cannot be written. Quillon computes and prints all the same, but "
                                                    "it cannot save systems or antennas there.");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UnwritableFolder,
    ::testing::Values(Row{"writable", "", 0, false}, Row{"no right", "/some where", EACCES, true},
                      Row{"read-only medium", "/some where", EROFS, true}, Row{"immutable", "/some where", EPERM, true},
                      Row{"the antennas alone", "/some where/Antennas", EACCES, true},
                      Row{"no antennas", "/some where/Antennas", ENOENT, false},
                      Row{"a failing disk", "/some where", EIO, false},
                      Row{"the coax catalogue, which is only read", "/some where/Coax", EACCES, false}),
    support::RowName());

} // namespace
} // namespace quillon
