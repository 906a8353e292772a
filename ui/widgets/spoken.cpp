#include "ui/widgets/spoken.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

namespace quillon::ui {

namespace {

constexpr const char* kRole = "spokenRole";

class SpokenWidget : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const bool isPart = !widget()->isWindow();
        return kind == QAccessible::Name && isPart ? widget()->accessibleName() : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* MakeSpoken(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = object->property(kRole);
    return widget != nullptr && role.isValid() ? new SpokenWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
                                               : nullptr;
}

} // namespace

void SetSpokenRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(MakeSpoken); // any further call is without effect
    widget.setProperty(kRole, static_cast<int>(role));
}

void SetSpokenName(QWidget& control, const QString& name)
{
    control.setAccessibleName(name);
    if (auto* list = qobject_cast<QComboBox*>(&control); list != nullptr) {
        list->view()->setAccessibleName(name);
        if (list->isEditable()) {
            list->lineEdit()->setAccessibleName(name);
        }
    }
}

void Say(QWidget& widget, const QString& name, const QString& description)
{
    if (widget.accessibleName() != name) {
        widget.setAccessibleName(name);
    }
    if (widget.accessibleDescription() != description) {
        widget.setAccessibleDescription(description);
    }
}

} // namespace quillon::ui
