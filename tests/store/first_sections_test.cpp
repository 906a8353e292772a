// The section list of a long file, of which only the beginning is read.
#include "store/profile_batch.h"
#include "tests/store/profile_store_fixture.h"

namespace quillon::store {
namespace {

using Names = std::vector<std::string>;

class FirstSections : public ProfileStoreTest
{
};

/// Sections with lines of all line ends and some that look like headers, until the text is so long.
std::string SectionsOf(std::size_t size)
{
    std::string text;
    for (std::size_t number = 0; text.size() < size; ++number) {
        const std::string name = std::to_string(number * number);
        text.append("[").append(name).append("] ]\r\nk=[no]\n [open\r;[no]\n\n").append(number % 40, '=').append("\n");
    }
    return text;
}

TEST_F(FirstSections, ListsTheSectionsOfALongFileAsIfItWereReadWhole)
{
    const std::string text = SectionsOf(10'000);
    m_folder.Put("f.dat", text);
    const PrivateProfile whole(text);
    for (std::size_t enough = 0; enough < 600; ++enough) {
        ASSERT_EQ(ProfileStore().SectionNames(m_file, enough), whole.SectionNames(enough)) << enough;
    }
}

TEST_F(FirstSections, TakesNoNameFromALineThatGoesOnBehindWhatItRead)
{
    for (std::size_t filler = 100; filler < 250; ++filler) { // one of which ends the reading in the second header
        const std::string text = "[1234567]\n" + std::string(filler, '=') + "\n[b]c] \n" + std::string(200, '=');
        m_folder.Put("f.dat", text);
        ASSERT_EQ(ProfileStore().SectionNames(m_file, 10), std::string("1234567\0b]c\0", 12)) << filler;
    }
}

TEST_F(FirstSections, ReadsOfALongFileOnlyWhatTheListOfItsSectionsTakes)
{
    Settle(m_folder.Put("f.dat", SectionsOf(100'000)));
    m_calls.FailAt(0, 0);
    const std::string names = m_store.SectionNames(m_file, 100);
    EXPECT_GE(names.size(), 100U);
    EXPECT_EQ(m_calls.Made(), (Names{"stat", "open", "fstat", "read", "close"}));
    EXPECT_EQ(m_store.Read(m_file).Value("0]", "k"), "[no]"); // which is read now
    m_calls.FailAt(0, 0);
    EXPECT_EQ(m_store.SectionNames(m_file, 100), names);
    EXPECT_EQ(m_calls.Made(), Names{"stat"});
}

TEST_F(FirstSections, ListsTheSectionsAlsoOfAFileWhoseBeginningHasTooFew)
{
    m_folder.Put("f.dat", std::string(50'000, '=') + "\n[a]\n[b]\n");
    EXPECT_EQ(m_store.SectionNames(m_file, 100), std::string("a\0b\0", 4));
    EXPECT_EQ(m_store.SectionNames(m_folder / "missing", 100), "");
}

TEST_F(FirstSections, ListsNoSectionsOfALongFileThatCannotBeRead)
{
    const std::string text = SectionsOf(10'000);
    m_folder.Put("f.dat", text);
    for (const int number : {2, 3, 4}) { // open, fstat, read: once more, then, as a whole
        m_calls.FailAt(number, EIO);
        EXPECT_EQ(m_store.SectionNames(m_file, 100), PrivateProfile(text).SectionNames(100));
    }
    m_calls.FailAt(1, EIO);
    EXPECT_EQ(m_store.SectionNames(m_file, 100), "");
}

TEST_F(FirstSections, ListsTheSectionsThatAnOpenBatchAdds)
{
    const std::string text = SectionsOf(10'000);
    m_folder.Put("f.dat", text);
    const ProfileBatch batch(m_store, m_file);
    ASSERT_TRUE(m_store.Edit(m_file, {"0]", std::nullopt, std::nullopt}));
    PrivateProfile edited(text);
    edited.Make(edited.SectionRemoval("0]"));
    EXPECT_EQ(m_store.SectionNames(m_file, 100), edited.SectionNames(100));
    EXPECT_NE(m_store.SectionNames(m_file, 100), PrivateProfile(text).SectionNames(100));
}

} // namespace
} // namespace quillon::store
