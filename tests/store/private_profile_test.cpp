#include "store/private_profile.h"

#include "store/profile_edit.h"
#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::store {
namespace {

using namespace std::string_literals;

constexpr std::size_t kNoEnd = 1000;

TEST(PrivateProfile, ReadsTheFirstKeyOfTheFirstSectionOfAName)
{
    const PrivateProfile profile("[S]\nk = 1 \nK=2\n[s]\nk=3\nonly=4\n");
    EXPECT_EQ(profile.Value("s", "K"), "1");
    EXPECT_EQ(profile.Value("S", "only"), std::nullopt);
    EXPECT_EQ(profile.Value("t", "k"), std::nullopt);
}

TEST(PrivateProfile, FindsNamesGivenWithBlanksAround)
{
    EXPECT_EQ(PrivateProfile("[a b]\nk l=1\n").Value(" a b\t", " k l "), "1");
}

TEST(PrivateProfile, TellsAnEmptyValueFromAMissingOne)
{
    const PrivateProfile profile("[s]\nempty=\nline without value\n");
    EXPECT_EQ(profile.Value("s", "empty"), "");
    EXPECT_EQ(profile.Value("s", "line without value"), std::nullopt);
}

TEST(PrivateProfile, ReadsTheLinesBeforeTheFirstHeaderAsTheSectionWithoutName)
{
    EXPECT_EQ(PrivateProfile("k=0\n[s]\nk=1\n").Value("", "k"), "0");
}

TEST(PrivateProfile, ListsNamesInFileOrderAsSpelled)
{
    const PrivateProfile profile("x=1\n[B]\nz=1\n;c=2\nother\n=3\ny=4\n[]\n[a]\n[b]\nq=1\n");
    EXPECT_EQ(profile.SectionNames(kNoEnd), "B\0a\0b\0"s);
    EXPECT_EQ(profile.KeyNames("b", kNoEnd), "z\0\0y\0"s);
    EXPECT_EQ(profile.KeyNames("a", kNoEnd), "");
    EXPECT_EQ(profile.KeyNames("missing", kNoEnd), "");
}

TEST(PrivateProfile, GivesAllEntriesOfASectionInFileOrder)
{
    const PrivateProfile profile("[s]\na = \"1\" \n;c=2\nother\nA=\n[t]\nz=3\n");
    const std::vector<ProfileEntry> entries = profile.Entries("S");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].name, "a");
    EXPECT_EQ(entries[0].value, "\"1\"");
    EXPECT_EQ(entries[1].name, "A");
    EXPECT_EQ(entries[1].value, "");
    EXPECT_TRUE(profile.Entries("missing").empty());
}

TEST(PrivateProfile, StopsListingOnceThereIsEnough)
{
    const PrivateProfile profile("[aa]\nk1=\nk2=\nk3=\n[bb]\n[cc]\n");
    EXPECT_EQ(profile.SectionNames(4), "aa\0bb\0"s);
    EXPECT_EQ(profile.KeyNames("aa", 3), "k1\0"s);
    EXPECT_EQ(profile.SectionNames(1), "a\0"s) << "no more of a name than is asked for";
    EXPECT_EQ(profile.KeyNames("aa", 1), "k\0"s);
    EXPECT_EQ(profile.SectionNames(0), "");
}

struct EditRow
{
    const char* name;
    std::string before;
    ProfileEdit edit;
    std::string after;
};

class EditRowTest : public ::testing::TestWithParam<EditRow>
{
};

TEST_P(EditRowTest, ChangesTheLineInQuestionOnly)
{
    const EditRow& row = GetParam();
    PrivateProfile profile(row.before);
    EXPECT_EQ(Apply(profile, row.edit), row.before != row.after);
    EXPECT_EQ(profile.Bytes(), row.after);
}

constexpr auto kNone = std::nullopt;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Values, EditRowTest, ::testing::Values(
    EditRow{"value replaced in place, blanks and line end kept",
            "[s]\r\n k\t= old \r\nl=2\r\n", {"s", "k", "new"}, "[s]\r\n k\t= new \r\nl=2\r\n"},
    EditRow{"key keeps its spelling", "[s]\nGain20=1\n", {"S", "gAIN20", "2"}, "[s]\nGain20=2\n"},
    EditRow{"empty value filled behind its blanks", "[s]\nk= \nl=\n", {"s", "k", "1"}, "[s]\nk= 1\nl=\n"},
    EditRow{"value emptied", "[s]\nk=1\n", {"s", "k", ""}, "[s]\nk=\n"},
    EditRow{"same value changes nothing", "[s]\n k = 1 \n\nl=2", {"S", "K", "1"}, "[s]\n k = 1 \n\nl=2"},
    EditRow{"same value given with blanks changes nothing", "[s]\nk=1\n", {"s", "k", " 1\t"}, "[s]\nk=1\n"},
    EditRow{"value with blanks is written without", "[s]\nk=1\n", {"s", "k", " 2\t"}, "[s]\nk=2\n"},
    EditRow{"quotes around the same value are a change", "[s]\nk=1\n", {"s", "k", "\"1\""}, "[s]\nk=\"1\"\n"},
    EditRow{"first of two equal keys", "[s]\nk=1\nk=2\n", {"s", "k", "3"}, "[s]\nk=3\nk=2\n"},
    EditRow{"value in the last line without line end", "[s]\nk=1", {"s", "k", "2"}, "[s]\nk=2"},
    EditRow{"value of the empty key", "[s]\n=\na=1\n", {"s", "", "v"}, "[s]\n=v\na=1\n"}), support::RowName());

INSTANTIATE_TEST_SUITE_P(NewLines, EditRowTest, ::testing::Values(
    EditRow{"new file takes CR LF", "", {"s", "k", "1"}, "[s]\r\nk=1\r\n"},
    EditRow{"file without any line end takes CR LF", "[s]", {"s", "k", "1"}, "[s]\r\nk=1\r\n"},
    EditRow{"new line takes the file's LF", "[s]\na=1\n", {"s", "k", "1"}, "[s]\na=1\nk=1\n"},
    EditRow{"new line takes the file's CR", "[s]\ra=1\r", {"s", "k", "1"}, "[s]\ra=1\rk=1\r"},
    EditRow{"with several the first line end is the file's", "[s]\r\na=1\n", {"s", "k", "1"}, "[s]\r\na=1\nk=1\r\n"},
    EditRow{"the end of an empty first line is the file's", "\n[s]\r\na=1\r\n", {"s", "k", "1"}, "\n[s]\r\na=1\r\nk=1\n"},
    EditRow{"key before the blank lines that part the next header",
            "[s]\na=1\n\n \t\n[t]\n", {"s", "k", "1"}, "[s]\na=1\nk=1\n\n \t\n[t]\n"},
    EditRow{"key behind the section's comments",
            "[s]\na=1\n;c\n\n[t]\n", {"s", "k", "1"}, "[s]\na=1\n;c\nk=1\n\n[t]\n"},
    EditRow{"key behind lines that are no entries",
            "[s]\nnote\n\n[t]\n", {"s", "note", "1"}, "[s]\nnote\nnote=1\n\n[t]\n"},
    EditRow{"key of an empty section", "[s]\n\n[t]\n", {"s", "k", "1"}, "[s]\nk=1\n\n[t]\n"},
    EditRow{"key of the last section, blank lines at the file's end",
            "[s]\na=1\n\n", {"s", "k", "1"}, "[s]\na=1\nk=1\n\n"},
    EditRow{"missing last line end is supplied for a key", "[s]\na=1", {"s", "k", "1"}, "[s]\na=1\nk=1\n"},
    EditRow{"missing last line end is supplied for a section",
            "[s]\na=1", {"t", "k", "1"}, "[s]\na=1\n[t]\nk=1\n"},
    EditRow{"section at the end of the file", "[s]\na=1\n\n", {"t", "k", "1"}, "[s]\na=1\n\n[t]\nk=1\n"},
    EditRow{"names are written without the blanks around", "[s]\n", {" t ", " k ", "1"}, "[s]\n[t]\nk=1\n"},
    EditRow{"key of a section given twice goes to the first",
            "[s]\n[t]\n[S]\nk=9\n", {"s", "k", "1"}, "[s]\nk=1\n[t]\n[S]\nk=9\n"},
    EditRow{"entry with empty key and value", "", {"s", "", ""}, "[s]\r\n=\r\n"},
    EditRow{"key of the section without name", "[s]\n", {"", "k", "1"}, "k=1\n[s]\n"},
    EditRow{"name with brackets", "", {"a]b[", "k", "1"}, "[a]b[]\r\nk=1\r\n"}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Removal, EditRowTest, ::testing::Values(
    EditRow{"key", "[s]\na=1\n b = 2 \nc=3\n", {"s", "B", kNone}, "[s]\na=1\nc=3\n"},
    EditRow{"first of two equal keys", "[s]\na=1\na=2\n", {"s", "a", kNone}, "[s]\na=2\n"},
    EditRow{"key in the last line without line end", "[s]\na=1\nb=2", {"s", "b", kNone}, "[s]\na=1\n"},
    EditRow{"missing key changes nothing", "[s]\na=1", {"s", "b", kNone}, "[s]\na=1"},
    EditRow{"key of a missing section changes nothing", "[s]\na=1", {"t", "a", kNone}, "[s]\na=1"},
    EditRow{"comment is no key", "[s]\n;a=1\n", {"s", ";a", kNone}, "[s]\n;a=1\n"},
    EditRow{"section with everything up to the next header",
            ";top\n[s]\n;c\na=1\n\n[t]\nb=2\n", {"s", kNone, ""}, ";top\n[t]\nb=2\n"},
    EditRow{"last section", "[s]\na=1\n[t]\nb=2", {"T", kNone, kNone}, "[s]\na=1\n"},
    EditRow{"first section of a name", "[s]\na=1\n[S]\nb=2\n", {"s", kNone, kNone}, "[S]\nb=2\n"},
    EditRow{"missing section changes nothing", "[s]\na=1", {"t", kNone, kNone}, "[s]\na=1"},
    EditRow{"lines before the first header", "a=1\n[s]\n", {"", kNone, kNone}, "[s]\n"},
    EditRow{"no lines before the first header", "[s]\n", {"", kNone, kNone}, "[s]\n"}), support::RowName());

// clang-format on

TEST(PrivateProfile, SeesItsOwnChanges)
{
    PrivateProfile profile("[s]\na=1\n");
    EXPECT_TRUE(profile.Make(profile.ValueChange("t", "k", "v")));
    EXPECT_EQ(profile.SectionNames(kNoEnd), "s\0t\0"s);
    EXPECT_TRUE(profile.Make(profile.SectionRemoval("s")));
    EXPECT_EQ(profile.SectionNames(kNoEnd), "t\0"s);
    EXPECT_EQ(profile.Value("t", "k"), "v");
}

} // namespace
} // namespace quillon::store
