#include "tests/looks/shown_controls.h"

#include "ui/widgets/quiet_label.h"
#include "ui/widgets/result_marker.h"
#include "ui/widgets/spin_control.h"
#include "ui/widgets/titled_frame.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTextEdit>

#include <algorithm>

namespace quillon::test {

namespace {

template <class... Kinds>
bool IsOneOf(const QWidget* widget)
{
    return ((qobject_cast<const Kinds*>(widget) != nullptr) || ...);
}

bool IsControl(const QWidget* widget)
{
    return IsOneOf<QLabel, QAbstractButton, QLineEdit, QComboBox, QGroupBox, QAbstractItemView, QPlainTextEdit,
                   QTextEdit, ui::SpinControl, ui::ResultMarker>(widget);
}

bool IsPartOfControl(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return parent != nullptr && IsOneOf<QComboBox, QAbstractScrollArea, QLineEdit>(parent);
}

QRect PlaceIn(const QWidget& root, const QWidget* widget)
{
    return {widget->mapTo(&root, QPoint()), widget->size()};
}

/// The size that a control must not fall below: what it was given as such, what it asks for, and a line of its text.
QSize LeastSize(const QWidget& control)
{
    const QSize asked = control.minimumSizeHint();
    const QSize given = control.minimumSize();
    // A plain text box asks for more than a short text that stays takes; whether that is cut is seen when it is drawn.
    const bool isPlainBox = control.metaObject() == &QLineEdit::staticMetaObject;
    const int width = isPlainBox ? 0 : given.width() > 0 ? given.width() : asked.width();
    const int height = given.height() > 0 ? given.height() : asked.height();
    const bool hasText = IsOneOf<QLabel, QAbstractButton>(&control) && !control.property("text").toString().isEmpty();
    return {width, hasText ? std::max(height, control.fontMetrics().height()) : height};
}

Findings CheckOwnRoom(const QWidget& root, const QWidget* control)
{
    Findings findings;
    const QSize least = LeastSize(*control);
    if (control->width() < least.width() || control->height() < least.height()) {
        findings.push_back(Describe(control) + " has no room: " + Describe(QRectF(PlaceIn(root, control))) +
                           ", needs " + std::to_string(least.width()) + "x" + std::to_string(least.height()));
    }
    for (const QWidget* around = control->parentWidget(); around != nullptr; around = around->parentWidget()) {
        const QRect place = PlaceIn(*around, control);
        if (!around->rect().contains(place)) {
            findings.push_back(Describe(control) + " reaches out of " + Describe(around));
        }
        if (around == &root) {
            break;
        }
    }
    return findings;
}

} // namespace

bool IsScrolled(const QWidget& root, const QWidget* widget)
{
    for (const QWidget* around = widget; around != nullptr && around != &root; around = around->parentWidget()) {
        const auto* area = qobject_cast<const QScrollArea*>(
            around->parentWidget() != nullptr ? around->parentWidget()->parentWidget() : nullptr);
        if (area != nullptr && area->widget() == around) {
            return true;
        }
    }
    return false;
}

QList<QWidget*> ShownControls(const QWidget& root)
{
    QList<QWidget*> shown;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (IsControl(widget) && !IsPartOfControl(widget) && widget->isVisibleTo(&root) && !IsScrolled(root, widget) &&
            widget->window() == root.window()) {
            shown.append(widget);
        }
    }
    return shown;
}

QList<QWidget*> ScrolledContents(const QWidget& window)
{
    QList<QWidget*> contents;
    for (const auto* area : window.findChildren<QScrollArea*>()) {
        if (area->isVisible() && area->widget() != nullptr) {
            contents.append(area->widget());
        }
    }
    return contents;
}

bool MayElide(const QWidget* widget)
{
    const auto* label = qobject_cast<const ui::QuietLabel*>(widget);
    return (label != nullptr && label->Elides()) || IsOneOf<ui::TitledFrame>(widget);
}

Findings CheckRoom(const QWidget& root)
{
    Findings findings;
    const QList<QWidget*> controls = ShownControls(root);
    for (auto control = controls.begin(); control != controls.end(); ++control) {
        Append(findings, CheckOwnRoom(root, *control));
        for (auto other = std::next(control); other != controls.end(); ++other) {
            const bool contains = (*control)->isAncestorOf(*other) || (*other)->isAncestorOf(*control);
            if (!contains && PlaceIn(root, *control).intersects(PlaceIn(root, *other))) {
                findings.push_back(Describe(*control) + " stands on " + Describe(*other));
            }
        }
    }
    return findings;
}

} // namespace quillon::test
