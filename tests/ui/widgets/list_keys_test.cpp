#include "ui/widgets/list_keys.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

#include <string>

namespace quillon::ui {
namespace {

struct TextRow
{
    std::string name;
    const char* typed;
    const char* taken;
};

void PrintTo(const TextRow& row, std::ostream* out)
{
    *out << row.name;
}

class TypedText : public testing::TestWithParam<TextRow>
{
};

TEST_P(TypedText, IsTakenAs)
{
    EXPECT_EQ(FilteredListText(QString::fromUtf8(GetParam().typed)), QString::fromUtf8(GetParam().taken));
}

INSTANTIATE_TEST_SUITE_P(Filter, TypedText,
                         testing::Values(TextRow{"small letters become capitals", "az", "AZ"},
                                         TextRow{"capitals stay", "AZ", "AZ"},
                                         TextRow{"blank to at sign stay", " 0.9-#&@", " 0.9-#&@"},
                                         TextRow{"bracket is the first one dropped", "[", ""},
                                         TextRow{"grave is dropped", "`", ""}, TextRow{"brace is dropped", "{", ""},
                                         TextRow{"tilde is dropped", "~", ""},
                                         TextRow{"umlauts are dropped", "\xC3\xA4\xC3\x84", ""},
                                         TextRow{"letters of other scripts are dropped", "\xD0\xB0", ""},
                                         TextRow{"only what is dropped is missing", "a[b", "AB"}));

struct KeyRow
{
    std::string name;
    Qt::Key key;
    int code;
};

void PrintTo(const KeyRow& row, std::ostream* out)
{
    *out << row.name;
}

class ReleasedKey : public testing::TestWithParam<KeyRow>
{
};

TEST_P(ReleasedKey, HasCode)
{
    EXPECT_EQ(ReleasedKeyCode(QKeyEvent(QEvent::KeyRelease, GetParam().key, Qt::NoModifier)), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ReleasedKey,
    testing::Values(KeyRow{"letter", Qt::Key_H, 72}, KeyRow{"digit", Qt::Key_7, 55}, KeyRow{"blank", Qt::Key_Space, 32},
                    KeyRow{"Backspace", Qt::Key_Backspace, 8}, KeyRow{"Tab", Qt::Key_Tab, 9},
                    KeyRow{"Shift and Tab", Qt::Key_Backtab, 9}, KeyRow{"Return", Qt::Key_Return, 13},
                    KeyRow{"keypad Enter", Qt::Key_Enter, 13}, KeyRow{"Esc", Qt::Key_Escape, 27},
                    KeyRow{"Page Up", Qt::Key_PageUp, 33}, KeyRow{"Page Down", Qt::Key_PageDown, 34},
                    KeyRow{"End", Qt::Key_End, 35}, KeyRow{"Home", Qt::Key_Home, 36}, KeyRow{"Left", Qt::Key_Left, 37},
                    KeyRow{"Up", Qt::Key_Up, 38}, KeyRow{"Right", Qt::Key_Right, 39}, KeyRow{"Down", Qt::Key_Down, 40},
                    KeyRow{"Insert", Qt::Key_Insert, 45}, KeyRow{"Delete", Qt::Key_Delete, 46},
                    KeyRow{"Shift is dropped", Qt::Key_Shift, 0}, KeyRow{"Ctrl is dropped", Qt::Key_Control, 0},
                    KeyRow{"Alt is dropped", Qt::Key_Alt, 0}, KeyRow{"F1 is dropped", Qt::Key_F1, 0},
                    KeyRow{"F4 is dropped", Qt::Key_F4, 0}));

TEST(TypesCharacter, TellsCharactersFromCommands)
{
    EXPECT_TRUE(TypesCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"))));
    EXPECT_FALSE(TypesCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier, QStringLiteral("\x16"))));
    EXPECT_FALSE(TypesCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier)));
}

} // namespace
} // namespace quillon::ui
