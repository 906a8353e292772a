#include "ui/platform/virtual_keys.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

#include <string>

namespace quillon::ui {
namespace {

struct KeyRow
{
    std::string name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int code;
};

void PrintTo(const KeyRow& row, std::ostream* out)
{
    *out << row.name;
}

class VirtualKeyOf : public testing::TestWithParam<KeyRow>
{
};

TEST_P(VirtualKeyOf, Is)
{
    const QKeyEvent event(QEvent::KeyPress, GetParam().key, GetParam().modifiers);
    EXPECT_EQ(VirtualKey(event), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(
    MainKeyboard, VirtualKeyOf,
    testing::Values(
        KeyRow{"digit 0", Qt::Key_0, Qt::NoModifier, 48}, KeyRow{"digit 9", Qt::Key_9, Qt::NoModifier, 57},
        KeyRow{"letter A", Qt::Key_A, Qt::NoModifier, 65}, KeyRow{"letter Z", Qt::Key_Z, Qt::NoModifier, 90},
        KeyRow{"the point is not the keypad's", Qt::Key_Period, Qt::NoModifier, 190},
        KeyRow{"the comma is not the keypad's", Qt::Key_Comma, Qt::NoModifier, 188},
        KeyRow{"minus", Qt::Key_Minus, Qt::NoModifier, 189}, KeyRow{"Backspace", Qt::Key_Backspace, Qt::NoModifier, 8},
        KeyRow{"Tab", Qt::Key_Tab, Qt::NoModifier, 9},
        KeyRow{"Shift and Tab is Tab", Qt::Key_Backtab, Qt::ShiftModifier, 9},
        KeyRow{"Return", Qt::Key_Return, Qt::NoModifier, 13}, KeyRow{"Esc", Qt::Key_Escape, Qt::NoModifier, 27},
        KeyRow{"space", Qt::Key_Space, Qt::NoModifier, 32}, KeyRow{"Page Up", Qt::Key_PageUp, Qt::NoModifier, 33},
        KeyRow{"Page Down", Qt::Key_PageDown, Qt::NoModifier, 34}, KeyRow{"End", Qt::Key_End, Qt::NoModifier, 35},
        KeyRow{"Home", Qt::Key_Home, Qt::NoModifier, 36}, KeyRow{"Left", Qt::Key_Left, Qt::NoModifier, 37},
        KeyRow{"Up", Qt::Key_Up, Qt::NoModifier, 38}, KeyRow{"Right", Qt::Key_Right, Qt::NoModifier, 39},
        KeyRow{"Down", Qt::Key_Down, Qt::NoModifier, 40}, KeyRow{"Insert", Qt::Key_Insert, Qt::NoModifier, 45},
        KeyRow{"Delete", Qt::Key_Delete, Qt::NoModifier, 46}));

INSTANTIATE_TEST_SUITE_P(
    Keypad, VirtualKeyOf,
    testing::Values(KeyRow{"keypad 0", Qt::Key_0, Qt::KeypadModifier, 96},
                    KeyRow{"keypad 9", Qt::Key_9, Qt::KeypadModifier, 105},
                    KeyRow{"keypad point", Qt::Key_Period, Qt::KeypadModifier, 110},
                    KeyRow{"keypad comma where the language has one", Qt::Key_Comma, Qt::KeypadModifier, 110},
                    KeyRow{"keypad Enter", Qt::Key_Enter, Qt::KeypadModifier, 13},
                    KeyRow{"keypad Left without Num Lock", Qt::Key_Left, Qt::KeypadModifier, 37},
                    KeyRow{"keypad Delete without Num Lock", Qt::Key_Delete, Qt::KeypadModifier, 46}));

// Characters whose own codes would pass for an arrow, Delete or a keypad digit.
INSTANTIATE_TEST_SUITE_P(NoKeyOfTheCheck, VirtualKeyOf,
                         testing::Values(KeyRow{"percent is not Left", Qt::Key_Percent, Qt::ShiftModifier, 255},
                                         KeyRow{"apostrophe is not Right", Qt::Key_Apostrophe, Qt::NoModifier, 255},
                                         KeyRow{"grave is not keypad 0", Qt::Key_QuoteLeft, Qt::NoModifier, 255},
                                         KeyRow{"F1 is not the keypad's", Qt::Key_F1, Qt::NoModifier, 255}));

struct PlaceRow
{
    std::string name;
    quint32 place;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    QString platform;
    int code;
};

void PrintTo(const PlaceRow& row, std::ostream* out)
{
    *out << row.name;
}

class VirtualKeyAt : public testing::TestWithParam<PlaceRow>
{
};

TEST_P(VirtualKeyAt, Is)
{
    const PlaceRow& row = GetParam();
    const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, row.place, 0, 0);
    EXPECT_EQ(VirtualKey(event, row.platform), row.code);
}

INSTANTIATE_TEST_SUITE_P(
    DigitRow, VirtualKeyAt,
    testing::Values(
        PlaceRow{"Shift and 1 is the digit", 10, Qt::Key_Exclam, Qt::ShiftModifier, QStringLiteral("xcb"), 49},
        PlaceRow{"Shift and 5 is not Left", 14, Qt::Key_Percent, Qt::ShiftModifier, QStringLiteral("xcb"), 53},
        PlaceRow{"0 is the last of the row", 19, Qt::Key_ParenRight, Qt::ShiftModifier, QStringLiteral("xcb"), 48},
        PlaceRow{"French digits need no Shift", 11, Qt::Key_Eacute, Qt::NoModifier, QStringLiteral("wayland"), 50},
        PlaceRow{"minus stands beside the row", 20, Qt::Key_Minus, Qt::NoModifier, QStringLiteral("xcb"), 189},
        PlaceRow{"keypad wins over the place", 10, Qt::Key_1, Qt::KeypadModifier, QStringLiteral("xcb"), 97},
        PlaceRow{"elsewhere places mean nothing", 14, Qt::Key_Percent, Qt::ShiftModifier, QStringLiteral("offscreen"),
                 255}));

class ModifierAlone : public testing::TestWithParam<Qt::Key>
{
};

TEST_P(ModifierAlone, TypesNothing)
{
    EXPECT_TRUE(IsModifierAlone(QKeyEvent(QEvent::KeyPress, GetParam(), Qt::NoModifier)));
}

INSTANTIATE_TEST_SUITE_P(Keys, ModifierAlone,
                         testing::Values(Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                                         Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_CapsLock, Qt::Key_NumLock,
                                         Qt::Key_ScrollLock));

TEST(IsModifierAlone, AKeyWithAModifierIsNone)
{
    EXPECT_FALSE(IsModifierAlone(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier)));
}

} // namespace
} // namespace quillon::ui
