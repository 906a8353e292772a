#include "ui/widgets/list_keys.h"

#include "engine/key_checks.h"

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

constexpr std::array kEditingKeys{
    KeyCode{Qt::Key_Backspace, 8}, KeyCode{Qt::Key_Tab, 9},       KeyCode{Qt::Key_Backtab, 9},
    KeyCode{Qt::Key_Return, 13},   KeyCode{Qt::Key_Enter, 13},    KeyCode{Qt::Key_Escape, 27},
    KeyCode{Qt::Key_PageUp, 33},   KeyCode{Qt::Key_PageDown, 34}, KeyCode{Qt::Key_End, 35},
    KeyCode{Qt::Key_Home, 36},     KeyCode{Qt::Key_Left, 37},     KeyCode{Qt::Key_Up, 38},
    KeyCode{Qt::Key_Right, 39},    KeyCode{Qt::Key_Down, 40},     KeyCode{Qt::Key_Insert, 45},
    KeyCode{Qt::Key_Delete, 46},
};

/// Keys below this value are the characters they stand for.
constexpr int kFirstFunctionKey = Qt::Key_Escape;

} // namespace

QString FilteredListText(const QString& text)
{
    QString filtered;
    for (const QChar character : text) {
        if (const int code = engine::FilterListKey(character.unicode()); code != 0) {
            filtered.append(QChar(code));
        }
    }
    return filtered;
}

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool TypesCharacter(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().front().isPrint();
}

int ReleasedKeyCode(const QKeyEvent& event)
{
    if (event.key() < kFirstFunctionKey) {
        return event.key();
    }
    const auto* const found = std::ranges::find(kEditingKeys, event.key(), &KeyCode::key);
    return found != kEditingKeys.end() ? found->code : 0;
}

} // namespace quillon::ui
