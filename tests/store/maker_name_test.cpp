#include "store/maker_name.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::store {
namespace {

using namespace std::string_literals;

struct Row
{
    const char* name;
    std::string maker;
    NameFault fault;
};

class MakerNameRow : public ::testing::TestWithParam<Row>
{
};

TEST_P(MakerNameRow, IsTakenOrRefusedForItsReason)
{
    EXPECT_EQ(MakerNameFault(GetParam().maker), GetParam().fault);
    EXPECT_EQ(IsMakerName(GetParam().maker), GetParam().fault == NameFault::None);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Taken, MakerNameRow, ::testing::Values(
    Row{"plain", "HY-GAIN", NameFault::None},
    Row{"blanks and points inside", "Tonna F9FT, Inc. 2", NameFault::None},
    Row{"point in front", ".70 Makers", NameFault::None},
    Row{"letters of the code page", "Mühle", NameFault::None},
    Row{"markup", "<b>&amp;", NameFault::None},
    Row{"25 characters", std::string(25, 'a'), NameFault::None},
    Row{"25 characters of two bytes each", "üüüüüüüüüüüüüüüüüüüüüüüüü", NameFault::None}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Refused, MakerNameRow, ::testing::Values(
    Row{"empty", "", NameFault::Empty},
    Row{"slash", "a/b", NameFault::ForbiddenCharacter},
    Row{"backslash", "a\\b", NameFault::ForbiddenCharacter},
    Row{"bar, which parts the makers of a list", "a|b", NameFault::ForbiddenCharacter},
    Row{"way out of the folder", "../a", NameFault::ForbiddenCharacter},
    Row{"NUL", "a\0b"s, NameFault::ControlCharacter},
    Row{"line end", "a\n", NameFault::ControlCharacter},
    Row{"last control character", "a\x1F" "b", NameFault::ControlCharacter},
    Row{"delete character", "a\x7F", NameFault::ControlCharacter},
    Row{"one point", ".", NameFault::FolderName},
    Row{"two points", "..", NameFault::FolderName},
    Row{"blank at the end", "a ", NameFault::BadEnding},
    Row{"point at the end", "a.", NameFault::BadEnding},
    Row{"three points", "...", NameFault::BadEnding},
    Row{"blank in front, which the index would drop", " a", NameFault::NotReadBack},
    Row{"quotes around, which a value loses", "\"a\"", NameFault::NotReadBack},
    Row{"26 characters", std::string(26, 'a'), NameFault::TooLong},
    Row{"letter that the files cannot hold", "Ωmega", NameFault::NotInCodePage},
    Row{"bytes that are no UTF-8", "M\xFChle", NameFault::NotInCodePage}), support::RowName());

// clang-format on

TEST(FileNameFault, AsksOnlyForWhatAFileNameNeeds)
{
    EXPECT_EQ(FileNameFault(std::string(26, 'a')), NameFault::None);
    EXPECT_EQ(FileNameFault("Ωmega"), NameFault::None);
    EXPECT_EQ(FileNameFault("M\xFChle"), NameFault::None);
    EXPECT_EQ(FileNameFault("a|b"), NameFault::ForbiddenCharacter);
}

} // namespace
} // namespace quillon::store
