#pragma once

#include <QHash>
#include <QPalette>
#include <QProxyStyle>

class QApplication;

namespace quillon::ui {

/// The built-in style with outlines that are seen in dark palettes too, and buttons of message boxes that look
/// like all others. Any other style is left as it is.
class QuillonStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Puts the style over the application's when that is the built-in one.
    static void Install(QApplication& application);

    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;

private:
    enum class Edge { Outline, Hairline };

    /// The palette that makes the built-in style draw an edge in our colour.
    [[nodiscard]] QPalette Treated(const QPalette& palette, Edge edge) const;

    mutable QHash<QPair<qint64, int>, QPalette> m_treated; ///< by the cache key of what it was made from
    mutable int m_depth = 0;                               ///< above 0 while a treated control is being drawn
};

} // namespace quillon::ui
