#include "store/read_write.h"

#include "store/profile_batch.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

namespace quillon::store {
namespace {

namespace fs = std::filesystem;

class ReadWriteTest : public ::testing::Test
{
protected:
    void PutSystems(std::string_view bytes)
    {
        m_folder.Put("QuillonSystems.dat", bytes);
        ASSERT_TRUE(m_readWrite.DataFileCheck("Systems"));
    }

    support::TempFolder m_folder;
    ProfileStore m_store;
    support::RecordingNotifier m_notifier;
    ReadWrite m_readWrite{ProgramFolder(m_folder / "Quillon"), m_store, m_notifier};
};

struct DataSetRow
{
    const char* name;
    const char* file; ///< below the program folder
};

class DataSetTest : public ReadWriteTest, public ::testing::WithParamInterface<DataSetRow>
{
};

TEST_P(DataSetTest, IsFoundWhenItsFileIsThere)
{
    m_folder.Put(GetParam().file, "");
    EXPECT_TRUE(m_readWrite.DataFileCheck(GetParam().name));
    EXPECT_EQ(m_readWrite.DataFilePath(), m_folder.Path().string() + "/" + GetParam().file);
    EXPECT_TRUE(m_notifier.Messages().empty());
}

TEST_P(DataSetTest, MissingIsToldWithItsPathWhichIsKept)
{
    const std::string path = m_folder.Path().string() + "/" + GetParam().file;
    EXPECT_FALSE(m_readWrite.DataFileCheck(GetParam().name));
    EXPECT_EQ(m_readWrite.DataFilePath(), path);
    ASSERT_EQ(m_notifier.Messages().size(), 1U);
    EXPECT_EQ(m_notifier.Messages()[0].text, "Data file " + path + " is missing or corrupt.");
    EXPECT_EQ(m_notifier.Messages()[0].title, "Data File Missing");
    EXPECT_TRUE(m_folder.Names().empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, DataSetTest, ::testing::Values(
    DataSetRow{"Systems", "QuillonSystems.dat"},
    DataSetRow{"Antennas", "QuillonAntennas.dat"},
    DataSetRow{"Coax", "Coax/QuillonCoax.dat"}), support::RowName());

// clang-format on

TEST_F(ReadWriteTest, AnyOtherNameStandsForTheProgramFolderItself)
{
    for (const char* name : {"systems", "", "Other"}) {
        m_notifier.Clear();
        EXPECT_FALSE(m_readWrite.DataFileCheck(name));
        EXPECT_EQ(m_readWrite.DataFilePath(), m_folder.Path().string() + "/");
        EXPECT_EQ(m_notifier.Messages().size(), 1U);
    }
    fs::create_directory(m_folder / "Coax");
    EXPECT_FALSE(m_readWrite.DataFileCheck("Other"));
    m_folder.Put("any file", "");
    EXPECT_TRUE(m_readWrite.DataFileCheck("Other"));
    EXPECT_EQ(m_readWrite.IniRead("s", "k"), "");
    EXPECT_EQ(m_readWrite.IniWrite("s", "k", "v"), 0);
}

TEST_F(ReadWriteTest, DataFileIsFoundInAnotherSpelling)
{
    m_folder.Put("QUILLONSYSTEMS.DAT", "[s]\nk=v\n");
    EXPECT_TRUE(m_readWrite.DataFileCheck("Systems"));
    EXPECT_EQ(m_readWrite.IniRead("s", "k"), "v");
}

TEST_F(ReadWriteTest, FolderOfTheDataFilesNameIsNoFile)
{
    fs::create_directory(m_folder / "QuillonSystems.dat");
    EXPECT_FALSE(m_readWrite.DataFileCheck("Systems"));
}

TEST_F(ReadWriteTest, NothingIsChosenAtFirst)
{
    EXPECT_EQ(m_readWrite.DataFilePath(), "");
    EXPECT_EQ(m_readWrite.IniRead("s", "k"), "");
    EXPECT_EQ(m_readWrite.IniWrite("s", "k", "v"), 0);
}

TEST_F(ReadWriteTest, IniReadDoesNotTrimAsGiven)
{
    PutSystems("[s]\nk=\"  v \"\nl=  w  \n");
    EXPECT_EQ(m_readWrite.IniRead("s", "k"), "  v ");
    EXPECT_EQ(m_readWrite.IniRead("s", "l"), "w");
    EXPECT_EQ(m_readWrite.IniRead("s", "missing"), "");
}

TEST_F(ReadWriteTest, IniReadCutsAValueTo254Characters)
{
    PutSystems("[s]\nk=" + std::string(255, 'x') + "\n");
    EXPECT_EQ(m_readWrite.IniRead("s", "k"), std::string(254, 'x'));
}

TEST_F(ReadWriteTest, IniWriteWritesTheChosenFile)
{
    PutSystems("");
    EXPECT_EQ(m_readWrite.IniWrite("SavedSystems", "System:1", "Home Station"), 1);
    EXPECT_EQ(m_folder.Get("QuillonSystems.dat"), "[SavedSystems]\r\nSystem:1=Home Station\r\n");
}

TEST_F(ReadWriteTest, IniWriteTakes255Characters)
{
    PutSystems("");
    const std::string key(255, 'k');
    const std::string value(255, 'v');
    EXPECT_EQ(m_readWrite.IniWrite("s", key, value), 1);
    EXPECT_EQ(m_folder.Get("QuillonSystems.dat"), "[s]\r\n" + key + "=" + value + "\r\n");
    EXPECT_TRUE(m_notifier.Messages().empty());
}

TEST_F(ReadWriteTest, IniWriteRefuses256CharactersOfKeyOrValueWithAMessage)
{
    PutSystems("");
    const support::RecordingNotifier::Message message{"Can't write more than 255 characters for key or value.", ""};
    EXPECT_EQ(m_readWrite.IniWrite("s", std::string(256, 'k'), "v"), -1);
    EXPECT_EQ(m_readWrite.IniWrite("s", "k", std::string(256, 'v')), -1);
    EXPECT_EQ(m_notifier.Messages(), (std::vector{message, message}));
    EXPECT_EQ(m_folder.Get("QuillonSystems.dat"), "");
}

TEST_F(ReadWriteTest, IniWriteDoesNotLimitTheSectionsName)
{
    PutSystems("");
    EXPECT_EQ(m_readWrite.IniWrite(std::string(300, 's'), "k", "v"), 1);
    EXPECT_EQ(m_readWrite.IniRead(std::string(300, 's'), "k"), "v");
}

TEST_F(ReadWriteTest, OverLongKeyInABatchLeavesTheOthersToBeWritten)
{
    PutSystems("");
    ProfileBatch batch(m_store, m_readWrite.DataFilePath());
    EXPECT_EQ(m_readWrite.IniWrite("s", "a", "1"), 1);
    EXPECT_EQ(m_readWrite.IniWrite("s", "b", std::string(256, 'v')), -1);
    EXPECT_EQ(m_readWrite.IniWrite("s", "c", "3"), 1);
    EXPECT_TRUE(batch.Commit());
    EXPECT_EQ(m_folder.Get("QuillonSystems.dat"), "[s]\r\na=1\r\nc=3\r\n");
}

} // namespace
} // namespace quillon::store
