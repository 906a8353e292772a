#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>

#include <list>

class QLabel;
class QPainter;

namespace quillon::ui {

/// A label's text laid out in twips, apart from any screen, style or palette.
class LabelText
{
public:
    /// A label that wraps its words breaks lines at its width, within words that are longer than a line; any other is
    /// one line, drawn narrower where it would not fit.
    explicit LabelText(const QLabel& label);

    /// Height of all lines in twips.
    [[nodiscard]] double Height() const noexcept { return m_height; }

    /// Draws the text in black at the label's place.
    /// @param painter  counts in twips from the corner of the form.
    void Paint(QPainter& painter) const;

private:
    void LayOut(const QString& paragraph, const QFont& font);

    double m_left;
    double m_top;
    double m_width;
    bool m_wraps;
    double m_height = 0;
    std::list<QTextLayout> m_paragraphs;
};

} // namespace quillon::ui
