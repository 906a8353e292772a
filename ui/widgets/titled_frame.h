#pragma once

#include <QGroupBox>
#include <QList>

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

    [[nodiscard]] int Step() const noexcept { return m_step; }

    /// Lets the title shrink on its own to a factor of the application font before it is elided.
    void SetSmallest(double factor);

    /// What is painted: the title, elided in the middle when it has to be, so that the system's number stays.
    [[nodiscard]] QString ShownTitle() const;

    /// Wants the whole title at its first step; can do with less.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QString PlainTitle() const;
    [[nodiscard]] QFont TitleFont() const;
    [[nodiscard]] int TitleHeight() const;
    void KeepRoomForTitle();

    int m_step = 0;
    double m_smallest = 0;
};

/// Lets the titles of all given frames step down together: the first step at which all fit, else the last, elided.
void FitTitles(const QList<TitledFrame*>& frames);

} // namespace quillon::ui
