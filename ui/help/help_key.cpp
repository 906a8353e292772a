#include "ui/help/help_key.h"

#include "ui/help/help_topics.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quillon::ui {

namespace {

bool IsHelpKey(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

/// The topic of the nearest window that has one: a message box belongs to the window that it stands above.
std::optional<HelpTopic> TopicAt(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto topic = FindHelpTopic(widget->objectName().toStdString())) {
            return topic;
        }
    }
    return std::nullopt;
}

} // namespace

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || !IsHelpKey(*event) || QApplication::activePopupWidget() != nullptr) {
        return QObject::eventFilter(watched, event);
    }
    const std::optional<HelpTopic> topic = TopicAt(widget);
    const bool isItsOwn = FindHelpTopic(widget->window()->objectName().toStdString()).has_value();
    if (!topic || (isItsOwn && topic->byKey == HelpByKey::Window)) {
        return QObject::eventFilter(watched, event);
    }
    if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
        emit Asked(topic->context);
    }
    return true;
}

} // namespace quillon::ui
