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

constexpr double kStep = 0.05; ///< of the way from one colour to another

/// Relative luminance as WCAG 2.1 defines it, 0 to 1.
double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// A colour on the way from one to another: a share of it, and more where that has too little contrast to a ground that
/// it stands on.
QColor Standing(const QColor& from, const QColor& to, double share, double contrast, const QList<QColor>& grounds)
{
    QColor color = Mixed(from, to, share);
    for (int step = 1; share + step * kStep <= 1 + kStep / 2; ++step) {
        if (std::ranges::all_of(grounds, [&](const QColor& ground) { return Contrast(color, ground) >= contrast; })) {
            return color;
        }
        color = Mixed(from, to, std::min(share + step * kStep, 1.0));
    }
    return color;
}

/// What outlines and markers stand on.
QList<QColor> WindowAndCard(const QPalette& palette)
{
    return {Active(palette, QPalette::Window), CardColor(palette)};
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

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
    return Standing(Active(palette, QPalette::Window), Active(palette, QPalette::WindowText), 0.41, kVisible,
                    WindowAndCard(palette));
}

QColor EmptyMarkerColor(const QPalette& palette)
{
    return Standing(Active(palette, QPalette::Window), Active(palette, QPalette::WindowText), 0.46, kVisible,
                    WindowAndCard(palette));
}

QColor FilledMarkerColor(const QPalette& palette)
{
    return Standing(Active(palette, QPalette::Highlight), Active(palette, QPalette::WindowText), 0, kVisible,
                    WindowAndCard(palette));
}

QColor FocusColor(const QPalette& palette)
{
    return FilledMarkerColor(palette);
}

QColor QuietColor(const QPalette& palette)
{
    return Standing(Active(palette, QPalette::Window), Active(palette, QPalette::WindowText), 0.70, kReadable,
                    WindowAndCard(palette) + QList{Active(palette, QPalette::Base), BetterColor(palette)});
}

QColor BetterColor(const QPalette& palette)
{
    return Mixed(Active(palette, QPalette::Base), Active(palette, QPalette::Highlight), 0.13);
}

QColor LinkColor(const QPalette& palette, QPalette::ColorRole ground)
{
    return Standing(Active(palette, QPalette::Link), Active(palette, QPalette::WindowText), 0, kReadable,
                    {Active(palette, ground)});
}

void MakeSelectionReadable(QPalette& palette)
{
    // Away from the colour of the window, from which a selection has to stand out as well.
    const QColor text = IsDark(palette) ? Qt::black : Qt::white;
    const QColor away = IsDark(palette) ? Qt::white : Qt::black;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const QColor highlight = palette.color(group, QPalette::Highlight);
        if (Contrast(palette.color(group, QPalette::HighlightedText), highlight) < kReadable) {
            palette.setColor(group, QPalette::HighlightedText, text);
            palette.setColor(group, QPalette::Highlight, Standing(highlight, away, 0, kReadable, {text}));
        }
    }
}

void MakeRowsReadable(QPalette& palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::AlternateBase,
                         Standing(palette.color(group, QPalette::AlternateBase), palette.color(group, QPalette::Base),
                                  0, kReadable, {palette.color(group, QPalette::Text)}));
    }
}

QString PlainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace quillon::ui
