#include "ui/widgets/quillon_style.h"

#include "ui/widgets/looks.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QStyleFactory>
#include <QStyleOption>

namespace quillon::ui {

namespace {

/// The built-in style draws outlines as the window's colour darkened by this much, in percent. Those of check boxes it
/// then makes lighter.
constexpr int kStyleDarkens = 140;
constexpr int kStyleLightensCheckBoxes = 110;
constexpr int kStyleLightensFrames = 108;
constexpr int kStyleDarkensOptions = 150;
constexpr int kStyleDarkensFocus = 125;
/// The line of a circle is thin and smoothed, so that hardly a pixel has all of its colour.
constexpr double kSmoothed = 0.5;
constexpr qsizetype kMostPalettes = 64;

bool DrawsOutline(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_Frame:
        return true;
    default:
        return false;
    }
}

bool IsTextBox(QStyle::PrimitiveElement element)
{
    return element == QStyle::PE_FrameLineEdit || element == QStyle::PE_PanelLineEdit;
}

/// Whether a style is the built-in one, or one that a desktop's settings put over it.
bool IsOverBuiltIn(const QStyle* style)
{
    while (const auto* proxy = qobject_cast<const QProxyStyle*>(style)) {
        style = proxy->baseStyle();
    }
    return style->name().compare(QStringLiteral("fusion"), Qt::CaseInsensitive) == 0;
}

} // namespace

void QuillonStyle::Install(QApplication& /*application*/)
{
    if (!IsOverBuiltIn(QApplication::style())) {
        return;
    }
    if (QStyle* below = QStyleFactory::create(QApplication::style()->name()); below != nullptr) {
        QApplication::setStyle(new QuillonStyle(below));
    }
}

void QuillonStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    MakeSelectionReadable(palette);
    MakeRowsReadable(palette);
}

int QuillonStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

QColor QuillonStyle::WindowFor(const QPalette& palette, Edge edge)
{
    switch (edge) {
    case Edge::CheckBox:
        return OutlineColor(palette).darker(kStyleLightensCheckBoxes).lighter(kStyleDarkens);
    case Edge::Option:
        return Mixed(OutlineColor(palette), palette.color(QPalette::Active, QPalette::WindowText), kSmoothed)
            .lighter(kStyleDarkensOptions);
    case Edge::Focus:
        return FocusColor(palette).darker(kStyleLightensFrames).lighter(kStyleDarkens);
    case Edge::Hairline:
        return HairlineColor(palette).lighter(kStyleDarkens);
    default:
        return OutlineColor(palette).lighter(kStyleDarkens);
    }
}

QuillonStyle::Edge QuillonStyle::EdgeOf(PrimitiveElement element, const QStyleOption& option)
{
    switch (element) {
    case PE_IndicatorCheckBox:
        return Edge::CheckBox;
    case PE_IndicatorRadioButton:
        return Edge::Option;
    case PE_Frame:
        // The style does not mark the frame of a document or a table that has the keyboard.
        return option.state.testFlag(State_HasFocus) ? Edge::Focus : Edge::Outline;
    default:
        return IsTextBox(element) && option.state.testFlag(State_ReadOnly) ? Edge::Hairline : Edge::Outline;
    }
}

QPalette QuillonStyle::Treated(const QPalette& palette, Edge edge) const
{
    // Kept from one call to the next: each new palette would fill the pixmap cache with controls of its own.
    const QPair<qint64, int> key(palette.cacheKey(), static_cast<int>(edge));
    auto found = m_treated.find(key);
    if (found == m_treated.end()) {
        if (m_treated.size() >= kMostPalettes) {
            m_treated.clear();
        }
        QPalette made = palette;
        made.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Disabled, QPalette::Window));
        made.setColor(QPalette::Window, WindowFor(palette, edge));
        // A light colour the style evens out, so that in a light palette the darker one is better.
        const QColor focus = FocusColor(palette);
        made.setColor(QPalette::Highlight, IsDark(palette) ? focus.lighter(kStyleDarkensFocus) : focus);
        found = m_treated.insert(key, made);
    }
    QPalette treated = *found;
    // The group belongs to the call, not to the palette: a kept one would draw enabled controls as disabled.
    treated.setCurrentColorGroup(palette.currentColorGroup());
    return treated;
}

void QuillonStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    // Primitives are called again from within others and from within complex controls: treat a palette once only.
    if (m_depth > 0 || option == nullptr || !DrawsOutline(element)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const QScopedValueRollback nested(m_depth, m_depth + 1);
    const QPalette palette = Treated(option->palette, EdgeOf(element, *option));
    if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option)) {
        QStyleOptionFrame treated(*frame);
        treated.palette = palette;
        QProxyStyle::drawPrimitive(element, &treated, painter, widget);
    } else if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        QStyleOptionButton treated(*button);
        treated.palette = palette;
        QProxyStyle::drawPrimitive(element, &treated, painter, widget);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void QuillonStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const
{
    const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (m_depth > 0 || control != CC_ComboBox || box == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const QScopedValueRollback nested(m_depth, m_depth + 1);
    QStyleOptionComboBox treated(*box);
    treated.palette = Treated(box->palette, Edge::Outline);
    QProxyStyle::drawComplexControl(control, &treated, painter, widget);
}

} // namespace quillon::ui
