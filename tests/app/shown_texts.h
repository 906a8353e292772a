#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace quillon::test {

/// A text that a person reads or hears, and where.
struct ShownText
{
    QString where;
    QString text;
};

/// All texts of a window and of everything in it: captions, contents, list entries, menus, tool tips, and what screen
/// readers are told. Without access marks, and tool tips as plain text. What help pages say is left out: a document.
[[nodiscard]] std::vector<ShownText> TextsOf(const QWidget& window);

/// "&Close" gives "Close", "R && D" gives "R & D".
[[nodiscard]] QString WithoutAccessMarks(QString text);

} // namespace quillon::test
