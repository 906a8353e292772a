#pragma once

#include <QRectF>
#include <QString>
#include <QWidget>

#include <string>
#include <vector>

namespace quillon::test {

/// What is wrong with how a window looks, a line each; none when nothing is.
using Findings = std::vector<std::string>;

void Append(Findings& findings, Findings more);

/// A widget by its class and name, that of the nearest parent where it has none.
[[nodiscard]] std::string Describe(const QWidget* widget);

[[nodiscard]] std::string Quoted(const QString& text);

/// Width, height and place.
[[nodiscard]] std::string Describe(const QRectF& place);

} // namespace quillon::test
