#pragma once

#include <QColor>

namespace quillon::test {

/// What text has to have against what is behind it, and what a shape that tells something (WCAG 2.1, 1.4.3 and 1.4.11).
constexpr double kTextContrast = 4.5;
constexpr double kShapeContrast = 3;

/// Contrast of two opaque colours as WCAG 2.1 defines it, 1 to 21.
[[nodiscard]] double Contrast(QRgb one, QRgb other);

/// A colour as it is seen over an opaque one.
[[nodiscard]] QRgb Over(const QColor& color, QRgb behind);

} // namespace quillon::test
