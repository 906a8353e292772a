#include "ui/widgets/list_keys.h"

#include "engine/key_checks.h"
#include "ui/platform/virtual_keys.h"

#include <QKeyEvent>

namespace quillon::ui {

namespace {

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
    return event.key() < kFirstFunctionKey ? event.key() : NamedKeyCode(event.key());
}

} // namespace quillon::ui
