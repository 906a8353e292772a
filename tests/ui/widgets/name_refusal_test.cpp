#include "ui/widgets/name_refusal.h"

#include "tests/support/row_name.h"

#include <gtest/gtest.h>

namespace quillon::ui {
namespace {

using store::NameFault;

struct Row
{
    const char* name;
    const char* text;
    NameFault fault;
    const char* told;
};

class NameRefusalRow : public ::testing::TestWithParam<Row>
{
};

TEST_P(NameRefusalRow, SaysWhy)
{
    const TypedName name{QStringLiteral("The antenna brand"), QString::fromUtf8(GetParam().text), 25};
    EXPECT_EQ(NameRefusal(name, GetParam().fault).toStdString(), GetParam().told);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Faults, NameRefusalRow, ::testing::Values(
    Row{"none", "A", NameFault::None, ""},
    Row{"empty", "", NameFault::Empty, "The antenna brand is empty."},
    Row{"forbidden", "a/b", NameFault::ForbiddenCharacter,
        "The antenna brand holds “/”, “\\” or “|”, which cannot be part of a file's name."},
    Row{"control", "a\tb", NameFault::ControlCharacter, "The antenna brand holds a control character."},
    Row{"folder", "..", NameFault::FolderName, "The antenna brand is the name of a folder."},
    Row{"ending", "a.", NameFault::BadEnding,
        "The antenna brand ends in a blank or a point, which the name of a file cannot."},
    Row{"long", "aaa", NameFault::TooLong, "The antenna brand is longer than 25 characters."},
    Row{"code page", "Ω", NameFault::NotInCodePage,
        "The antenna brand holds a character that the data files cannot hold."},
    Row{"blanks around", " a", NameFault::NotReadBack,
        "The antenna brand begins or ends with a blank, which would be lost in the data file."},
    Row{"quotes around", "'a'", NameFault::NotReadBack,
        "The antenna brand stands in quotes, which would be lost in the data file."}), support::RowName());

// clang-format on

} // namespace
} // namespace quillon::ui
