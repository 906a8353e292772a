#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace quillon::ui {

/// The length that all margins and gaps are multiples of: a quarter of the application font's line, at least 4 px.
[[nodiscard]] int BaseUnit();

/// The application font changed in size by a factor and in weight; no size is set absolutely anywhere.
[[nodiscard]] QFont ScaledFont(double factor, QFont::Weight weight = QFont::Normal);

/// The font asking for "MS Sans Serif" by name; where there is none, the application font's family.
[[nodiscard]] QFont SansSerif(QFont font);

/// A colour moved towards another one by a share of 0 to 1.
[[nodiscard]] QColor Mixed(const QColor& color, const QColor& other, double share);

/// Contrast that text has to have against what is behind it, and a shape that tells something (WCAG 2.1, 1.4.3 and
/// 1.4.11).
constexpr double kReadable = 4.5;
constexpr double kVisible = 3;

/// Contrast of two colours as WCAG 2.1 defines it, 1 to 21.
[[nodiscard]] double Contrast(const QColor& one, const QColor& other);

/// Colours by palette role, the same whether or not the window has the focus. What has too little contrast to what it
/// stands on in a palette moves towards the text's colour.
[[nodiscard]] bool IsDark(const QPalette& palette);
[[nodiscard]] QColor CardColor(const QPalette& palette);
[[nodiscard]] QColor HairlineColor(const QPalette& palette);
[[nodiscard]] QColor OutlineColor(const QPalette& palette);
[[nodiscard]] QColor EmptyMarkerColor(const QPalette& palette);
[[nodiscard]] QColor FilledMarkerColor(const QPalette& palette);
/// Of the line around what has the keyboard.
[[nodiscard]] QColor FocusColor(const QPalette& palette);
[[nodiscard]] QColor QuietColor(const QPalette& palette);
[[nodiscard]] QColor BetterColor(const QPalette& palette);
/// The palette's own colour of links, moved towards the text's where it would be hard to read on its ground.
[[nodiscard]] QColor LinkColor(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window);

/// Changes the colours of what is selected where its text would be hard to read, as it is in the built-in palettes.
void MakeSelectionReadable(QPalette& palette);

/// Gives every other row of a table a ground closer to that of the rest when its text could hardly be read.
void MakeRowsReadable(QPalette& palette);

/// A text that comes from a file or a person, safe for places that would take it as rich text (tool tips).
[[nodiscard]] QString PlainToolTip(const QString& text);

} // namespace quillon::ui
