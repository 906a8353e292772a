#pragma once

#include <QLabel>

namespace quillon::ui {

/// Plain-text label that elides what does not fit; text() stays whole. The quiet tone is for what explains, the normal one for facts.
class QuietLabel : public QLabel
{
    Q_OBJECT

public:
    enum class Tone { Quiet, Normal };

    /// @param factor  size against the application font
    explicit QuietLabel(Tone tone, double factor = 1.0, QWidget* parent = nullptr);
    /// Elide at the right when the layout gives less room than the text takes (else the label insists on its width).
    void SetElides(bool elides);

private:
    Tone m_tone;
    bool m_elides = false;
};

} // namespace quillon::ui
