#include "ui/widgets/looks.h"

#include <QApplication>
#include <QFontMetrics>
#include <QFontMetricsF>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace quillon::ui {

namespace {

/// The colour of a window that has the focus: what a colour says must not change when the window loses it.
QColor Active(const QPalette& palette, QPalette::ColorRole role)
{
    return palette.color(QPalette::Active, role);
}

/// Contrast that text has to have (WCAG 2.1, 1.4.3).
constexpr double kReadable = 4.5;
constexpr int kSteps = 10; ///< from one colour to another

/// Relative luminance as WCAG 2.1 defines it, 0 to 1.
double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

int BaseUnit()
{
    return std::max(4, qRound(QFontMetricsF(QApplication::font()).lineSpacing() / 4));
}

QFont ScaledFont(double factor, QFont::Weight weight)
{
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    }
    font.setWeight(weight);
    return font;
}

QFont SansSerif(QFont font)
{
    font.setFamilies(QStringList{QStringLiteral("MS Sans Serif")} + QApplication::font().families());
    return font;
}

QColor Mixed(const QColor& color, const QColor& other, double share)
{
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mix(color.red(), other.red()), mix(color.green(), other.green()), mix(color.blue(), other.blue())};
}

bool IsDark(const QPalette& palette)
{
    return Active(palette, QPalette::Window).lightness() < Active(palette, QPalette::WindowText).lightness();
}

QColor CardColor(const QPalette& palette)
{
    const QColor window = Active(palette, QPalette::Window);
    return IsDark(palette) ? Mixed(window, Active(palette, QPalette::WindowText), 0.035)
                           : Mixed(window, Active(palette, QPalette::Base), 0.45);
}

QColor HairlineColor(const QPalette& palette)
{
    return Mixed(Active(palette, QPalette::Window), Active(palette, QPalette::WindowText), 0.18);
}

QColor OutlineColor(const QPalette& palette)
{
    return Mixed(Active(palette, QPalette::Window), Active(palette, QPalette::WindowText), 0.41);
}

QColor EmptyMarkerColor(const QPalette& palette)
{
    return Mixed(Active(palette, QPalette::Window), Active(palette, QPalette::WindowText), 0.46);
}

QColor FilledMarkerColor(const QPalette& palette)
{
    return Active(palette, QPalette::Highlight);
}

QColor QuietColor(const QPalette& palette)
{
    return Mixed(Active(palette, QPalette::WindowText), Active(palette, QPalette::Window), 0.30);
}

QColor BetterColor(const QPalette& palette)
{
    return Mixed(Active(palette, QPalette::Base), Active(palette, QPalette::Highlight), 0.13);
}

QColor LinkColor(const QPalette& palette)
{
    const QColor link = Active(palette, QPalette::Link);
    QColor color = link;
    for (int step = 1; step <= kSteps && Contrast(color, Active(palette, QPalette::Window)) < kReadable; ++step) {
        color = Mixed(link, Active(palette, QPalette::WindowText), 1.0 * step / kSteps);
    }
    return color;
}

QString PlainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace quillon::ui
