#include "bench/ui/bare/bare_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace quillon::bench {

namespace {

// Six groups of seven controls, and a panel of eighteen.
constexpr int kGroups = 6;
constexpr int kGroupsInRow = 3;
constexpr int kResults = 9;
constexpr QSize kSize(1280, 720);

} // namespace

BareWindow::BareWindow()
{
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    for (int place = 0; place < kGroups; ++place) {
        grid->addWidget(NewGroup(place), place / kGroupsInRow, place % kGroupsInRow);
    }
    grid->addWidget(NewResults(), 2, 0, 1, kGroupsInRow);
    setCentralWidget(content);
    resize(kSize);
    auto* first = content->findChild<QLineEdit*>();
    connect(first, &QLineEdit::textChanged, this, &BareWindow::ShowResults);
    first->setText(QStringLiteral("100"));
    first->setFocus();
}

QWidget* BareWindow::NewGroup(int place)
{
    auto* group = new QGroupBox(QStringLiteral("Group %1").arg(place + 1));
    auto* grid = new QGridLayout(group);
    for (int row = 0; row < 2; ++row) {
        auto* list = new QComboBox;
        list->addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
        grid->addWidget(new QLineEdit, row, 0);
        grid->addWidget(new QScrollBar(Qt::Vertical), row, 1);
        grid->addWidget(list, row, 2);
    }
    grid->addWidget(new QPushButton(QStringLiteral("Command")), 2, 0, 1, 3);
    return group;
}

QWidget* BareWindow::NewResults()
{
    auto* group = new QGroupBox(QStringLiteral("Results"));
    auto* grid = new QGridLayout(group);
    for (int row = 0; row < kResults; ++row) {
        m_results.append(new QLabel);
        grid->addWidget(new QLabel(QStringLiteral("Result %1").arg(row + 1)), row, 0);
        grid->addWidget(m_results.last(), row, 1);
    }
    return group;
}

void BareWindow::ShowResults(const QString& text)
{
    double value = text.toDouble();
    for (QLabel* result : m_results) {
        result->setText(QString::number(value, 'f', 2));
        value *= 1.259;
    }
}

} // namespace quillon::bench
