#include "tests/looks/findings.h"

#include <iterator>
#include <utility>

namespace quillon::test {

void Append(Findings& findings, Findings more)
{
    findings.insert(findings.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

std::string Describe(const QWidget* widget)
{
    if (widget == nullptr) {
        return "nobody";
    }
    std::string kind = widget->metaObject()->className();
    for (const QWidget* named = widget; named != nullptr; named = named->parentWidget()) {
        if (!named->objectName().isEmpty()) {
            return (named == widget ? "" : kind + " in ") + named->objectName().toStdString();
        }
    }
    return kind;
}

std::string Quoted(const QString& text)
{
    return '"' + text.toStdString() + '"';
}

std::string Describe(const QRectF& place)
{
    return QStringLiteral("%1x%2 at %3,%4")
        .arg(place.width(), 0, 'f', 0)
        .arg(place.height(), 0, 'f', 0)
        .arg(place.x(), 0, 'f', 0)
        .arg(place.y(), 0, 'f', 0)
        .toStdString();
}

} // namespace quillon::test
