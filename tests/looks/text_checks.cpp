#include "tests/looks/text_checks.h"

#include "tests/looks/contrast.h"
#include "tests/looks/shown_controls.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSet>

#include <algorithm>

namespace quillon::test {

namespace {

/// Letters may reach over their neighbours' edges by so much, in pixels of the widget: the box around a letter has room
/// for the smoothing of its edges.
constexpr double kTolerance = 1.5;
/// A frame or a line that touches a letter does not make a text hard to read, in parts of what is behind it.
constexpr double kNegligible = 0.03;

/// One text, together with its selected parts, which are drawn apart.
struct WholeText
{
    const DrawnText* first;
    QRegion shown;
};

std::vector<WholeText> Gathered(const Recording& recording)
{
    std::vector<WholeText> gathered;
    for (const DrawnText& text : recording.texts) {
        const auto same = std::ranges::find_if(gathered, [&](const WholeText& other) {
            return other.first->widget == text.widget && other.first->text == text.text &&
                   other.first->start == text.start;
        });
        if (same != gathered.end()) {
            same->shown |= text.shown;
        } else {
            gathered.push_back({&text, text.shown});
        }
    }
    return gathered;
}

bool Scrolls(const DrawnText& text)
{
    return text.widget != nullptr && qobject_cast<QAbstractScrollArea*>(text.widget->parentWidget()) != nullptr;
}

/// Whether the ink reaches out of what is shown of it.
bool IsCut(const WholeText& text, double tolerance)
{
    const QRectF shown = text.shown.boundingRect();
    const QRectF ink = text.first->ink;
    return shown.isEmpty() || shown.left() > ink.left() + tolerance || shown.right() < ink.right() - tolerance ||
           shown.top() > ink.top() + tolerance || shown.bottom() < ink.bottom() - tolerance;
}

bool Overlap(const WholeText& one, const WholeText& other, double tolerance)
{
    const QRectF both = one.first->ink & other.first->ink;
    return both.width() > tolerance && both.height() > tolerance && one.shown.intersects(other.shown);
}

std::string Name(const DrawnText& text)
{
    return Describe(text.widget) + " " + Quoted(text.text);
}

bool CountsForContrast(const DrawnText& text)
{
    if (text.shown.isEmpty() || (text.widget != nullptr && !text.widget->isEnabled())) {
        return false;
    }
    const auto* menu = qobject_cast<const QMenu*>(text.widget);
    return menu == nullptr || std::ranges::none_of(menu->actions(), [&](const QAction* action) {
               return !action->isEnabled() && action->text().remove(u'&').contains(text.text);
           });
}

/// The least contrast of a text's colour with what is behind it, but for what is negligible.
double LeastContrast(const DrawnText& text)
{
    QHash<QRgb, int> behind;
    int pixels = 0;
    const QPoint corner = text.shown.boundingRect().topLeft();
    for (const QRect& part : text.shown) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                ++behind[text.behind.pixel(QPoint(x, y) - corner)];
                ++pixels;
            }
        }
    }
    double least = 21;
    for (auto color = behind.cbegin(); color != behind.cend(); ++color) {
        if (color.value() > kNegligible * pixels) {
            least = std::min(least, Contrast(Over(text.color, color.key()), color.key()));
        }
    }
    return least;
}

/// A power over 1500 W is pure red, which has 4.0 to 1 on white and less on every other light ground; a triangle beside
/// it and words tell the same.
constexpr double kRedPowerContrast = 3.99;

double WantedContrast(const DrawnText& text)
{
    const bool isRedPower = text.color == QColor(Qt::red) && qobject_cast<const QLineEdit*>(text.widget) != nullptr;
    return isRedPower ? kRedPowerContrast : kTextContrast;
}

/// What a control shows as its text; empty where it has none.
QString ShownText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
        return box->displayText();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        return list->isEditable() ? QString() : list->currentText();
    }
    const QByteArray property = widget.inherits("QGroupBox") ? "title" : "text";
    return widget.inherits("QGroupBox") || widget.inherits("QAbstractButton") ? widget.property(property).toString()
                                                                              : QString();
}

} // namespace

Findings CheckPlaces(const Recording& recording)
{
    Findings findings;
    const double tolerance = kTolerance * recording.scale;
    const std::vector<WholeText> texts = Gathered(recording);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (Scrolls(*text->first)) {
            continue;
        }
        if (IsCut(*text, tolerance)) {
            findings.push_back(Name(*text->first) + " is cut: " + Describe(text->first->ink) + ", shown " +
                               Describe(text->shown.boundingRect()));
        }
        if (text->first->text.contains(QChar(0x2026)) && !MayElide(text->first->widget)) {
            findings.push_back(Name(*text->first) + " is elided");
        }
        if (text->first->covered) {
            findings.push_back(Name(*text->first) + " is drawn over");
        }
        for (auto other = std::next(text); other != texts.end(); ++other) {
            if (!Scrolls(*other->first) && Overlap(*text, *other, tolerance)) {
                findings.push_back(Name(*text->first) + " and " + Name(*other->first) + " overlap");
            }
        }
    }
    return findings;
}

Findings CheckContrast(const Recording& recording)
{
    Findings findings;
    for (const DrawnText& text : recording.texts) {
        if (!CountsForContrast(text)) {
            continue;
        }
        if (const double least = LeastContrast(text); least < WantedContrast(text)) {
            findings.push_back(Name(text) + " is hard to read: " + text.color.name().toStdString() + ", " +
                               QString::number(least, 'f', 2).toStdString() + " to 1");
        }
    }
    return findings;
}

Findings CheckNoneMissing(const QWidget& root, const Recording& recording)
{
    QSet<const QWidget*> drawn;
    for (const DrawnText& text : recording.texts) {
        if (!text.shown.isEmpty()) {
            drawn.insert(text.widget);
        }
    }
    Findings findings;
    for (const QWidget* widget : ShownControls(root)) {
        if (!ShownText(*widget).trimmed().isEmpty() && !drawn.contains(widget)) {
            findings.push_back(Describe(widget) + " " + Quoted(ShownText(*widget)) + " is not shown");
        }
    }
    return findings;
}

} // namespace quillon::test
