#include "tests/looks/control_checks.h"

#include "tests/looks/contrast.h"
#include "tests/looks/shown_controls.h"
#include "ui/widgets/result_marker.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <utility>

namespace quillon::test {

namespace {

/// A marker is seen when its pixels would make a line across its height and width, so many times, and some of them have
/// all of its colour: its slanted lines are smoothed.
constexpr double kMarkerLines = 0.5;
constexpr double kSmoothedContrast = 1.5;
/// An outline goes once around its control, and may be interrupted; that of a circle is smoothed, so that only where it
/// meets whole pixels it has its colour.
constexpr double kOutlineShare = 0.75;
constexpr double kCircleShare = 0.5;
constexpr int kEdge = 2; ///< an outline is looked for so deep in its control, in pixels

/// A picture of a part of a window, with the scale of its screen.
struct Part
{
    QImage picture;
    double scale;

    [[nodiscard]] bool StandsOut(QPoint point, QRgb ground, double contrast = kShapeContrast) const
    {
        return Contrast(picture.pixel(point), ground) >= contrast;
    }
};

/// A part of a window as it is on the screen.
Part PartOf(QWidget& root, const QRect& place)
{
    QImage picture = root.grab(place).toImage().convertToFormat(QImage::Format_RGB32);
    picture.setDevicePixelRatio(1);
    return {picture, root.devicePixelRatioF()};
}

QRect PlaceIn(const QWidget& root, const QWidget& control)
{
    return {control.mapTo(&root, QPoint()), control.size()};
}

/// Colour beside a control, left of its middle.
QRgb Around(const QImage& picture)
{
    return picture.pixel(0, 0);
}

/// Share of the lines across a rectangle's edges that meet a pixel that stands out.
double OutlineShare(const Part& part, const QRect& shape, int depth)
{
    const QRgb around = Around(part.picture);
    int seen = 0;
    int lines = 0;
    const auto look = [&](QPoint from, QPoint step) {
        bool found = false;
        for (int i = 0; i < depth; ++i, from += step) {
            found = found || (part.picture.valid(from) && part.StandsOut(from, around));
        }
        seen += found ? 1 : 0;
        ++lines;
    };
    for (int x = shape.left(); x <= shape.right(); ++x) {
        look({x, shape.top()}, {0, 1});
        look({x, shape.bottom()}, {0, -1});
    }
    for (int y = shape.top(); y <= shape.bottom(); ++y) {
        look({shape.left(), y}, {1, 0});
        look({shape.right(), y}, {-1, 0});
    }
    return 1.0 * seen / lines;
}

bool IsMarkerSeen(const Part& part)
{
    const QRgb around = Around(part.picture);
    int drawn = 0;
    int seen = 0;
    for (int y = 0; y < part.picture.height(); ++y) {
        for (int x = 0; x < part.picture.width(); ++x) {
            drawn += part.StandsOut({x, y}, around, kSmoothedContrast) ? 1 : 0;
            seen += part.StandsOut({x, y}, around) ? 1 : 0;
        }
    }
    return seen > 0 && drawn >= kMarkerLines * (part.picture.width() + part.picture.height());
}

/// The box or circle of a check box or option, in its coordinates.
QRect Indicator(const QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const bool isOption = qobject_cast<const QRadioButton*>(&button) != nullptr;
    return button.style()->subElementRect(isOption ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator,
                                          &option, &button);
}

/// What of a control has to stand out from what is around it, in its coordinates; nothing where its text says it all.
QRect OutlinedPart(const QWidget& control)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control); button != nullptr) {
        const bool hasIndicator =
            qobject_cast<const QCheckBox*>(button) != nullptr || qobject_cast<const QRadioButton*>(button) != nullptr;
        return hasIndicator ? Indicator(*button) : QRect();
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(&control); box != nullptr) {
        return box->hasFrame() && !box->isReadOnly() ? box->rect() : QRect();
    }
    return qobject_cast<const QComboBox*>(&control) != nullptr ? control.rect() : QRect();
}

bool IsOutlineSeen(QWidget& root, const QWidget& control, const QRect& outlined)
{
    constexpr int kMargin = 2;
    const QRect place =
        outlined.translated(control.mapTo(&root, QPoint())).adjusted(-kMargin, -kMargin, kMargin, kMargin);
    const Part part = PartOf(root, place);
    const int margin = qRound(kMargin * part.scale);
    const QRect shape = part.picture.rect().adjusted(margin, margin, -margin, -margin);
    // The edge of a circle is far inside at the corners of its square.
    const bool isRound = qobject_cast<const QRadioButton*>(&control) != nullptr;
    const int depth = isRound ? shape.height() / 2 : qRound(kEdge * part.scale) + 1;
    return OutlineShare(part, shape, depth) >= (isRound ? kCircleShare : kOutlineShare);
}

constexpr int kFocusMargin = 3; ///< a mark may lie so far around its control
/// A mark of the focus is as long as the control is wide and high together, times this.
constexpr double kMarkLength = 0.5;

bool IsFocusSeen(const Part& without, const Part& with)
{
    const QSize size = with.picture.size();
    const QRgb around = Around(without.picture);
    const QRgb inside = without.picture.pixel(size.width() / 2, size.height() / 2);
    int seen = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool isNew = with.picture.pixel(x, y) != without.picture.pixel(x, y);
            seen += isNew && (with.StandsOut({x, y}, around) || with.StandsOut({x, y}, inside)) ? 1 : 0;
        }
    }
    return seen >= kMarkLength * (size.width() + size.height());
}

/// Controls that the Tab key goes to.
QList<QWidget*> OnTheWayOfTab(const QWidget& root)
{
    QList<QWidget*> controls = ShownControls(root);
    erase_if(controls, [](const QWidget* control) {
        return !control->isEnabled() || (control->focusPolicy() & Qt::TabFocus) == 0;
    });
    return controls;
}

} // namespace

Findings CheckFocusMarks(QWidget& root)
{
    Findings findings;
    QWidget* before = QApplication::focusWidget();
    root.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    const QList<QWidget*> controls = OnTheWayOfTab(root);
    // The one that has it before must be another one, by which a button is the default no longer.
    QWidget* other = controls.isEmpty() ? nullptr : controls.last();
    for (QWidget* control : controls) {
        if (control == other) {
            break; // alone in its window
        }
        other->setFocus(Qt::TabFocusReason);
        other = control;
        const QRect place = PlaceIn(root, *control).adjusted(-kFocusMargin, -kFocusMargin, kFocusMargin, kFocusMargin);
        const Part without = PartOf(root, place);
        control->setFocus(Qt::TabFocusReason);
        if (control->hasFocus() && !IsFocusSeen(without, PartOf(root, place))) {
            findings.push_back(Describe(control) + " hardly shows that it has the keyboard");
        }
    }
    if (before != nullptr) {
        before->setFocus();
    }
    return findings;
}

Findings CheckShapes(QWidget& root)
{
    Findings findings;
    for (QWidget* control : ShownControls(root)) {
        if (!control->isEnabled()) {
            continue;
        }
        if (qobject_cast<ui::ResultMarker*>(control) != nullptr) {
            if (!IsMarkerSeen(PartOf(root, PlaceIn(root, *control)))) {
                findings.push_back(Describe(control) + " is hard to see");
            }
            continue;
        }
        const QRect part = OutlinedPart(*control);
        if (!part.isEmpty() && !IsOutlineSeen(root, *control, part)) {
            findings.push_back(Describe(control) + " has an outline that is hard to see");
        }
    }
    return findings;
}

} // namespace quillon::test
