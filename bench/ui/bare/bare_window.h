#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QList>
#include <QMainWindow>

namespace quillon::bench {

/// What Qt alone takes for such a window: 60 controls of the kinds that the program's main window has, at its size. A
/// text typed into its first text box sets nine labels.
class BareWindow : public QMainWindow
{
public:
    BareWindow();

private:
    QWidget* NewGroup(int place);
    QWidget* NewResults();
    void ShowResults(const QString& text);

    QList<QLabel*> m_results;
};

} // namespace quillon::bench
