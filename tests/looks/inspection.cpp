#include "tests/looks/inspection.h"

#include "tests/looks/control_checks.h"
#include "tests/looks/program_on_show.h"
#include "tests/looks/shown_controls.h"
#include "tests/looks/text_checks.h"
#include "tests/looks/text_recorder.h"

#include <QDialog>
#include <QScreen>

#include <cmath>
#include <string>

namespace quillon::test {

namespace {

/// What a desktop puts above a window, in pixels of a screen at scale 1.
constexpr int kTitleBar = 30;

/// Only what is within a scrolled part counts there, and nothing of it in the window around it.
Recording OwnTexts(QWidget& root)
{
    Recording recording = Record(root);
    std::erase_if(recording.texts, [&root](const DrawnText& text) { return IsScrolled(root, text.widget); });
    return recording;
}

Findings CheckLayout(QWidget& root, const Recording& recording)
{
    Findings findings = CheckPlaces(recording);
    Append(findings, CheckNoneMissing(root, recording));
    Append(findings, CheckRoom(root));
    return findings;
}

Findings CheckFits(const QWidget& window)
{
    const bool hasTitle = window.windowType() == Qt::Window || window.windowType() == Qt::Dialog;
    const QSize room = window.screen()->availableSize() - QSize(0, hasTitle ? kTitleBar : 0);
    if (window.width() <= room.width() && window.height() <= room.height()) {
        return {};
    }
    return {Describe(&window) + " is too large for the screen: " + std::to_string(window.width()) + "x" +
            std::to_string(window.height()) + ", room for " + std::to_string(room.width()) + "x" +
            std::to_string(room.height())};
}

/// Everything in the window, and in what it scrolls as if there were no end of room.
template <class Check>
Findings OfAllParts(QWidget& window, const Check& check)
{
    Findings findings = check(window);
    for (QWidget* contents : ScrolledContents(window)) {
        Append(findings, check(*contents));
    }
    return findings;
}

Findings AtItsSmallest(QWidget& window)
{
    const QSize before = window.size();
    window.resize(1, 1);
    Settle();
    Findings findings = OfAllParts(window, [](QWidget& root) { return CheckLayout(root, OwnTexts(root)); });
    window.resize(before);
    Settle();
    for (std::string& finding : findings) {
        finding += ", at its smallest";
    }
    return findings;
}

/// Between whole scales a line falls between pixels and is spread over them: its colour, which is the same at every
/// scale, is nowhere to be seen.
bool HasWholePixels(const QWidget& window)
{
    const double scale = window.devicePixelRatioF();
    return scale == std::round(scale);
}

} // namespace

Findings Inspect(QWidget& window)
{
    Findings findings = CheckFits(window);
    Append(findings, OfAllParts(window, [](QWidget& root) {
               const Recording recording = OwnTexts(root);
               Findings found = CheckLayout(root, recording);
               Append(found, CheckContrast(recording));
               return found;
           }));
    if (HasWholePixels(window)) {
        Append(findings, OfAllParts(window, CheckShapes));
    }
    if (window.windowType() != Qt::Window && window.windowType() != Qt::Dialog) {
        return findings;
    }
    if (HasWholePixels(window)) {
        Append(findings, OfAllParts(window, CheckFocusMarks));
    }
    Append(findings, AtItsSmallest(window));
    return findings;
}

} // namespace quillon::test
