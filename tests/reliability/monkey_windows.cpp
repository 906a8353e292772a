#include "tests/reliability/monkey_windows.h"

#include "ui/widgets/looks.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTextDocument>
#include <QWidget>

namespace quillon::test {

namespace {

std::string Describe(const QWidget& widget)
{
    return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
}

std::string Describe(const QRect& rect)
{
    return std::to_string(rect.width()) + "x" + std::to_string(rect.height()) + " at " + std::to_string(rect.x()) +
           "," + std::to_string(rect.y());
}

bool IsTakenForMarkup(const QLabel& label)
{
    return label.textFormat() == Qt::RichText || label.textFormat() == Qt::MarkdownText ||
           (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
}

/// A tool tip that looks like markup has to be an escaped text, which is one paragraph without any other tag.
bool IsTakenForMarkup(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip)) {
        return false;
    }
    QString inside = toolTip;
    for (const char* tag : {"<p>", "</p>", "<br>", "<br />"}) {
        inside.remove(QString::fromLatin1(tag));
    }
    return inside.contains(u'<');
}

} // namespace

std::optional<std::string> WindowOffScreen()
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->isMinimized()) {
            continue;
        }
        const QRect room = window->screen()->availableGeometry();
        if (!room.contains(window->geometry())) {
            return Describe(*window) + ", " + Describe(window->geometry()) + ", reaches off the screen, " +
                   Describe(room);
        }
    }
    return std::nullopt;
}

std::optional<std::string> TextAsMarkup()
{
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (!widget->isVisible()) {
            continue;
        }
        if (const auto* label = qobject_cast<const QLabel*>(widget);
            label != nullptr &&
            (label->inherits("QTipLabel") ? IsTakenForMarkup(label->text()) : IsTakenForMarkup(*label))) {
            return Describe(*label) + " takes its text for markup: " + label->text().toStdString();
        }
        if (IsTakenForMarkup(widget->toolTip())) {
            return Describe(*widget) + " has markup in its tool tip: " + widget->toolTip().toStdString();
        }
    }
    return std::nullopt;
}

} // namespace quillon::test
