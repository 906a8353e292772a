#pragma once

#include <QPalette>
#include <QString>

#include <optional>
#include <vector>

namespace quillon::test {

/// Colours that a desktop may hand over.
struct NamedPalette
{
    QString name;
    QPalette palette;
};

/// Light and dark as the built-in style has them, a darker one with faint lines, and high contrast both ways.
[[nodiscard]] const std::vector<NamedPalette>& Palettes();

/// @return nothing when there is none of that name.
[[nodiscard]] std::optional<QPalette> FindPalette(const QString& name);

} // namespace quillon::test
