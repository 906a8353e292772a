#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>

namespace quillon::test {

/// The help as shipped, found where the sources stand.
[[nodiscard]] std::filesystem::path ShippedHelpFile();
[[nodiscard]] QString ShippedHelp();

/// The shipped catalogues' folder.
[[nodiscard]] std::filesystem::path ShippedData();

/// Values of an attribute, in the order in which they stand.
[[nodiscard]] QStringList AttributeValues(const QString& html, const QString& element, const QString& attribute);

/// What stands between the tags of the first element of a class, its own tags included: "table", "figures".
[[nodiscard]] QString ElementOfClass(const QString& html, const QString& element, const QString& name);

/// Texts of all cells of a table, row by row, headings left out.
[[nodiscard]] QStringList Cells(const QString& table);

/// What a reader sees of HTML, each run of blanks as one.
[[nodiscard]] QString ReadText(const QString& html);

} // namespace quillon::test
