#include "store/ini_manager.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <system_error>

namespace quillon::store {
namespace {

using Names = std::vector<std::string>;

class INIManagerTest : public ::testing::Test
{
protected:
    /// Binds the manager to a file of these bytes.
    void Bind(std::string_view bytes)
    {
        m_folder.Put("f.DAT", bytes);
        m_manager.FileName(m_file);
    }

    support::TempFolder m_folder;
    std::string m_file = (m_folder / "f.DAT").string();
    ProfileStore m_store;
    INIManager m_manager{m_store};
};

TEST_F(INIManagerTest, SettingTheFileNameCreatesAMissingFileEmpty)
{
    m_manager.FileName(m_file);
    EXPECT_EQ(m_manager.FileName(), m_file);
    EXPECT_EQ(m_folder.Get("f.DAT"), "");
}

TEST_F(INIManagerTest, SettingTheFileNameLeavesAFileThatIsThere)
{
    Bind("[s]\n");
    EXPECT_EQ(m_folder.Get("f.DAT"), "[s]\n");
}

TEST_F(INIManagerTest, SettingTheFileNameInAMissingFolderThrowsAndKeepsTheOldName)
{
    Bind("");
    EXPECT_THROW(m_manager.FileName((m_folder / "missing/f.DAT").string()), std::system_error);
    EXPECT_THROW(m_manager.FileName(""), std::system_error);
    EXPECT_EQ(m_manager.FileName(), m_file);
}

TEST_F(INIManagerTest, SettingTheFileNameFindsAFileOfAnotherSpelling)
{
    m_folder.Put("F.dat", "[s]\nk=v\n");
    m_manager.FileName(m_file);
    EXPECT_EQ(m_manager.FileName(), m_file);
    EXPECT_EQ(m_manager.GetValue("s", "k", ""), "v");
    EXPECT_EQ(m_folder.Names(), Names{"F.dat"});
}

TEST_F(INIManagerTest, GetValueGivesAValueWithoutTheBlanksAround)
{
    Bind("[s]\nk=\"  v w  \"\ntab=\"\tv\"\n");
    EXPECT_EQ(m_manager.GetValue("S", "K", "d"), "v w");
    EXPECT_EQ(m_manager.GetValue("s", "tab", "d"), "\tv");
}

TEST_F(INIManagerTest, GetValueGivesTheDefaultTrimmedForWhatIsMissing)
{
    Bind("[s]\nempty=\n");
    EXPECT_EQ(m_manager.GetValue("s", "k", "  d "), "d");
    EXPECT_EQ(m_manager.GetValue("t", "k", "d"), "d");
    EXPECT_EQ(m_manager.GetValue("s", "k", "   "), "");
    EXPECT_EQ(m_manager.GetValue("s", "empty", "d"), "");
}

TEST_F(INIManagerTest, GetValueGivesTheDefaultWhileNoFileIsSet)
{
    EXPECT_EQ(m_manager.GetValue("s", "k", "d"), "d");
}

TEST_F(INIManagerTest, GetValueCutsAValueTo254Characters)
{
    Bind("[s]\na=" + std::string(254, 'x') + "\nb=" + std::string(255, 'y') + "\n");
    EXPECT_EQ(m_manager.GetValue("s", "a", ""), std::string(254, 'x'));
    EXPECT_EQ(m_manager.GetValue("s", "b", ""), std::string(254, 'y'));
}

TEST_F(INIManagerTest, WriteValueUsesTheObjectsFile)
{
    Bind("");
    EXPECT_TRUE(m_manager.WriteValue("s", "k", "v"));
    EXPECT_EQ(m_folder.Get("f.DAT"), "[s]\r\nk=v\r\n");
}

TEST_F(INIManagerTest, WriteValueGivesFalseWhenNothingCanBeWritten)
{
    EXPECT_FALSE(m_manager.WriteValue("s", "k", "v"));
    Bind("");
    EXPECT_FALSE(m_manager.WriteValue("s", "k", "v\nw"));
    EXPECT_EQ(m_folder.Get("f.DAT"), "");
}

TEST_F(INIManagerTest, ListsAndDeletesTakeTheFileAsAnArgument)
{
    Bind("[other]\n");
    const std::string file = m_folder.Put("g.DAT", "[s]\nk=1\nl=2\n[t]\n").string();
    EXPECT_EQ(m_manager.GetAllSections(file), (Names{"s", "t"}));
    EXPECT_EQ(m_manager.GetAllKeys("s", file), (Names{"k", "l"}));
    EXPECT_TRUE(m_manager.DeleteKey("s", "k", file));
    EXPECT_TRUE(m_manager.DeleteSection("t", file));
    EXPECT_TRUE(m_manager.CreateSection("u", file));
    EXPECT_EQ(m_folder.Get("g.DAT"), "[s]\nl=2\n[u]\n=\n");
    EXPECT_EQ(m_folder.Get("f.DAT"), "[other]\n");
    EXPECT_EQ(m_manager.FileName(), m_file);
}

TEST_F(INIManagerTest, FileWithoutSectionsGivesAnEmptyList)
{
    Bind("k=v\nno section\n");
    EXPECT_EQ(m_manager.GetAllSections(m_file), Names());
    EXPECT_EQ(m_manager.GetAllSections((m_folder / "missing").string()), Names());
}

TEST_F(INIManagerTest, SectionWithoutKeysGivesAnEmptyList)
{
    Bind("[s]\nno key\n[t]\nk=v\n");
    EXPECT_EQ(m_manager.GetAllKeys("s", m_file), Names());
    EXPECT_EQ(m_manager.GetAllKeys("missing", m_file), Names());
}

TEST_F(INIManagerTest, CreatedSectionListsOneEmptyKey)
{
    Bind("");
    EXPECT_TRUE(m_manager.CreateSection("s", m_file));
    EXPECT_EQ(m_folder.Get("f.DAT"), "[s]\r\n=\r\n");
    EXPECT_EQ(m_manager.GetAllKeys("s", m_file), Names{""});
    EXPECT_EQ(m_manager.GetAllSections(m_file), Names{"s"});
}

TEST_F(INIManagerTest, ListsOf2047CharactersComeWhole)
{
    // 2 * 20 + 23 names; each name and its NUL: 2 * 20 * 40 + 1 * 447 = 2047
    std::string sections;
    std::string keys;
    for (int number = 0; number < 40; ++number) {
        const std::string name = std::to_string(100 + number) + std::string(36, 'n');
        sections += "[" + name + "]\n";
        keys += name + "=\n";
    }
    const std::string last(446, 'z');
    Bind("[" + last + "]\n" + keys + last + "=\n" + sections);
    ASSERT_EQ(m_manager.GetAllKeys(last, m_file).size(), 41U);
    EXPECT_EQ(m_manager.GetAllKeys(last, m_file).back(), last);
    EXPECT_EQ(m_manager.GetAllSections(m_file).size(), 41U);
    EXPECT_EQ(m_manager.GetAllSections(m_file).back(), "139" + std::string(36, 'n'));
}

/// Names of ten characters and their NULs: 186 of them take 2046, the 187th does not fit.
std::string LongList(const char* before, const char* after)
{
    std::string text = before;
    for (int number = 0; number < 200; ++number) {
        text += after[0] == ']' ? "[" : "";
        text += std::to_string(1000000000 + number) + after;
    }
    return text;
}

TEST_F(INIManagerTest, LongListOfSectionsEndsWithTheLastWholeName)
{
    Bind(LongList("", "]\n"));
    const Names names = m_manager.GetAllSections(m_file);
    ASSERT_EQ(names.size(), 186U);
    EXPECT_EQ(names.back(), "1000000185");
}

TEST_F(INIManagerTest, LongListOfSectionsDropsACutName)
{
    Bind("[abc]\n" + LongList("", "]\n")); // 4 + 185 * 11 = 2039: seven characters of the next name follow
    const Names names = m_manager.GetAllSections(m_file);
    ASSERT_EQ(names.size(), 186U);
    EXPECT_EQ(names.back(), "1000000184");
}

TEST_F(INIManagerTest, LongListOfKeysLosesItsLastCharacterAsGiven)
{
    Bind(LongList("[s]\nabc=\n", "=\n"));
    const Names names = m_manager.GetAllKeys("s", m_file);
    ASSERT_EQ(names.size(), 187U);
    EXPECT_EQ(names[185], "1000000184");
    EXPECT_EQ(names.back(), "100000"); // seven characters had come
}

TEST_F(INIManagerTest, SectionNameLongerThanTheListGivesAnEmptyList)
{
    Bind("[" + std::string(3000, 'x') + "]\n[s]\n");
    EXPECT_EQ(m_manager.GetAllSections(m_file), Names());
}

TEST_F(INIManagerTest, DeletingWhatIsNotThereSucceeds)
{
    Bind("[s]\nk=v");
    EXPECT_TRUE(m_manager.DeleteKey("s", "l", m_file));
    EXPECT_TRUE(m_manager.DeleteSection("t", m_file));
    EXPECT_EQ(m_folder.Get("f.DAT"), "[s]\nk=v");
}

/// The members that trap errors and those that do not.
class ThrowingCalls : public FileCalls
{
public:
    int Stat(const char* /*path*/, struct stat* /*status*/) override { throw std::runtime_error("out of order"); }
};

TEST(INIManager, TrapsErrorsInValuesAndDeletesButNotInLists)
{
    support::TempFolder folder;
    const std::string file = folder.Put("f.DAT", "[s]\nk=v\n").string();
    ThrowingCalls calls;
    ProfileStore store(calls);
    INIManager manager(store);
    manager.FileName(file);
    EXPECT_EQ(manager.GetValue("s", "k", "d"), "");
    EXPECT_FALSE(manager.WriteValue("s", "k", "w"));
    EXPECT_FALSE(manager.CreateSection("t", file));
    EXPECT_FALSE(manager.DeleteSection("s", file));
    EXPECT_FALSE(manager.DeleteKey("s", "k", file));
    EXPECT_THROW((void)manager.GetAllSections(file), std::runtime_error);
    EXPECT_THROW((void)manager.GetAllKeys("s", file), std::runtime_error);
}

} // namespace
} // namespace quillon::store
