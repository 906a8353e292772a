#pragma once

#include <QHash>
#include <QPalette>
#include <QProxyStyle>

class QApplication;

namespace quillon::ui {

/// The built-in style with outlines that are seen in every palette, selected texts that can be read, and buttons of
/// message boxes that look like all others. A style that a desktop puts over the built-in one is kept below; any other
/// is left as it is.
class QuillonStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Puts the style over the application's when that is the built-in one or lies over it.
    static void Install(QApplication& application);

    using QProxyStyle::polish;
    using QProxyStyle::QProxyStyle;

    void polish(QPalette& palette) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;

private:
    /// Outlines of text boxes, lists and buttons, of check boxes, of options, of a frame that has the keyboard, and of
    /// boxes that only show.
    enum class Edge { Outline, CheckBox, Option, Focus, Hairline };

    /// The window's colour from which the built-in style makes our colour of an edge.
    [[nodiscard]] static QColor WindowFor(const QPalette& palette, Edge edge);
    [[nodiscard]] static Edge EdgeOf(PrimitiveElement element, const QStyleOption& option);

    /// The palette that makes the built-in style draw an edge in our colour.
    [[nodiscard]] QPalette Treated(const QPalette& palette, Edge edge) const;

    mutable QHash<QPair<qint64, int>, QPalette> m_treated; ///< by the cache key of what it was made from
    mutable int m_depth = 0;                               ///< above 0 while a treated control is being drawn
};

} // namespace quillon::ui
