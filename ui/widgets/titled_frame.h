#pragma once

#include <QGroupBox>

namespace quillon::ui {

/// Group box without a box: only its title is drawn, contents flush with it.
class TitledFrame : public QGroupBox
{
    Q_OBJECT

public:
    /// Fonts that titles step down through: 0.94 DemiBold, 0.94 normal, 0.86 normal.
    static constexpr int kSteps = 3;

    /// @param title  caption with "&&" for one ampersand
    explicit TitledFrame(const QString& title, QWidget* parent = nullptr);

    /// Width that the whole title takes at a step.
    [[nodiscard]] int TitleWidth(int step) const;
    void SetStep(int step);

private:
    int m_step = 0;
};

/// Lets the titles of all given frames step down together: the first step at which all fit, else the last, elided.
void FitTitles(const QList<TitledFrame*>& frames);

} // namespace quillon::ui
