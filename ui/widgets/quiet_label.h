#pragma once

#include <QLabel>

namespace quillon::ui {

/// Plain-text label that elides what does not fit; text() stays whole. The quiet tone is for what explains, the normal
/// one for facts.
class QuietLabel : public QLabel
{
    Q_OBJECT

public:
    enum class Tone { Quiet, Normal };

    /// @param factor  size against the application font
    explicit QuietLabel(Tone tone, double factor = 1.0, QWidget* parent = nullptr);
    /// Elide when the layout gives less room than the text takes (else the label insists on its width).
    void SetElides(bool elides, Qt::TextElideMode where = Qt::ElideRight);

    [[nodiscard]] bool Elides() const noexcept { return m_elides; }

    /// What is painted: the text, elided when it has to be.
    [[nodiscard]] QString ShownText() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void ApplyFont();
    [[nodiscard]] int LineHeight() const;

    Tone m_tone;
    double m_factor;
    bool m_elides = false;
    Qt::TextElideMode m_where = Qt::ElideRight;
};

} // namespace quillon::ui
