#include "store/stale_files.h"

#include "tests/store/failing_calls.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/stat.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;

class StaleFiles : public ::testing::Test
{
protected:
    void Remove() { RemoveStaleFiles(m_calls, ProgramFolder(m_folder / "Quillon")); }

    bool IsThere(const char* name) { return fs::exists(fs::symlink_status(m_folder / name)); }

    support::TempFolder m_folder;
    FailingCalls m_calls;
};

struct NameRow
{
    const char* name;
    const char* file;
};

class StaleFilesThatGo : public StaleFiles, public ::testing::WithParamInterface<NameRow>
{
};

TEST_P(StaleFilesThatGo, GoAtTheStart)
{
    m_folder.Put(GetParam().file, "half a te");
    Remove();
    EXPECT_FALSE(IsThere(GetParam().file));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, StaleFilesThatGo, ::testing::Values(
    NameRow{"saved systems", ".QuillonSystems.dat.tmp"},
    NameRow{"saved systems in another spelling", ".quillonsystems.DAT.tmp"},
    NameRow{"maker", "Antennas/.Acme.DAT.tmp"},
    NameRow{"maker in another spelling", "Antennas/.acme.dat.tmp"},
    NameRow{"maker beyond ASCII", "Antennas/.M\xC3\xBChle.DAT.tmp"},
    NameRow{"maker with points", "Antennas/.A.B.DAT.tmp"},
    NameRow{"index", "Antennas/.ANTENNAS.ZEP.tmp"}), support::RowName());

// clang-format on

class FilesThatStay : public StaleFiles, public ::testing::WithParamInterface<NameRow>
{
};

TEST_P(FilesThatStay, Stay)
{
    m_folder.Put(GetParam().file, "a person's");
    Remove();
    EXPECT_EQ(m_folder.Get(GetParam().file), "a person's");
    EXPECT_EQ(std::ranges::count(m_calls.Made(), "unlink"), 0);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, FilesThatStay, ::testing::Values(
    NameRow{"saved systems", "QuillonSystems.dat"},
    NameRow{"maker", "Antennas/Acme.DAT"},
    NameRow{"maker whose name looks temporary", "Antennas/.Acme.tmp.DAT"},
    NameRow{"copy by a person", "QuillonSystems.dat.tmp"},
    NameRow{"copy of a copy", ".QuillonSystems.dat.tmp.tmp"},
    NameRow{"other ending", ".QuillonSystems.dat.bak"},
    NameRow{"ending in capitals", ".QuillonSystems.dat.TMP"},
    NameRow{"other file of the program", ".QuillonAntennas.dat.tmp"},
    NameRow{"saved systems of another program", ".OtherSystems.dat.tmp"},
    NameRow{"maker in the program folder", ".Acme.DAT.tmp"},
    NameRow{"saved systems among the makers", "Antennas/.QuillonSystems.txt.tmp"},
    NameRow{"other file among the makers", "Antennas/.notes.txt.tmp"},
    NameRow{"without ending", "Antennas/.Acme.tmp"},
    NameRow{"without name", "Antennas/.tmp"},
    NameRow{"name of nothing but the ending", "Antennas/..DAT.tmp"},
    NameRow{"name that no maker can have", "Antennas/.A|B.DAT.tmp"},
    NameRow{"cable maker", "Coax/.Cables.DAT.tmp"},
    NameRow{"further below", "Antennas/old/.Acme.DAT.tmp"},
    NameRow{"elsewhere", "Help/.Quillon.hlp.tmp"}), support::RowName());

// clang-format on

TEST_F(StaleFiles, OnlyRegularFilesGo)
{
    m_folder.Put("other", "precious");
    fs::create_symlink("other", m_folder / ".QuillonSystems.dat.tmp");
    fs::create_directories(m_folder / "Antennas/.Acme.DAT.tmp");
    ASSERT_EQ(::mkfifo((m_folder / "Antennas/.Bravo.DAT.tmp").c_str(), 0600), 0);
    Remove();
    EXPECT_EQ(m_folder.Get("other"), "precious");
    EXPECT_TRUE(IsThere(".QuillonSystems.dat.tmp"));
    EXPECT_TRUE(IsThere("Antennas/.Acme.DAT.tmp"));
    EXPECT_TRUE(IsThere("Antennas/.Bravo.DAT.tmp"));
}

TEST_F(StaleFiles, GoBesideTheFileThatALinkLeadsTo)
{
    m_folder.Put("kept/pairs", "text");
    m_folder.Put("kept/.pairs.tmp", "half a te");
    m_folder.Put("kept/.QuillonSystems.dat.tmp", "a person's");
    fs::create_symlink("kept/pairs", m_folder / "QuillonSystems.dat");
    Remove();
    EXPECT_FALSE(IsThere("kept/.pairs.tmp"));
    EXPECT_TRUE(IsThere("kept/.QuillonSystems.dat.tmp"));
    EXPECT_EQ(m_folder.Get("kept/pairs"), "text");
    EXPECT_TRUE(IsThere("QuillonSystems.dat"));
}

TEST_F(StaleFiles, StayBesideTheFileThatAnyOtherLinkLeadsTo)
{
    m_folder.Put("kept/.pairs.tmp", "a person's");
    fs::create_symlink("kept/pairs", m_folder / "notes");
    fs::create_symlink("loop.DAT", m_folder / "loop.DAT");
    Remove();
    EXPECT_TRUE(IsThere("kept/.pairs.tmp"));
}

TEST_F(StaleFiles, StayWhenTheSystemFails)
{
    m_folder.Put(".QuillonSystems.dat.tmp", "half a te");
    m_folder.Put("Antennas/Acme.DAT", "");
    Remove();
    const int made = static_cast<int>(m_calls.Made().size());
    for (int number = 1; number <= made; ++number) {
        m_folder.Put(".QuillonSystems.dat.tmp", "half a te");
        m_calls.FailAt(number, EIO);
        EXPECT_NO_THROW(Remove()) << number;
    }
}

} // namespace
} // namespace quillon::store
