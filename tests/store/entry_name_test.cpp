#include "store/entry_name.h"

#include "store/code_page.h"
#include "store/ini_manager.h"
#include "tests/support/row_name.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon::store {
namespace {

struct Row
{
    const char* name;
    std::string entry;
    NameFault fault;
};

class TakenEntryName : public ::testing::TestWithParam<Row>
{
};

TEST_P(TakenEntryName, ReadsBackAsSectionAndAsValue)
{
    ASSERT_EQ(EntryNameFault(GetParam().entry), NameFault::None);
    const std::string bytes = FromUtf8(GetParam().entry).value();
    support::TempFolder folder;
    ProfileStore store;
    INIManager manager(store);
    manager.FileName((folder / "f.dat").string());
    ASSERT_TRUE(manager.WriteValue(bytes, "key", bytes));
    EXPECT_EQ(manager.GetAllSections(manager.FileName()), std::vector<std::string>{bytes});
    EXPECT_EQ(manager.GetValue(bytes, "key", ""), bytes);
}

class RefusedEntryName : public ::testing::TestWithParam<Row>
{
};

TEST_P(RefusedEntryName, IsRefusedForItsReason)
{
    EXPECT_EQ(EntryNameFault(GetParam().entry), GetParam().fault);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Names, TakenEntryName, ::testing::Values(
    Row{"plain", "Beam Four", NameFault::None},
    Row{"brand and model", "HY-GAIN / TH-3", NameFault::None},
    Row{"brackets", "[a]b]", NameFault::None},
    Row{"closing bracket in front", "]", NameFault::None},
    Row{"equals sign and semicolon", ";a=b;", NameFault::None},
    Row{"quotes inside", "12\" mast", NameFault::None},
    Row{"one quote in front", "'73 special", NameFault::None},
    Row{"unequal quotes", "\"a'", NameFault::None},
    Row{"letters of the code page", "Mühle €", NameFault::None},
    Row{"254 characters", std::string(254, 'a'), NameFault::None}), support::RowName());

INSTANTIATE_TEST_SUITE_P(Names, RefusedEntryName, ::testing::Values(
    Row{"empty", "", NameFault::Empty},
    Row{"line end", "a\r\n[b]", NameFault::ControlCharacter},
    Row{"tab", "a\tb", NameFault::ControlCharacter},
    Row{"blank in front", " a", NameFault::NotReadBack},
    Row{"blank at the end", "a ", NameFault::NotReadBack},
    Row{"nothing but a blank", " ", NameFault::NotReadBack},
    Row{"double quotes around", "\"a\"", NameFault::NotReadBack},
    Row{"single quotes around", "'a'", NameFault::NotReadBack},
    Row{"255 characters", std::string(255, 'a'), NameFault::TooLong},
    Row{"letter that the files cannot hold", "Ω", NameFault::NotInCodePage}), support::RowName());
// clang-format on

} // namespace
} // namespace quillon::store
