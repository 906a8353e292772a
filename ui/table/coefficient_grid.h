#pragma once

#include <QTableWidget>

namespace quillon::ui {

/// Read-only grid with a heading row and a fixed left column. Rows of values count from 1: row 0 is the heading.
class CoefficientGrid : public QTableWidget
{
    Q_OBJECT

public:
    explicit CoefficientGrid(QWidget* parent = nullptr);

    /// Sets the columns up and the numbers 1 to rows into the fixed column. Cells start empty.
    void SetUp(int rows, const QStringList& headings);
    void SetText(int row, int column, const QString& text);

    /// Row of values at the top of the view.
    [[nodiscard]] int TopRow() const;
    /// Brings a row to the top, as far as the view scrolls: a row of the last page or beyond it shows the last page.
    void SetTopRow(int row);

    /// As many rows as a page has, and all columns.
    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// A person has scrolled, by wheel, scroll bar or keys. Neither SetTopRow nor a change of the window's size or
    /// font gives this signal.
    void Scrolled(int topRow);

protected:
    void updateGeometries() override;
    void changeEvent(QEvent* event) override;

private:
    void TellScrolled();
    [[nodiscard]] int OwnWidth(int column) const;
    void FitColumns();
    void FitToFont();

    bool m_movesItself = false;
};

} // namespace quillon::ui
