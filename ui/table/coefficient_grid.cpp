#include "ui/table/coefficient_grid.h"

#include "ui/widgets/looks.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace quillon::ui {

namespace {

constexpr int kShownRows = 20;

/// Width of a column, in twentieths of a point.
constexpr int kColumnTwips = 2650;
constexpr int kTwipsPerInch = 1440;

} // namespace

CoefficientGrid::CoefficientGrid(QWidget* parent)
    : QTableWidget(parent)
{
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);

    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setSectionsClickable(false);
        header->setHighlightSections(false);
    }
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);

    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &CoefficientGrid::TellScrolled);
}

void CoefficientGrid::SetUp(int rows, const QStringList& headings)
{
    setRowCount(rows);
    setColumnCount(static_cast<int>(headings.size()));
    setHorizontalHeaderLabels(headings);
    QStringList numbers;
    for (int row = 1; row <= rows; ++row) {
        numbers.append(QString::number(row));
    }
    setVerticalHeaderLabels(numbers);
    FitToFont();
}

void CoefficientGrid::SetText(int row, int column, const QString& text)
{
    setItem(row - 1, column - 1, new QTableWidgetItem(text));
}

int CoefficientGrid::TopRow() const
{
    return verticalScrollBar()->value() + 1;
}

void CoefficientGrid::SetTopRow(int row)
{
    const QScopedValueRollback<bool> moving(m_movesItself, true);
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(row - 1);
    // The arrow keys go on from the page on show.
    selectionModel()->setCurrentIndex(model()->index(TopRow() - 1, 0), QItemSelectionModel::NoUpdate);
}

QSize CoefficientGrid::sizeHint() const
{
    const int frame = 2 * frameWidth();
    int width = verticalHeader()->sizeHint().width() + verticalScrollBar()->sizeHint().width() + frame;
    for (int column = 0; column < columnCount(); ++column) {
        width += OwnWidth(column);
    }
    const int height =
        horizontalHeader()->sizeHint().height() + kShownRows * verticalHeader()->defaultSectionSize() + frame;
    return {width, height};
}

void CoefficientGrid::updateGeometries()
{
    const QScopedValueRollback<bool> moving(m_movesItself, true);
    FitColumns();
    QTableWidget::updateGeometries();
}

void CoefficientGrid::changeEvent(QEvent* event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange) {
        FitToFont();
    }
}

void CoefficientGrid::TellScrolled()
{
    if (!m_movesItself) {
        emit Scrolled(TopRow());
    }
}

// In a large font a heading needs more than the width that all columns have.
int CoefficientGrid::OwnWidth(int column) const
{
    return std::max(kColumnTwips * logicalDpiX() / kTwipsPerInch, horizontalHeader()->sectionSizeHint(column));
}

// In a window that is wider than the columns the last one takes what is left.
void CoefficientGrid::FitColumns()
{
    int left = viewport()->width();
    for (int column = 0; column < columnCount(); ++column) {
        const bool isLast = column == columnCount() - 1;
        const int width = isLast ? std::max(OwnWidth(column), left) : OwnWidth(column);
        horizontalHeader()->resizeSection(column, width);
        left -= width;
    }
}

void CoefficientGrid::FitToFont()
{
    const int rowHeight = fontMetrics().height() + BaseUnit();
    verticalHeader()->setMinimumSectionSize(rowHeight);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    updateGeometry();
}

} // namespace quillon::ui
