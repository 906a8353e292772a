#include "ui/widgets/titled_frame.h"

#include "ui/widgets/looks.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QLayout>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon::ui {

namespace {

struct TitleStep
{
    double factor;
    QFont::Weight weight;
};

constexpr std::array<TitleStep, TitledFrame::kSteps> kTitleSteps{
    TitleStep{0.94, QFont::DemiBold},
    TitleStep{0.94, QFont::Normal},
    TitleStep{0.86, QFont::Normal},
};

constexpr double kShrinkStep = 0.02;
/// Titles of up to so many characters are never elided: the frame insists on their width.
constexpr int kShortTitle = 20;

QFont FontOf(int step)
{
    const TitleStep& title = kTitleSteps.at(static_cast<std::size_t>(step));
    return ScaledFont(title.factor, title.weight);
}

} // namespace

TitledFrame::TitledFrame(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
{
    setAlignment(Qt::AlignLeft);
    KeepRoomForTitle();
}

QString TitledFrame::PlainTitle() const
{
    return title().replace(QStringLiteral("&&"), QStringLiteral("&"));
}

int TitledFrame::TitleWidth(int step) const
{
    // Rounded up: a title that is a fraction of a pixel wider than its room is elided.
    return static_cast<int>(std::ceil(QFontMetricsF(FontOf(step)).horizontalAdvance(PlainTitle())));
}

void TitledFrame::SetStep(int step)
{
    m_step = std::clamp(step, 0, kSteps - 1);
    update();
}

void TitledFrame::SetSmallest(double factor)
{
    m_smallest = factor;
    update();
}

QFont TitledFrame::TitleFont() const
{
    QFont font = FontOf(m_step);
    if (m_smallest <= 0) {
        return font;
    }
    const TitleStep& title = kTitleSteps.at(static_cast<std::size_t>(m_step));
    double factor = title.factor;
    while (factor > m_smallest && QFontMetrics(font).horizontalAdvance(PlainTitle()) > width()) {
        factor = std::max(factor - kShrinkStep, m_smallest);
        font = ScaledFont(factor, title.weight);
    }
    return font;
}

QString TitledFrame::ShownTitle() const
{
    return QFontMetrics(TitleFont()).elidedText(PlainTitle(), Qt::ElideMiddle, width());
}

int TitledFrame::TitleHeight() const
{
    // The first step's height at every step: a title that steps down must not move what stands below it.
    return PlainTitle().isEmpty() ? 0 : QFontMetrics(FontOf(0)).height();
}

void TitledFrame::KeepRoomForTitle()
{
    const int height = TitleHeight();
    setContentsMargins(0, height > 0 ? height + BaseUnit() : 0, 0, 0);
}

QSize TitledFrame::sizeHint() const
{
    return QGroupBox::sizeHint().expandedTo({TitleWidth(0), TitleHeight()});
}

QSize TitledFrame::minimumSizeHint() const
{
    const QString insists = PlainTitle().left(kShortTitle);
    const int width = QFontMetrics(FontOf(kSteps - 1)).horizontalAdvance(insists);
    // Not the group box's own: it insists on the whole title and on room for the box that is not drawn.
    const QSize contents = layout() != nullptr ? layout()->totalMinimumSize() : QSize();
    return contents.expandedTo({width, TitleHeight()});
}

bool TitledFrame::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && ShownTitle() != PlainTitle()) {
        auto* help = static_cast<QHelpEvent*>(event);
        if (help->pos().y() < contentsMargins().top()) {
            QToolTip::showText(help->globalPos(), PlainToolTip(PlainTitle()), this);
            return true;
        }
    }
    return QGroupBox::event(event);
}

void TitledFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setFont(TitleFont());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(QRect(0, 0, width(), TitleHeight()), static_cast<int>(alignment() | Qt::AlignVCenter),
                     ShownTitle());
}

void TitledFrame::resizeEvent(QResizeEvent* /*event*/)
{
    // The group box's own would lay out the contents for the box that is not drawn.
}

void TitledFrame::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        KeepRoomForTitle();
        updateGeometry();
    }
}

void FitTitles(const QList<TitledFrame*>& frames)
{
    const auto allFit = [&frames](int step) {
        return std::ranges::all_of(
            frames, [step](const TitledFrame* frame) { return frame->TitleWidth(step) <= frame->width(); });
    };
    int step = 0;
    while (step < TitledFrame::kSteps - 1 && !allFit(step)) {
        ++step;
    }
    for (TitledFrame* frame : frames) {
        frame->SetStep(step);
    }
}

} // namespace quillon::ui
