#include "ui/table/show_table.h"

#include "engine/db_table.h"
#include "engine/number_text.h"
#include "ui/platform/close_guard.h"
#include "ui/table/coefficient_grid.h"
#include "ui/widgets/button_keys.h"
#include "ui/widgets/layout_parts.h"
#include "ui/widgets/looks.h"
#include "ui/widgets/scrolled_window.h"

#include <QBoxLayout>
#include <QPushButton>

namespace quillon::ui {

namespace {

constexpr int kGridRows = engine::kDBRowCount + 1; ///< with the heading
constexpr std::int32_t kPage = 20;
constexpr std::int32_t kPagesDownBelow = 181; ///< from here on a page down goes to the end
constexpr std::int32_t kPagesUpFrom = 22;     ///< below, a page up goes to row 1

/// As given, with a blank behind the first.
const QStringList kHeadings{QStringLiteral("dB Value "), QStringLiteral("Gain Coefficient"),
                            QStringLiteral("Loss Coefficient")};

/// As given: the scroll buttons carry the close button's tool tip.
const QString kToolTip = QStringLiteral("Close this window.");

void Name(QPushButton& button, const QString& name)
{
    button.setObjectName(name);
    button.setToolTip(kToolTip);
}

} // namespace

ShowTable::ShowTable(QWidget* parent)
    : QDialog(parent)
    , m_grid(new CoefficientGrid(this))
    , m_pageUp(new QPushButton(QStringLiteral("Scroll &Up"), this))
    , m_pageDown(new QPushButton(QStringLiteral("Scroll &Down"), this))
    , m_close(new QPushButton(QStringLiteral("&Close"), this))
{
    setObjectName(QStringLiteral("ShowTable"));
    setWindowTitle(QStringLiteral("dB Calculation Table"));
    m_grid->setObjectName(QStringLiteral("dBCalcTable"));
    m_grid->setAccessibleName(tr("dB values with their gain and loss coefficients"));
    Name(*m_pageUp, QStringLiteral("cmdPageUp"));
    Name(*m_pageDown, QStringLiteral("cmdPageDn"));
    Name(*m_close, QStringLiteral("cmdClose"));

    new CloseGuard(*this);
    FillTable(kGridRows);
    LayOut();

    connect(m_pageUp, &QPushButton::clicked, this, &ShowTable::cmdPageUp_Click);
    connect(m_pageDown, &QPushButton::clicked, this, &ShowTable::cmdPageDn_Click);
    connect(m_close, &QPushButton::clicked, this, &ShowTable::cmdClose_Click);
    connect(m_grid, &CoefficientGrid::Scrolled, this, &ShowTable::dBCalcTable_Scroll);
}

void ShowTable::Open()
{
    exec();
}

void ShowTable::FillTable(int rows)
{
    m_grid->SetUp(rows - 1, kHeadings);
    const std::string separator = locale().decimalPoint().toStdString();
    int row = 1;
    // The rounded figures that computations use, without the zeros that rounding leaves behind.
    for (const engine::DBRow& values : engine::BuildDBTable()) {
        int column = 1;
        for (const float value : {values.dB, values.gainCoefficient, values.lossCoefficient}) {
            m_grid->SetText(row, column, QString::fromStdString(engine::ShortestText(value, separator)));
            ++column;
        }
        ++row;
    }
}

void ShowTable::LayOut()
{
    const int unit = BaseUnit();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3 * unit, 3 * unit, 3 * unit, 3 * unit);
    column->setSpacing(2 * unit);
    column->addWidget(m_grid);
    column->addLayout(ButtonRow({m_pageUp, m_pageDown}, {m_close}));
    resize(sizeHint().boundedTo(RoomFor(*this)));
}

// As given, the first page goes on to row 20 and not to row 21.
void ShowTable::cmdPageDn_Click()
{
    m_topRow = m_topRow < kPagesDownBelow ? m_topRow + kPage : kGridRows;
    m_grid->SetTopRow(m_topRow);
}

void ShowTable::cmdPageUp_Click()
{
    m_topRow = m_topRow >= kPagesUpFrom ? m_topRow - kPage : 1;
    m_grid->SetTopRow(m_topRow);
}

void ShowTable::dBCalcTable_Scroll(int topRow)
{
    m_topRow = topRow;
}

void ShowTable::cmdClose_Click()
{
    accept();
}

void ShowTable::keyPressEvent(QKeyEvent* event)
{
    if (!PressFocusedButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon::ui
