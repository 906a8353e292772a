#include "ui/main/window_layout.h"

#include "ui/main/antenna_gain_frame.h"
#include "ui/main/coax_loss_frame.h"
#include "ui/main/command_frame.h"
#include "ui/main/system_column.h"
#include "ui/widgets/card.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/scrolled_window.h"

#include <QEvent>
#include <QGridLayout>
#include <QMainWindow>
#include <QScrollArea>

#include <algorithm>

namespace quillon::ui {

namespace {

/// Rows of the window's grid; the rows between frames hold hairlines.
enum Row {
    TopPadding,
    PowerRow,
    FrequencyRow = 3,
    CoaxRow = 5,
    CoaxDataRow = 7,
    AntennaRow = 9,
    BottomPadding,
    CardRowCount,
    CommandGap = CardRowCount,
    CommandRow,
};

constexpr int kResultsColumn = 1;
constexpr int kColumnCount = 3;
constexpr int kSystemStretch = 20;
constexpr int kResultsStretch = 29;

// Content grows with the window so far; beyond that a maximised window would tear it apart.
constexpr double kStartHeight = 1.12;
constexpr double kLargestWidth = 1.25;
constexpr double kLargestHeight = 1.35;

int GridColumn(engine::SystemId system)
{
    return system == engine::SystemId::One ? 0 : 2;
}

void AddCard(QGridLayout& grid, int column, QWidget& content)
{
    auto* card = new Card(Card::Kind::Card, &content);
    card->lower();
    grid.addWidget(card, TopPadding, column, CardRowCount, 1);
}

/// Widgets one above the other, as high as they want to be: what is left belongs to the rows between the frames.
QVBoxLayout* Inset(const QList<QWidget*>& widgets, int margin)
{
    auto* column = new QVBoxLayout;
    column->setContentsMargins(margin, 0, margin, 0);
    column->setSpacing(2 * BaseUnit());
    for (QWidget* widget : widgets) {
        column->addWidget(widget, 0, Qt::AlignTop);
    }
    return column;
}

QLayout* PowerAndVSWR(const SystemColumn& system, int margin)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(margin, 0, margin, 0);
    row->setSpacing(3 * BaseUnit());
    row->addWidget(system.Power(), 1, Qt::AlignTop);
    row->addWidget(system.VSWR(), 1, Qt::AlignTop);
    return row;
}

void AddHairlines(QGridLayout& grid, int column, QWidget& content)
{
    for (const int row : {PowerRow + 1, FrequencyRow + 1, CoaxRow + 1, CoaxDataRow + 1}) {
        auto* line = new QHBoxLayout;
        line->setContentsMargins(2 * BaseUnit(), 0, 2 * BaseUnit(), 0);
        line->addWidget(new Hairline(&content), 0, Qt::AlignVCenter);
        grid.addLayout(line, row, column);
    }
}

void AddSystem(QGridLayout& grid, const WindowParts& parts, engine::SystemId system, QWidget& content)
{
    const int column = GridColumn(system);
    const int margin = 5 * BaseUnit() / 2;
    const SystemColumn& frames = *parts.columns[system];
    QList<QWidget*> coaxData{frames.CoaxData()};
    QList<QWidget*> antenna{frames.Antenna()};
    if (system == engine::SystemId::One) {
        coaxData.append(parts.coaxLoss);
        antenna.append(parts.antennaGain);
    }
    AddCard(grid, column, content);
    AddHairlines(grid, column, content);
    grid.addLayout(PowerAndVSWR(frames, margin), PowerRow, column);
    grid.addLayout(Inset({frames.Frequency()}, margin), FrequencyRow, column);
    grid.addLayout(Inset({frames.Coax()}, margin), CoaxRow, column);
    grid.addLayout(Inset(coaxData, margin), CoaxDataRow, column);
    grid.addLayout(Inset(antenna, margin), AntennaRow, column);
    grid.setColumnStretch(column, kSystemStretch);
}

void AddResults(QGridLayout& grid, ResultsFrame& results, QWidget& content)
{
    AddCard(grid, kResultsColumn, content);
    auto* inset = new QVBoxLayout;
    inset->addWidget(&results);
    inset->setContentsMargins(2 * BaseUnit(), 2 * BaseUnit(), 2 * BaseUnit(), BaseUnit());
    grid.addLayout(inset, TopPadding, kResultsColumn, CardRowCount, 1);
    grid.setColumnStretch(kResultsColumn, kResultsStretch);
}

void SpaceRows(QGridLayout& grid)
{
    for (const int row : {TopPadding, BottomPadding, CommandGap}) {
        grid.setRowMinimumHeight(row, 2 * BaseUnit());
    }
    for (const int row : {PowerRow + 1, FrequencyRow + 1, CoaxRow + 1, CoaxDataRow + 1}) {
        grid.setRowMinimumHeight(row, 2 * BaseUnit());
        grid.setRowStretch(row, 1);
    }
}

/// The width at which no frame's title is shortened: each column gets its share of the whole, not what it asks for.
int StartWidth(const WindowParts& parts)
{
    int system = 0;
    for (const TitledFrame* frame : parts.columns[engine::SystemId::One]->Frames()) {
        system = std::max(system, frame->sizeHint().width());
    }
    const int unit = BaseUnit();
    const int shares = 2 * kSystemStretch + kResultsStretch;
    const int forSystem = (system + 5 * unit) * shares / kSystemStretch;
    const int forResults = (parts.results->sizeHint().width() + 4 * unit) * shares / kResultsStretch;
    return std::max(forSystem, forResults) + 9 * unit;
}

QSize WantedSize(const QWidget& content, const WindowParts& parts)
{
    return content.sizeHint().expandedTo({StartWidth(parts), 0});
}

/// Keeps the content's largest size in step with what it asks for: another font or a frame that comes to show must not
/// be squeezed into the old one.
class GrowthLimit : public QObject
{
public:
    GrowthLimit(QWidget& content, const WindowParts& parts)
        : QObject(&content)
        , m_content(content)
        , m_parts(parts)
    {
        content.installEventFilter(this);
        Apply();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            Apply();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Apply()
    {
        const QSize wanted = WantedSize(m_content, m_parts);
        m_content.setMaximumSize(qRound(kLargestWidth * wanted.width()), qRound(kLargestHeight * wanted.height()));
    }

    QWidget& m_content;
    WindowParts m_parts;
};

void ScrollContent(QMainWindow& window, QWidget& content, const WindowParts& parts)
{
    auto* area = new QScrollArea(&window);
    area->setWidgetResizable(true);
    area->setAlignment(Qt::AlignCenter);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(&content);
    window.setCentralWidget(area);

    // After the scroll area's own filter, hence before it in the order of events.
    new GrowthLimit(content, parts);
    const QSize wanted = WantedSize(content, parts);
    const QSize start(wanted.width(), qRound(kStartHeight * wanted.height()));
    window.resize(start.boundedTo(RoomFor(window)));
}

} // namespace

void LayOutWindow(QMainWindow& window, QWidget& content, const WindowParts& parts)
{
    auto* grid = new QGridLayout(&content);
    grid->setContentsMargins(2 * BaseUnit(), 2 * BaseUnit(), 2 * BaseUnit(), 2 * BaseUnit());
    grid->setHorizontalSpacing(2 * BaseUnit());
    grid->setVerticalSpacing(0);
    for (const engine::SystemId system : engine::kBothSystems) {
        AddSystem(*grid, parts, system, content);
    }
    AddResults(*grid, *parts.results, content);
    grid->addWidget(parts.commands, CommandRow, 0, 1, kColumnCount);
    SpaceRows(*grid);
    parts.coaxLoss->hide();
    parts.antennaGain->hide();
    ScrollContent(window, content, parts);
}

void SetWindowTabOrder(const WindowParts& parts)
{
    QList<QWidget*> order;
    for (const engine::SystemId system : engine::kBothSystems) {
        const SystemColumn& column = *parts.columns[system];
        const bool typed = system == engine::SystemId::One;
        order << column.Power()->TabOrder() << column.VSWR()->TabOrder() << column.Frequency()->TabOrder()
              << column.Coax()->TabOrder() << column.CoaxData()->TabOrder();
        if (typed) {
            order << parts.coaxLoss->TabOrder();
        }
        order << column.Antenna()->TabOrder();
        if (typed) {
            order << parts.antennaGain->TabOrder();
        }
    }
    order << parts.commands->TabOrder();
    for (qsizetype next = 1; next < order.size(); ++next) {
        QWidget::setTabOrder(order[next - 1], order[next]);
    }
}

} // namespace quillon::ui
