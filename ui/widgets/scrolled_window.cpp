#include "ui/widgets/scrolled_window.h"

#include "ui/widgets/looks.h"

#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace quillon::ui {

namespace {

/// Height of a window's title, in base units.
constexpr int kTitle = 8;

/// Asks for as much room as its content does, as far as the screen has it.
class DialogArea : public QScrollArea
{
public:
    DialogArea(QWidget* content, QWidget* parent)
        : QScrollArea(parent)
    {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidget(content);
    }

    [[nodiscard]] QSize sizeHint() const override { return OnScreen(widget()->sizeHint()); }

    [[nodiscard]] QSize minimumSizeHint() const override { return OnScreen(widget()->minimumSizeHint()); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }

private:
    /// What scrolls one way needs room for the bar the other way.
    [[nodiscard]] QSize OnScreen(QSize size) const
    {
        const QSize room = RoomFor(*window());
        const bool isTooWide = size.width() > room.width();
        if (size.height() > room.height()) {
            size.rwidth() += verticalScrollBar()->sizeHint().width();
        }
        if (isTooWide) {
            size.rheight() += horizontalScrollBar()->sizeHint().height();
        }
        return size.boundedTo(room);
    }
};

} // namespace

QSize RoomFor(const QWidget& window)
{
    return window.screen()->availableSize() - QSize(0, kTitle * BaseUnit());
}

void ScrollWhatHasNoRoom(QWidget& window)
{
    QLayout* layout = window.layout();
    const QLayout::SizeConstraint constraint = layout->sizeConstraint();
    layout->setSizeConstraint(QLayout::SetDefaultConstraint);
    // Within the same window, so that the order of the Tab key stays.
    auto* content = new QWidget(&window);
    content->setLayout(layout);

    auto* whole = new QVBoxLayout(&window);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSizeConstraint(constraint);
    whole->addWidget(new DialogArea(content, &window));
}

} // namespace quillon::ui
