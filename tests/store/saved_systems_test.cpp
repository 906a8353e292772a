#include "store/saved_systems.h"

#include "store/code_page.h"
#include "tests/store/failing_calls.h"
#include "tests/support/recording_notifier.h"
#include "tests/support/row_name.h"
#include "tests/support/sample_pair.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <sys/stat.h>
#include <thread>

namespace quillon::store {
namespace {

using Names = std::vector<std::string>;
using Slot = SavedSystems::Slot;

constexpr const char* kFile = "QuillonSystems.dat";

class SavedSystemsTest : public ::testing::Test
{
protected:
    void Put(std::string_view bytes)
    {
        m_folder.Put(kFile, bytes);
        ASSERT_TRUE(m_saved.DataFileCheck());
    }

    bool Save(const std::string& name)
    {
        return m_saved.Write(m_saved.SystemExists(name), name, support::SamplePair());
    }

    std::string Bytes() { return m_folder.Get(kFile).value_or("no file"); }

    auto Count(const char* call) { return std::count(m_calls.Made().begin(), m_calls.Made().end(), call); }

    support::TempFolder m_folder;
    FailingCalls m_calls;
    ProfileStore m_store{m_calls};
    support::RecordingNotifier m_notifier;
    ReadWrite m_readWrite{ProgramFolder(m_folder / "Quillon"), m_store, m_notifier};
    SavedSystems m_saved{m_readWrite, m_store};
};

struct ListRow
{
    const char* name;
    const char* bytes;
    Names names;
};

class ListedNames : public SavedSystemsTest, public ::testing::WithParamInterface<ListRow>
{
};

TEST_P(ListedNames, AreThoseUpToTheFirstEmptyEntry)
{
    Put(GetParam().bytes);
    EXPECT_EQ(m_saved.Names(), GetParam().names);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, ListedNames, ::testing::Values(
    ListRow{"empty file", "", {}},
    ListRow{"empty section", "[SavedSystems]\n", {}},
    ListRow{"closed list", "[SavedSystems]\nSystem:1=A\nSystem:2=B\nSystem:3=\n", {"A", "B"}},
    ListRow{"list without an end", "[SavedSystems]\nSystem:1=A\nSystem:2=B\n", {"A", "B"}},
    ListRow{"what stands behind an empty entry is not listed", "[SavedSystems]\nSystem:1=A\nSystem:2=\nSystem:3=C\n", {"A"}},
    ListRow{"what stands behind a gap is not listed", "[SavedSystems]\nSystem:1=A\nSystem:3=C\n", {"A"}},
    ListRow{"numbers count, not lines", "[SavedSystems]\nSystem:2=B\nSystem:1=A\n", {"A", "B"}},
    ListRow{"case of the keys does not count", "[SAVEDSYSTEMS]\nsystem:1=A\nSYSTEM:2=b\n", {"A", "b"}},
    ListRow{"first of equal keys wins", "[SavedSystems]\nSystem:1=A\nsystem:1=B\n", {"A"}},
    ListRow{"number with a zero in front is another key", "[SavedSystems]\nSystem:01=A\n", {}},
    ListRow{"equal names are listed twice", "[SavedSystems]\nSystem:1=A\nSystem:2=A\n", {"A", "A"}},
    ListRow{"quotes around a name are dropped", "[SavedSystems]\nSystem:1=\"A\"\n", {"A"}},
    ListRow{"quoted blanks are a name", "[SavedSystems]\nSystem:1=\" \"\n", {" "}},
    ListRow{"section without a listed name", "[A]\nSystem1VSWR=1\n", {}}), support::RowName());

// clang-format on

TEST_F(SavedSystemsTest, LongNameIsCutAsReadingCutsIt)
{
    Put("[SavedSystems]\nSystem:1=" + std::string(300, 'n') + "\n");
    EXPECT_EQ(m_saved.Names(), Names{std::string(254, 'n')});
}

TEST_F(SavedSystemsTest, ExistingNameIsFoundWhateverItsCase)
{
    Put("[SavedSystems]\nSystem:1=Field Day\nSystem:2=Home Station\nSystem:3=\nSystem:4=Behind\n");
    EXPECT_EQ(m_saved.SystemExists("Field Day"), (Slot{1, true}));
    EXPECT_EQ(m_saved.SystemExists("home STATION"), (Slot{2, true}));
    EXPECT_EQ(m_saved.SystemExists("Home"), (Slot{3, false}));
    EXPECT_EQ(m_saved.SystemExists("Behind"), (Slot{3, false}));
}

TEST_F(SavedSystemsTest, EmptyNameMatchesTheFirstEmptyEntryAsGiven)
{
    Put("[SavedSystems]\nSystem:1=A\n");
    EXPECT_EQ(m_saved.SystemExists(""), (Slot{2, true}));
    Put("");
    EXPECT_EQ(m_saved.SystemExists(""), (Slot{1, true}));
    EXPECT_EQ(m_saved.SystemExists("A"), (Slot{1, false}));
}

TEST_F(SavedSystemsTest, FirstSaveMakesListAndSection)
{
    Put("");
    EXPECT_TRUE(Save("Home Station"));
    EXPECT_EQ(Bytes(), "[SavedSystems]\r\nSystem:1=Home Station\r\nSystem:2=\r\n[Home Station]\r\n" +
                           support::SampleEntries("\r\n"));
    EXPECT_TRUE(m_notifier.Messages().empty());
}

TEST_F(SavedSystemsTest, NewNameGoesBehindTheListAndClosesIt)
{
    Put("[SavedSystems]\r\nSystem:1=A\r\nSystem:2=B\r\nSystem:3=C\r\nSystem:4=\r\n");
    EXPECT_TRUE(Save("New"));
    EXPECT_EQ(Bytes(), "[SavedSystems]\r\nSystem:1=A\r\nSystem:2=B\r\nSystem:3=C\r\nSystem:4=New\r\nSystem:5=\r\n"
                       "[New]\r\n" +
                           support::SampleEntries("\r\n"));
}

TEST_F(SavedSystemsTest, RewritingAnEntryEmptiesTheOneBehindItAsGiven)
{
    Put("[SavedSystems]\nSystem:1=A\nSystem:2=B\nSystem:3=C\nSystem:4=\n[A]\nSystem1VSWR=3\nOwn=kept\n"
        "[B]\nSystem1VSWR=2\n");
    EXPECT_TRUE(Save("a"));
    std::string entries = support::SampleEntries("\n");
    const std::string first = "System1VSWR=1.5\n";
    entries.erase(entries.find(first), first.size());
    EXPECT_EQ(Bytes(), "[SavedSystems]\nSystem:1=a\nSystem:2=\nSystem:3=C\nSystem:4=\n[A]\n" + first + "Own=kept\n" +
                           entries + "[B]\nSystem1VSWR=2\n");
    EXPECT_EQ(m_saved.Names(), Names{"a"});
}

struct StyleRow
{
    const char* name;
    const char* bytes;
};

class SavedBytes : public SavedSystemsTest, public ::testing::WithParamInterface<StyleRow>
{
};

TEST_P(SavedBytes, EqualThoseOfWritingKeyByKey)
{
    Put(GetParam().bytes);
    const Slot slot = m_saved.SystemExists("b");
    EXPECT_TRUE(m_saved.Write(slot, "b", support::SamplePair()));
    const std::string atOnce = Bytes();

    Put(GetParam().bytes);
    m_readWrite.IniWrite("SavedSystems", "System:" + std::to_string(slot.number), "b");
    for (const auto& [key, value] : PairEntries(support::SamplePair())) {
        m_readWrite.IniWrite("b", key, value);
    }
    m_readWrite.IniWrite("SavedSystems", "System:" + std::to_string(slot.number + 1), "");
    EXPECT_EQ(atOnce, Bytes());
    EXPECT_NE(atOnce, GetParam().bytes);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, SavedBytes, ::testing::Values(
    StyleRow{"empty", ""},
    StyleRow{"lines ended by CR LF", "[SavedSystems]\r\nSystem:1=a\r\nSystem:2=\r\n[a]\r\nSystem1VSWR=2\r\n"},
    StyleRow{"lines ended by LF", "[SavedSystems]\nSystem:1=a\nSystem:2=b\nSystem:3=c\n\n[b]\nSystem2VSWR=2\n"},
    StyleRow{"lines ended by CR", "[SavedSystems]\rSystem:1=b\r"},
    StyleRow{"last line without an end", "[SavedSystems]\nSystem:1=a"},
    StyleRow{"comments and blank lines", "; mine\n\n[SavedSystems]\n; list\nSystem:1 = a \n\n\n[c]\nx\n"},
    StyleRow{"the same pair already", "[B]\nSystem1AntennaBrand=Wirecraft\n[SavedSystems]\nSystem:1=B\nSystem:2=\n"}),
    support::RowName());

// clang-format on

TEST_F(SavedSystemsTest, MissingFileIsTold)
{
    EXPECT_FALSE(m_saved.DataFileCheck());
    ASSERT_EQ(m_notifier.Messages().size(), 1U);
    EXPECT_EQ(m_notifier.Messages()[0].title, "Data File Missing");
    EXPECT_EQ(m_notifier.Messages()[0].text, "Data file " + (m_folder / kFile).string() + " is missing or corrupt.");
    EXPECT_TRUE(m_saved.Names().empty());
}

TEST_F(SavedSystemsTest, SaveReplacesTheFileOnce)
{
    Put("[SavedSystems]\nSystem:1=A\n");
    m_calls.FailAt(0, 0);
    EXPECT_TRUE(Save("B"));
    EXPECT_EQ(Count("rename"), 1);
}

TEST_F(SavedSystemsTest, NameInTheCodePageComesBack)
{
    const std::string name = FromUtf8("Mühle 50 € „Süd“").value();
    Put("");
    EXPECT_TRUE(Save(name));
    EXPECT_EQ(m_saved.Names(), Names{name});
    EXPECT_EQ(std::get<SystemPair>(m_saved.ReadPair(name)), support::SamplePair());
    EXPECT_NE(Bytes().find("[M\xFChle 50 \x80 \x84S\xFC"
                           "d\x93]\r\n"),
              std::string::npos);
}

TEST_F(SavedSystemsTest, NameOf256CharactersIsToldAndTheRestIsWritten)
{
    const std::string name(256, 'n');
    Put("[SavedSystems]\r\nSystem:1=A\r\n");
    EXPECT_FALSE(Save(name));
    EXPECT_EQ(Bytes(),
              "[SavedSystems]\r\nSystem:1=A\r\nSystem:3=\r\n[" + name + "]\r\n" + support::SampleEntries("\r\n"));
    ASSERT_EQ(m_notifier.Messages().size(), 1U);
    EXPECT_EQ(m_notifier.Messages()[0].text, "Can't write more than 255 characters for key or value.");
    EXPECT_EQ(m_notifier.Messages()[0].title, "");
}

TEST_F(SavedSystemsTest, TextThatWouldNotStayOneLineKeepsAllFromBeingWritten)
{
    Put("[SavedSystems]\n");
    SystemPair pair = support::SamplePair();
    pair[engine::SystemId::Two].CoaxModel = std::string_view("a\0b", 3);
    EXPECT_FALSE(m_saved.Write({1, false}, "A", pair));
    EXPECT_EQ(Bytes(), "[SavedSystems]\n");
}

TEST_F(SavedSystemsTest, SlotThatIsNoLongerTheNamesIsNotWritten)
{
    Put("[SavedSystems]\nSystem:1=A\n");
    const Slot slot = m_saved.SystemExists("B");
    Put("[SavedSystems]\nSystem:1=A\nSystem:2=C\n");
    EXPECT_FALSE(m_saved.Write(slot, "B", support::SamplePair()));
    EXPECT_FALSE(m_saved.Write({2, true}, "C2", support::SamplePair()));
    EXPECT_EQ(Bytes(), "[SavedSystems]\nSystem:1=A\nSystem:2=C\n");
}

TEST_F(SavedSystemsTest, MissingPairIsDamagedAtItsFirstRequiredValue)
{
    Put("[SavedSystems]\nSystem:1=A\n");
    EXPECT_EQ(std::get<DamagedValue>(m_saved.ReadPair("A")).key, "System1AntennaGain");
}

TEST_F(SavedSystemsTest, PairWhoseResultsWouldOverflowIsDamaged)
{
    std::string entries = support::SampleEntries("\n");
    entries.replace(entries.find("System1XmitPower=100"), 20, "System1XmitPower=3e38");
    Put("[A]\n" + entries);
    EXPECT_EQ(std::get<DamagedValue>(m_saved.ReadPair("A")),
              (DamagedValue{"System1", "", DamagedValue::Fault::NotComputable}));
}

TEST_F(SavedSystemsTest, TenThousandPairsAreListedAndReadWithOneReadOfTheFile)
{
    std::string list = "[SavedSystems]\n";
    std::string sections;
    for (int number = 1; number <= 10000; ++number) {
        const std::string name = "Pair " + std::to_string(number);
        list.append("System:").append(std::to_string(number)).append("=").append(name).append("\n");
        sections.append("[").append(name).append("]\n").append(support::SampleEntries("\n"));
    }
    Put(list + "System:10001=\n" + sections);
    // Files written this moment are read again each time; one in use has been there for longer.
    struct stat status = {};
    ASSERT_EQ(::stat((m_folder / kFile).c_str(), &status), 0);
    while (std::chrono::system_clock::now().time_since_epoch() < std::chrono::seconds(status.st_ctim.tv_sec) +
                                                                     std::chrono::nanoseconds(status.st_ctim.tv_nsec) +
                                                                     std::chrono::milliseconds(25)) {
        std::this_thread::yield();
    }
    m_calls.FailAt(0, 0);
    const Names names = m_saved.Names();
    ASSERT_EQ(names.size(), 10000U);
    EXPECT_EQ(names.front(), "Pair 1");
    EXPECT_EQ(names.back(), "Pair 10000");
    EXPECT_EQ(m_saved.ReadNames(names.front())[engine::SystemId::One].antennaModel, "Beam Four");
    EXPECT_EQ(std::get<SystemPair>(m_saved.ReadPair(names.back())), support::SamplePair());
    EXPECT_EQ(Count("open"), 1);
}

} // namespace
} // namespace quillon::store
