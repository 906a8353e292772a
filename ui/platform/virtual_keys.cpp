#include "ui/platform/virtual_keys.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace quillon::ui {

namespace {

struct KeyCode
{
    int key;
    int code;
};

constexpr std::array kNamedKeys{
    KeyCode{Qt::Key_Backspace, 8}, KeyCode{Qt::Key_Tab, 9},      KeyCode{Qt::Key_Backtab, 9},
    KeyCode{Qt::Key_Return, 13},   KeyCode{Qt::Key_Enter, 13},   KeyCode{Qt::Key_Escape, 27},
    KeyCode{Qt::Key_Space, 32},    KeyCode{Qt::Key_PageUp, 33},  KeyCode{Qt::Key_PageDown, 34},
    KeyCode{Qt::Key_End, 35},      KeyCode{Qt::Key_Home, 36},    KeyCode{Qt::Key_Left, 37},
    KeyCode{Qt::Key_Up, 38},       KeyCode{Qt::Key_Right, 39},   KeyCode{Qt::Key_Down, 40},
    KeyCode{Qt::Key_Insert, 45},   KeyCode{Qt::Key_Delete, 46},  KeyCode{Qt::Key_Comma, 188},
    KeyCode{Qt::Key_Minus, 189},   KeyCode{Qt::Key_Period, 190},
};

constexpr std::array kModifierKeys{
    Qt::Key_Shift,   Qt::Key_Control,    Qt::Key_Alt,         Qt::Key_AltGr,   Qt::Key_Meta,
    Qt::Key_Super_L, Qt::Key_Super_R,    Qt::Key_Hyper_L,     Qt::Key_Hyper_R, Qt::Key_CapsLock,
    Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Mode_switch,
};

constexpr int kDigitZero = 48;
constexpr int kKeypadZero = 96;
constexpr int kKeypadPoint = 110;

/// Code of a key that is none of those the check tells apart.
constexpr int kOtherKey = 255;

/// Key codes of the digit row under X11 and Wayland: "1" to "9", then "0".
constexpr quint32 kFirstDigitKey = 10;
constexpr quint32 kLastDigitKey = 19;

bool IsInRange(int key, int first, int last)
{
    return first <= key && key <= last;
}

bool TellsPlaces(const QString& platform)
{
    return platform == QStringLiteral("xcb") || platform.startsWith(QStringLiteral("wayland"));
}

int KeypadKey(int key)
{
    if (IsInRange(key, Qt::Key_0, Qt::Key_9)) {
        return kKeypadZero + key - Qt::Key_0;
    }
    return key == Qt::Key_Period || key == Qt::Key_Comma ? kKeypadPoint : 0;
}

} // namespace

int VirtualKey(const QKeyEvent& event)
{
    return VirtualKey(event, QGuiApplication::platformName());
}

int VirtualKey(const QKeyEvent& event, const QString& platform)
{
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const int code = KeypadKey(key); code != 0) {
            return code;
        }
    } else if (const quint32 place = event.nativeScanCode();
               TellsPlaces(platform) && kFirstDigitKey <= place && place <= kLastDigitKey) {
        // The digit row counts as digits whatever Shift or the keyboard's language make of it.
        return kDigitZero + static_cast<int>((place - kFirstDigitKey + 1) % 10);
    }
    if (IsInRange(key, Qt::Key_0, Qt::Key_9) || IsInRange(key, Qt::Key_A, Qt::Key_Z)) {
        return key;
    }
    const int code = NamedKeyCode(key);
    return code != 0 ? code : kOtherKey;
}

int NamedKeyCode(int key)
{
    const auto* const found = std::ranges::find(kNamedKeys, key, &KeyCode::key);
    return found != kNamedKeys.end() ? found->code : 0;
}

bool IsModifierAlone(const QKeyEvent& event)
{
    return std::ranges::find(kModifierKeys, static_cast<Qt::Key>(event.key())) != kModifierKeys.end();
}

} // namespace quillon::ui
