#include "ui/startup/link_label.h"

#include "ui/widgets/list_keys.h"
#include "ui/widgets/looks.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace quillon::ui {

namespace {

/// The focus frame keeps off the text, which begins where its neighbours begin.
constexpr QMargins kMargins{0, 1, 2, 1};

class AccessibleLink : public QAccessibleWidget
{
public:
    explicit AccessibleLink(LinkLabel& label)
        : QAccessibleWidget(&label, QAccessible::Link)
        , m_label(label)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_label.text() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& action) override
    {
        if (action == pressAction()) {
            emit m_label.Clicked();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    LinkLabel& m_label;
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    auto* label = qobject_cast<LinkLabel*>(object);
    return label != nullptr ? new AccessibleLink(*label) : nullptr;
}

} // namespace

LinkLabel::LinkLabel(QWidget* parent)
    : QLabel(parent)
{
    QAccessible::installFactory(MakeAccessible); // any further call is without effect
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setContentsMargins(kMargins);
    QFont underlined;
    underlined.setUnderline(true);
    setFont(underlined);
}

void LinkLabel::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (!IsEnter(*event) && event->key() != Qt::Key_Space) {
        QLabel::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        emit Clicked();
    }
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(LinkColor(palette()));
    painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace quillon::ui
