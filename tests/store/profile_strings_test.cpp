#include "store/profile_strings.h"

#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::store {
namespace {

using namespace std::string_literals;

class ProfileStrings : public ::testing::Test
{
protected:
    struct Answer
    {
        std::size_t count;
        std::string buffer; ///< "#" where nothing was written

        [[nodiscard]] bool operator==(const Answer&) const = default;
    };

    Answer Get(OptionalText section, OptionalText key, OptionalText defaultValue, std::size_t size)
    {
        std::string buffer(size, '#');
        const std::size_t count = GetPrivateProfileString(m_store, section, key, defaultValue, buffer, m_file);
        return {count, buffer};
    }

    bool Write(OptionalText section, OptionalText key, OptionalText value)
    {
        return WritePrivateProfileString(m_store, section, key, value, m_file);
    }

    support::TempFolder m_folder;
    std::filesystem::path m_file = m_folder / "f.dat";
    ProfileStore m_store;
};

TEST_F(ProfileStrings, CopyAValueAndCloseItWithANul)
{
    m_folder.Put("f.dat", "[s]\nk=\" v \"\n");
    EXPECT_EQ(Get("s", "k", "d", 6), (Answer{3, " v \0##"s}));
}

TEST_F(ProfileStrings, CutAValueToOneLessThanTheBuffer)
{
    m_folder.Put("f.dat", "[s]\nk=abcdef\n");
    EXPECT_EQ(Get("s", "k", "", 7), (Answer{6, "abcdef\0"s}));
    EXPECT_EQ(Get("s", "k", "", 6), (Answer{5, "abcde\0"s}));
    EXPECT_EQ(Get("s", "k", "", 1), (Answer{0, "\0"s}));
    EXPECT_EQ(Get("s", "k", "", 0), (Answer{0, ""}));
}

TEST_F(ProfileStrings, GiveTheDefaultWithoutItsTrailingBlanksForWhatIsMissing)
{
    m_folder.Put("f.dat", "[s]\nempty=\n");
    EXPECT_EQ(Get("s", "k", " d  ", 5), (Answer{2, " d\0##"s}));
    EXPECT_EQ(Get("t", "k", "abc", 3), (Answer{2, "ab\0"s}));
    EXPECT_EQ(Get("s", "empty", "d", 2), (Answer{0, "\0#"s}));
    EXPECT_EQ(Get("s", "k", {}, 2), (Answer{0, "\0#"s}));
}

TEST_F(ProfileStrings, ReadAMissingFileAsEmpty)
{
    EXPECT_EQ(Get("s", "k", "d", 3), (Answer{1, "d\0#"s}));
    EXPECT_EQ(Get({}, {}, "d", 3), (Answer{0, "\0##"s}));
    EXPECT_EQ(Get("s", {}, "d", 3), (Answer{0, "\0##"s}));
    EXPECT_TRUE(m_folder.Names().empty());
}

TEST_F(ProfileStrings, DeliverAListThatFitsWhole)
{
    m_folder.Put("f.dat", "[ab]\nk=1\nlm=2\n[c]\n");
    EXPECT_EQ(Get({}, {}, "", 8), (Answer{5, "ab\0c\0\0##"s}));
    EXPECT_EQ(Get("ab", {}, "", 6), (Answer{5, "k\0lm\0\0"s}));
    EXPECT_EQ(Get({}, "key does not count", "", 6), (Answer{5, "ab\0c\0\0"s}));
}

TEST_F(ProfileStrings, CutAListThatDoesNotFitToTwoLessThanTheBuffer)
{
    m_folder.Put("f.dat", "[s]\nab=1\ncdef=2\n");
    EXPECT_EQ(Get("s", {}, "", 8), (Answer{6, "ab\0cde\0\0"s}));
    EXPECT_EQ(Get("s", {}, "", 5), (Answer{3, "ab\0\0\0"s}));
    EXPECT_EQ(Get("s", {}, "", 2), (Answer{0, "\0\0"s}));
    EXPECT_EQ(Get("s", {}, "", 1), (Answer{0, "\0"s}));
    EXPECT_EQ(Get("s", {}, "", 0), (Answer{0, ""}));
}

TEST_F(ProfileStrings, ListASectionOfOneEmptyKeyAsOneEmptyName)
{
    m_folder.Put("f.dat", "[s]\n=\n");
    EXPECT_EQ(Get("s", {}, "", 4), (Answer{1, "\0\0##"s}));
}

TEST_F(ProfileStrings, WriteReplaceAndDelete)
{
    EXPECT_TRUE(Write("s", "k", "1"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\r\nk=1\r\n");
    EXPECT_TRUE(Write("s", "k", "2"));
    EXPECT_TRUE(Write("s", "l", "3"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\r\nk=2\r\nl=3\r\n");
    EXPECT_TRUE(Write("s", "k", {}));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\r\nl=3\r\n");
    EXPECT_TRUE(Write("s", {}, "value does not count"));
    EXPECT_EQ(m_folder.Get("f.dat"), "");
}

TEST_F(ProfileStrings, DeletingWhatIsNotThereSucceedsAndCreatesNothing)
{
    EXPECT_TRUE(Write("s", "k", {}));
    EXPECT_TRUE(Write("s", {}, {}));
    EXPECT_TRUE(m_folder.Names().empty());
}

TEST_F(ProfileStrings, RefuseTextsThatWouldNotStayOneLine)
{
    m_folder.Put("f.dat", "[s]\nk=1\n");
    EXPECT_FALSE(Write("s\n[t]", "k", "2"));
    EXPECT_FALSE(Write("s", "a\r", "2"));
    EXPECT_FALSE(Write("s", "k", "2\nl=3"));
    EXPECT_FALSE(Write("s", "k", "2\0"s));
    EXPECT_FALSE(Write({}, "k", "2"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[s]\nk=1\n");
}

TEST_F(ProfileStrings, WriteBytesAsTheyAre)
{
    EXPECT_TRUE(Write("M\xFChle", "\x80", "\x81\x7F\xFF"));
    EXPECT_EQ(m_folder.Get("f.dat"), "[M\xFChle]\r\n\x80=\x81\x7F\xFF\r\n");
    EXPECT_EQ(Get("M\xFChle", "\x80", "", 4), (Answer{3, "\x81\x7F\xFF\0"s}));
}

} // namespace
} // namespace quillon::store
