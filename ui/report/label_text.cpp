#include "ui/report/label_text.h"

#include "ui/report/report_layout.h"

#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QTextOption>

#include <algorithm>

namespace quillon::ui {

namespace {

using namespace report_layout;

/// Tabs stop every half inch.
constexpr double kTabStop = 720;

/// A one-line text is laid out without an end, so that its full width shows.
constexpr double kEndless = 1e7;

/// The font in twips, one pixel each, with the shapes and widths that it has on paper.
QFont PaperFont(QFont font)
{
    font.setPixelSize(qRound(font.pointSizeF() * kTwipsPerPoint));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QStringList Paragraphs(const QString& text)
{
    static const QRegularExpression kEnds(QStringLiteral("\r\n|[\n\r\v\f\u0085\u2028\u2029]"));
    return text.split(kEnds);
}

/// Characters that would end the line or have no width of their own become blanks.
QString OneLine(QString text)
{
    for (QChar& character : text) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph) {
            character = u' ';
        }
    }
    return text;
}

/// @param wraps  whether lines have an end; only then can a text from right to left begin there.
QTextOption OptionFor(const QString& paragraph, bool wraps)
{
    QTextOption option(wraps && paragraph.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setTabStopDistance(kTabStop);
    option.setUseDesignMetrics(true);
    return option;
}

} // namespace

LabelText::LabelText(const QLabel& label)
    : m_left(label.x() * kTwipsPerPixel)
    , m_top(label.y() * kTwipsPerPixel)
    , m_width(label.width() * kTwipsPerPixel)
    , m_wraps(label.wordWrap())
{
    const QFont font = PaperFont(label.font());
    const QStringList paragraphs = m_wraps ? Paragraphs(label.text()) : QStringList(OneLine(label.text()));
    for (const QString& paragraph : paragraphs) {
        LayOut(paragraph, font);
    }
    if (!m_wraps && label.alignment().testFlag(Qt::AlignHCenter)) {
        const double free = m_width - m_paragraphs.front().lineAt(0).naturalTextWidth();
        m_left += std::max(free, 0.0) / 2;
    }
}

void LabelText::LayOut(const QString& paragraph, const QFont& font)
{
    QTextLayout& layout = m_paragraphs.emplace_back(paragraph, font);
    layout.setTextOption(OptionFor(paragraph, m_wraps));
    layout.setCacheEnabled(true);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(m_wraps ? m_width : kEndless);
        line.setPosition({0, m_height});
        m_height += line.height();
    }
    layout.endLayout();
}

void LabelText::Paint(QPainter& painter) const
{
    painter.save();
    painter.setPen(Qt::black);
    painter.translate(m_left, m_top);
    for (const QTextLayout& layout : m_paragraphs) {
        const double natural = m_wraps || layout.lineCount() == 0 ? 0 : layout.lineAt(0).naturalTextWidth();
        if (natural > m_width) {
            painter.scale(m_width / natural, 1);
        }
        layout.draw(&painter, {0, 0});
    }
    painter.restore();
}

} // namespace quillon::ui
