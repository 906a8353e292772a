#include "engine/key_checks.h"

#include <algorithm>
#include <array>

namespace quillon::engine {

namespace {

/// Backspace, Tab, Enter, Left, Right, Delete and the keypad's decimal point.
constexpr std::array kSilentKeys{8, 9, 13, 37, 39, 46, 110};

constexpr bool IsWithin(int value, int lowest, int highest) noexcept
{
    return value >= lowest && value <= highest;
}

} // namespace

bool CheckNumericKey(int keyCode, Notifier& notifier)
{
    const bool isDigit = IsWithin(keyCode, 48, 57) || IsWithin(keyCode, 96, 105);
    const bool isSilent = std::find(kSilentKeys.begin(), kSilentKeys.end(), keyCode) != kSilentKeys.end();
    if (!isDigit && !isSilent) {
        notifier.Inform("Please Enter Only Numbers!", "Input Error");
    }
    return true;
}

int FilterGainKey(int keyAscii) noexcept
{
    const bool isControl = IsWithin(keyAscii, 8, 10) || keyAscii == 13 || keyAscii == 27;
    const bool isNumeric = IsWithin(keyAscii, '0', '9') || keyAscii == '-' || keyAscii == '.';
    return isControl || isNumeric ? keyAscii : 0;
}

int FilterListKey(int keyAscii) noexcept
{
    if (IsWithin(keyAscii, 'a', 'z')) {
        return keyAscii - 'a' + 'A';
    }
    const bool isControl = IsWithin(keyAscii, 8, 10) || keyAscii == 13 || keyAscii == 27;
    return isControl || IsWithin(keyAscii, ' ', 'Z') ? keyAscii : 0;
}

} // namespace quillon::engine
