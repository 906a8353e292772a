#include "store/entry_table.h"

#include "store/private_profile.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace quillon::store {
namespace {

/// The place of an entry's value, by a table made for the text; 0 for none.
std::size_t PlaceByTable(std::string_view text, const EntryName& name)
{
    SectionIndex sections;
    EntryTable table;
    table.Make(text, sections);
    EXPECT_TRUE(table.IsMade());
    const std::optional<EntryLine> entry = table.Find(text, name);
    return entry ? entry->equals : 0;
}

/// Makes a text long enough for a table of its entries.
std::string Long(const std::string& text)
{
    return text + std::string(100, ' ');
}

TEST(EntryTable, FindsEntriesInAnyCase)
{
    const std::string text = Long("[Yagi]\r\nGain20=100\r\n  [Quad ]\r\nGain20=71\r\nGain40=72\r\n");
    EXPECT_EQ(PlaceByTable(text, {"yagi", "GAIN20"}), text.find("=100"));
    EXPECT_EQ(PlaceByTable(text, {"QUAD", "gain20"}), text.find("=71"));
    EXPECT_EQ(PlaceByTable(text, {"Quad", "Gain40"}), text.find("=72"));
    EXPECT_EQ(PlaceByTable(text, {"Yagi", "Gain40"}), 0U);
    EXPECT_EQ(PlaceByTable(text, {"Loop", "Gain20"}), 0U);
    EXPECT_EQ(PlaceByTable(text, {std::string(1000, 'x'), "Gain20"}), 0U);
}

TEST(EntryTable, FindsTheFirstOfANameInTheFirstSectionOfAName)
{
    const std::string text = Long("[s]\nk=1\nK=2\n[S]\nk=3\nonly=4\n");
    EXPECT_EQ(PlaceByTable(text, {"S", "K"}), text.find("=1"));
    EXPECT_EQ(PlaceByTable(text, {"s", "only"}), 0U);
}

TEST(EntryTable, LeavesOutSectionsWithoutName)
{
    const std::string text = Long("[]\nk=1\n[s]\nk=2\n");
    EXPECT_EQ(PlaceByTable(text, {"s", "k"}), text.find("=2"));
    EXPECT_EQ(PlaceByTable("k=0\n" + text, {"s", "k"}), 4 + text.find("=2"));
}

TEST(EntryTable, TakesNoMoreMemoryThanTheText)
{
    std::string text = "[s]\n";
    SectionIndex sections;
    EntryTable table;
    for (int number = 0; number < 100; ++number) {
        text += "a=1\n";
    }
    text.resize(1207, '\n');
    table.Make(text, sections);
    EXPECT_FALSE(table.IsMade());
    table.Make(text.append(1, '\n'), sections); // three slots of eight bytes for two entries, and one more slot
    EXPECT_TRUE(table.IsMade());
}

TEST(EntryTable, HugeTextHasATableAsLongAsItsOffsetsFit)
{
    const std::string entry = "\nk=1";
    std::string text = "[s]\n";
    text.resize((std::size_t{64} * 1024 * 1024) - 1 - entry.size(), ' ');
    text += entry;
    EXPECT_EQ(PlaceByTable(text, {"s", "k"}), 67'108'861U);

    SectionIndex sections;
    EntryTable table;
    table.Make(text.append(2, ' '), sections);
    EXPECT_FALSE(table.IsMade());
}

TEST(EntryTable, FindsNothingByNamesThatOnlySeemAlike)
{
    std::string keys = "[s]\n";
    std::string headers;
    for (int number = 0; number < 100; ++number) {
        keys += "k" + std::to_string(number) + "=1\n";
        headers += "[s" + std::to_string(number) + "] x]\nk=1\n";
    }
    for (std::string* text : {&keys, &headers}) {
        *text += std::string(1000, ' ');
        SectionIndex sections;
        EntryTable table;
        table.Make(*text, sections);
        ASSERT_TRUE(table.IsMade());
        for (int number = 100; number < 20'000; ++number) { // some of whose hashes meet others' by chance
            const std::string name = std::to_string(number);
            ASSERT_FALSE(table.Find(*text, {"s", "k" + name})) << name;
            ASSERT_FALSE(table.Find(*text, {"s" + name, "k"})) << name;
            ASSERT_FALSE(table.Find(*text, {name + std::string(text->size(), 'x'), "k"})) << name;
        }
    }
}

/// A header and a name that is not its own, of which parts stand there all the same; each "#" stands for a number.
struct AlikeRow
{
    const char* name;
    std::string header;
    std::string asked;
};

class AlikeHeader : public ::testing::TestWithParam<AlikeRow>
{
};

std::string WithNumber(std::string text, int number)
{
    return text.replace(text.find('#'), 1, std::to_string(number));
}

TEST_P(AlikeHeader, IsNotTakenForTheOther)
{
    for (int number = 0; number < 50'000; ++number) { // some of whose hashes meet the other's by chance
        const std::string file = "; comment\n" + WithNumber(GetParam().header, number) + "\nk=1]\n";
        const std::string_view text = std::string_view(file).substr(0, file.size() - 1);
        ASSERT_EQ(PlaceByTable(text, {WithNumber(GetParam().asked, number), "k"}), 0U) << number;
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, AlikeHeader, ::testing::Values(
    AlikeRow{"blank before the bracket", " [#]", "[#"},
    AlikeRow{"letter before the name", "[x#]", "#]"},
    AlikeRow{"second closing bracket", "[#]]", "#"},
    AlikeRow{"letter behind the closing bracket", "[#]x\n]", "#]"},
    AlikeRow{"line end in the name", "[#]\n]", "#]\n"},
    AlikeRow{"closing bracket in the next line", "[#]\n]x", "#]\n"},
    AlikeRow{"part of the entry as well", "[#]", "#]\nk="},
    AlikeRow{"all up to the text's last bracket", "[#]", "#]\nk=1"}), support::RowName());

// clang-format on

/// Sections and keys whose names come again and again, in all cases and with blanks here and there.
std::string MixedText(std::minstd_rand& numbers)
{
    const auto pick = [&numbers](const char* const(&texts)[4]) { return std::string(texts[numbers() % 4]); };
    std::string text;
    for (int line = 0; line < 400; ++line) {
        const std::string name = std::to_string(numbers() % 60);
        const std::string end = pick({"\n", "\r\n", "\r", " \n"});
        if (numbers() % 4 == 0) {
            text.append(pick({"[sec", "[SEC", " [ Sec", "[sec"})).append(name).append(pick({"]", " ]", "]", "] x]"}));
        } else {
            text.append(pick({"key", ";key", " Key ", "KEY"})).append(name).append(pick({"=", " = ", "", "=="}));
            text.append(name.size() * 8, 'v').append(std::to_string(line));
        }
        text.append(end);
    }
    return text;
}

TEST(PrivateProfileTable, AnswersAsTheWalkDoesAlsoAfterAChange)
{
    for (unsigned seed = 1; seed < 20; ++seed) {
        std::minstd_rand numbers(seed);
        PrivateProfile often{MixedText(numbers)};
        PrivateProfile walking;
        for (int look = 0; look < 1500; ++look) {
            if (look % 100 == 0) { // before it has been asked so often that it makes a table
                walking = PrivateProfile(often.Bytes());
            }
            const std::string section = numbers() % 50 == 0 ? "" : "Sec" + std::to_string(numbers() % 62);
            const std::string key = "kEy" + std::to_string(numbers() % 62);
            ASSERT_EQ(often.Value(section, key), walking.Value(section, key))
                << "seed " << seed << ", look " << look << ": [" << section << "] " << key;
            if (look % 500 == 499) {
                often.Make(often.ValueChange(section, key, std::to_string(look)));
            }
        }
    }
}

} // namespace
} // namespace quillon::store
