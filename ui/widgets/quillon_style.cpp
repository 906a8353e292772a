#include "ui/widgets/quillon_style.h"

#include "ui/widgets/looks.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QStyleFactory>
#include <QStyleOption>

namespace quillon::ui {

namespace {

/// The built-in style draws outlines as the window's colour darkened by this much, in percent.
constexpr int kStyleDarkens = 140;
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

} // namespace

void QuillonStyle::Install(QApplication& /*application*/)
{
    const QString name = QApplication::style()->name();
    if (name.compare(QStringLiteral("fusion"), Qt::CaseInsensitive) == 0) {
        QApplication::setStyle(new QuillonStyle(QStyleFactory::create(name)));
    }
}

int QuillonStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
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
        const QColor line = edge == Edge::Hairline ? HairlineColor(palette) : OutlineColor(palette);
        QPalette made = palette;
        made.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Disabled, QPalette::Window));
        made.setColor(QPalette::Window, line.lighter(kStyleDarkens));
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
    const bool follows = IsTextBox(element) && option->state.testFlag(State_ReadOnly);
    const QPalette palette = Treated(option->palette, follows ? Edge::Hairline : Edge::Outline);
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
