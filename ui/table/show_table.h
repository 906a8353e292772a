#pragma once

#include <QDialog>

#include <cstdint>

class QPushButton;

namespace quillon::ui {

class CoefficientGrid;

/// The decibel table for reading: for every tenth of a dB from 0 to 19.9 the power ratio and its reciprocal. Each
/// opening takes an object of its own. Closed by its button alone.
class ShowTable : public QDialog
{
    Q_OBJECT

public:
    explicit ShowTable(QWidget* parent = nullptr);

    /// Shows the window until it is closed.
    void Open();

    /// Row that the window takes for the one at the top: 0 at first, and beyond the last page 200 or 201, although the
    /// grid does not scroll so far.
    [[nodiscard]] std::int32_t TopRow() const noexcept { return m_topRow; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cmdPageUp_Click();
    void cmdPageDn_Click();
    void cmdClose_Click();
    void dBCalcTable_Scroll(int topRow);

    void FillTable(int rows);
    void LayOut();

    CoefficientGrid* m_grid;
    QPushButton* m_pageUp;
    QPushButton* m_pageDown;
    QPushButton* m_close;
    std::int32_t m_topRow = 0;
};

} // namespace quillon::ui
