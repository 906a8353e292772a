#include "ui/platform/single_instance.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <array>
#include <csignal>
#include <optional>

#include <sys/wait.h>
#include <unistd.h>

namespace quillon::ui {
namespace {

class SingleInstanceTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

    [[nodiscard]] std::filesystem::path Folder() const { return m_folder.path().toStdString(); }

    [[nodiscard]] QDir Entries() const { return {m_folder.path()}; }

private:
    QTemporaryDir m_folder;
};

/// Another process that holds the folder until it is killed.
class Holder
{
public:
    explicit Holder(const std::filesystem::path& folder)
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) {
            return;
        }
        m_process = ::fork();
        if (m_process == 0) {
            const SingleInstance held(folder);
            const char answer = held.IsSecondCopy() ? 'n' : 'y';
            if (::write(ends[1], &answer, 1) == 1) {
                ::pause();
            }
            ::_exit(0);
        }
        m_holds = ::read(ends[0], &m_answer, 1) == 1 && m_answer == 'y';
        ::close(ends[0]);
        ::close(ends[1]);
    }

    ~Holder() { Kill(); }

    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

    [[nodiscard]] bool Holds() const { return m_holds; }

    void Kill()
    {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            ::waitpid(m_process, nullptr, 0);
            m_process = -1;
        }
    }

private:
    pid_t m_process = -1;
    char m_answer = 0;
    bool m_holds = false;
};

TEST_F(SingleInstanceTest, TheFirstCopyIsNoSecondCopy)
{
    EXPECT_FALSE(SingleInstance(Folder()).IsSecondCopy());
}

TEST_F(SingleInstanceTest, ACopyBesideARunningOneIsTheSecond)
{
    const Holder first(Folder());
    ASSERT_TRUE(first.Holds());
    EXPECT_TRUE(SingleInstance(Folder()).IsSecondCopy());
}

TEST_F(SingleInstanceTest, ASecondCopyThatEndsLeavesTheFirstItsLock)
{
    const Holder first(Folder());
    ASSERT_TRUE(first.Holds());
    EXPECT_TRUE(SingleInstance(Folder()).IsSecondCopy());
    EXPECT_TRUE(SingleInstance(Folder()).IsSecondCopy());
}

TEST_F(SingleInstanceTest, ACrashNeverLocksTheUserOut)
{
    Holder crashed(Folder());
    ASSERT_TRUE(crashed.Holds());
    crashed.Kill();
    EXPECT_FALSE(SingleInstance(Folder()).IsSecondCopy());
}

TEST_F(SingleInstanceTest, TheLockGoesWithTheObject)
{
    std::optional<SingleInstance> first(Folder());
    first.reset();
    EXPECT_FALSE(SingleInstance(Folder()).IsSecondCopy());
}

TEST_F(SingleInstanceTest, CopiesInDifferentFoldersDoNotMeet)
{
    const QTemporaryDir other;
    const Holder first(Folder());
    ASSERT_TRUE(first.Holds());
    EXPECT_FALSE(SingleInstance(other.path().toStdString()).IsSecondCopy());
}

TEST_F(SingleInstanceTest, NothingIsWrittenIntoTheFolder)
{
    const SingleInstance first(Folder());
    EXPECT_TRUE(Entries().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

TEST_F(SingleInstanceTest, AFolderThatCannotBeLockedKeepsNobodyAway)
{
    EXPECT_FALSE(SingleInstance(Folder() / "missing").IsSecondCopy());
}

} // namespace
} // namespace quillon::ui
