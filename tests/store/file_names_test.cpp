#include "store/file_names.h"

#include "tests/store/failing_calls.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <dirent.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class FileNames : public ::testing::Test
{
protected:
    fs::path Resolve(const fs::path& path) { return FindName(m_calls, path).path; }

    support::TempFolder m_folder;
    FailingCalls m_calls;
};

TEST_F(FileNames, ResolveToTheSpellingOnDisk)
{
    m_folder.Put("Foo.dat", "");
    EXPECT_EQ(Resolve(m_folder / "FOO.DAT"), m_folder / "Foo.dat");
}

TEST_F(FileNames, ResolveFoldersToo)
{
    m_folder.Put("COAX/Foo.dat", "");
    EXPECT_EQ(Resolve(m_folder / "Coax/foo.dat"), m_folder / "COAX/Foo.dat");
    EXPECT_EQ(Resolve(m_folder / "Coax/new.dat"), m_folder / "COAX/new.dat");
}

TEST_F(FileNames, PreferTheExactSpelling)
{
    m_folder.Put("FOO.dat", "");
    m_folder.Put("foo.dat", "");
    EXPECT_EQ(Resolve(m_folder / "foo.dat"), m_folder / "foo.dat");
}

TEST_F(FileNames, PreferTheExactSpellingOfALinkThatLeadsNowhere)
{
    fs::create_symlink("nowhere", m_folder / "foo.dat");
    m_folder.Put("FOO.dat", "");
    EXPECT_EQ(Resolve(m_folder / "foo.dat"), m_folder / "foo.dat");
}

TEST_F(FileNames, PreferTheNearestOfOtherSpellings)
{
    m_folder.Put("FOO.DAT", "");
    m_folder.Put("Foo.dat", "");
    EXPECT_EQ(Resolve(m_folder / "Foo.DAt"), m_folder / "Foo.dat");
    EXPECT_EQ(Resolve(m_folder / "FOO.dAT"), m_folder / "FOO.DAT");
}

TEST_F(FileNames, GoByWhatStandsBeforeTheExtensionFirst)
{
    m_folder.Put("A.B.DAT", "");
    m_folder.Put("a.b.dat", "");
    EXPECT_EQ(Resolve(m_folder / "a.b.DAT"), m_folder / "a.b.dat");
    EXPECT_EQ(Resolve(m_folder / "A.B.dat"), m_folder / "A.B.DAT");
}

TEST_F(FileNames, PreferTheFirstByCharacterCodeAmongEquals)
{
    m_folder.Put("fOo", "");
    m_folder.Put("Foo", "");
    EXPECT_EQ(Resolve(m_folder / "FOo"), m_folder / "Foo");
}

TEST_F(FileNames, StayAsGivenWhenNothingIsFound)
{
    EXPECT_EQ(Resolve(m_folder / "new.dat"), m_folder / "new.dat");
    EXPECT_EQ(Resolve(m_folder / "missing/new.dat"), m_folder / "missing/new.dat");
    EXPECT_EQ(Resolve(""), "");
    EXPECT_EQ(Resolve("no-such-name-here"), "no-such-name-here");
}

TEST_F(FileNames, AreMissingWhereThereCanBeNone)
{
    const fs::path belowFile = m_folder.Put("file", "") / "name";
    EXPECT_EQ(FindName(m_calls, belowFile), (FoundName{NameState::Missing, belowFile}));
    const fs::path tooLong = m_folder / std::string(256, 'n');
    EXPECT_EQ(FindName(m_calls, tooLong), (FoundName{NameState::Missing, tooLong}));
}

TEST_F(FileNames, OfAnotherCaseBeyondASCIIAreOtherNames)
{
    m_folder.Put("\xC3\x89.dat", "");
    EXPECT_EQ(Resolve(m_folder / "\xC3\xA9.dat"), m_folder / "\xC3\xA9.dat");
}

TEST_F(FileNames, ListEverythingButFolders)
{
    m_folder.Put("b", "");
    m_folder.Put("A", "");
    fs::create_directory(m_folder / "folder");
    fs::create_symlink("folder", m_folder / "link to folder");
    fs::create_symlink("nowhere", m_folder / "link");
    ASSERT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ListFiles(m_calls, m_folder.Path()), (Names{"A", "b", "link", "pipe"}));
}

/// A file system whose folders do not tell what is in them.
class KindlessCalls : public FileCalls
{
public:
    int List(const char* path, std::vector<FolderEntry>& entries) override
    {
        const int result = FileCalls::List(path, entries);
        for (FolderEntry& entry : entries) {
            entry.type = DT_UNKNOWN;
        }
        return result;
    }
};

TEST_F(FileNames, AreNotTakenForFilesWhereTheFolderKeepsNoKinds)
{
    m_folder.Put("file", "");
    fs::create_directory(m_folder / "folder");
    KindlessCalls calls;
    EXPECT_EQ(ListFiles(calls, m_folder.Path()), Names{"file"});
}

TEST_F(FileNames, ListNothingOfWhatIsNoFolder)
{
    EXPECT_EQ(ListFiles(m_calls, m_folder / "missing"), Names());
    EXPECT_EQ(ListFiles(m_calls, m_folder.Put("file", "")), Names());
}

TEST_F(FileNames, ListTheCurrentFolderByTheEmptyPath)
{
    m_folder.Put("f", "");
    const fs::path before = fs::current_path();
    fs::current_path(m_folder.Path());
    EXPECT_EQ(ListFiles(m_calls, ""), Names{"f"});
    EXPECT_EQ(Resolve("F"), "f");
    fs::current_path(before);
}

TEST_F(FileNames, ExistAlsoOnLinksThatLeadNowhere)
{
    fs::create_symlink("nowhere", m_folder / "link");
    EXPECT_EQ(FindName(m_calls, m_folder / "link").state, NameState::There);
    EXPECT_EQ(FindName(m_calls, m_folder / "nowhere").state, NameState::Missing);
}

TEST_F(FileNames, AreFollowedFromLinkToLink)
{
    m_folder.Put("real/file", "");
    fs::create_symlink("file", m_folder / "real/second");
    fs::create_symlink("real/second", m_folder / "first");
    fs::create_symlink(m_folder / "nowhere", m_folder / "dangling");
    EXPECT_EQ(FollowLinks(m_calls, m_folder / "first"), m_folder / "real/file");
    EXPECT_EQ(FollowLinks(m_calls, m_folder / "dangling"), m_folder / "nowhere");
    EXPECT_EQ(FollowLinks(m_calls, m_folder / "real/file"), m_folder / "real/file");
}

TEST_F(FileNames, AreNotFollowedInACircle)
{
    fs::create_symlink("b", m_folder / "a");
    fs::create_symlink("a", m_folder / "b");
    EXPECT_EQ(FollowLinks(m_calls, m_folder / "a"), std::nullopt);
}

TEST_F(FileNames, AreFollowedOverAsManyLinksAsTheSystemFollows)
{
    m_folder.Put("0", "");
    for (int link = 1; link <= 41; ++link) {
        fs::create_symlink(std::to_string(link - 1), m_folder / std::to_string(link));
    }
    EXPECT_EQ(FollowLinks(m_calls, m_folder / "40"), m_folder / "0");
    EXPECT_TRUE(std::ifstream(m_folder / "40").is_open());
    EXPECT_EQ(FollowLinks(m_calls, m_folder / "41"), std::nullopt);
    EXPECT_FALSE(std::ifstream(m_folder / "41").is_open());
}

TEST_F(FileNames, AreUnknownWhenTheSystemCannotTell)
{
    m_folder.Put("Antennas/Foo.dat", "");
    const fs::path other = m_folder / "ANTENNAS/FOO.DAT";
    EXPECT_EQ(FindName(m_calls, other), (FoundName{NameState::There, m_folder / "Antennas/Foo.dat"}));
    const int made = static_cast<int>(m_calls.Made().size());
    EXPECT_GE(made, 4);
    for (int number = 1; number <= made; ++number) {
        m_calls.FailAt(number, EIO);
        EXPECT_EQ(FindName(m_calls, other), (FoundName{NameState::Unknown, other})) << number;
    }
}

TEST_F(FileNames, AreNotListedFromAFolderThatFails)
{
    m_folder.Put("f", "");
    m_calls.FailAt(1, EIO);
    EXPECT_EQ(ListFiles(m_calls, m_folder.Path()), Names());
}

TEST_F(FileNames, AreNotTakenAsNoLinksWhenTheSystemCannotTell)
{
    m_folder.Put("f", "");
    fs::create_symlink("f", m_folder / "link");
    for (const int number : {1, 2}) {
        m_calls.FailAt(number, EIO);
        EXPECT_EQ(FollowLinks(m_calls, m_folder / "link"), std::nullopt) << number;
    }
}

} // namespace
} // namespace quillon::store
