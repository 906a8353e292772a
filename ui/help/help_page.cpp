#include "ui/help/help_page.h"

#include "ui/widgets/looks.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFontMetricsF>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <QWheelEvent>

#include <algorithm>

namespace quillon::ui {

namespace {

/// Width of the text in digits: about twelve words a line, with the tables still in one piece.
constexpr int kColumnDigits = 88;
constexpr int kStartLines = 40;
constexpr int kSmallestZoom = -5;
constexpr int kLargestZoom = 20;

/// The paragraph that an anchor stands in; none when the document has no such anchor.
QTextBlock BlockOf(const QTextDocument& document, const QString& anchor)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.textFormats()) {
            if (range.format.anchorNames().contains(anchor)) {
                return block;
            }
        }
    }
    return {};
}

} // namespace

HelpPage::HelpPage(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::FollowLink);
}

void HelpPage::Show(const QString& html, int context)
{
    const bool isNew = html != m_html;
    if (isNew) {
        m_html = html;
        Render();
    }
    GoTo(context);
    if (isNew) {
        m_history.Clear();
        TellHistory();
    }
}

void HelpPage::GoTo(int context)
{
    if (!GoToAnchor(QString::number(context))) {
        verticalScrollBar()->setValue(0);
    }
}

void HelpPage::FollowLink(const QUrl& link)
{
    if (link.toString(QUrl::RemoveFragment).isEmpty()) {
        static_cast<void>(GoToAnchor(link.fragment()));
    }
}

bool HelpPage::GoToAnchor(const QString& anchor)
{
    const QTextBlock block = BlockOf(*document(), anchor);
    if (block.isValid()) {
        m_history.Leave(ReadingPosition());
        ScrollTo(block.position());
        TellHistory();
    }
    return block.isValid();
}

void HelpPage::backward()
{
    GoToPosition(m_history.Back(ReadingPosition()));
}

void HelpPage::forward()
{
    GoToPosition(m_history.Forward(ReadingPosition()));
}

void HelpPage::GoToPosition(std::optional<int> position)
{
    if (position) {
        ScrollTo(*position);
        TellHistory();
    }
}

void HelpPage::TellHistory()
{
    emit HistoryChanged(m_history.HasBack(), m_history.HasForward());
}

int HelpPage::Margin() const
{
    return 3 * BaseUnit();
}

int HelpPage::ReadingPosition() const
{
    const int column = qRound(document()->rootFrame()->frameFormat().leftMargin());
    return cursorForPosition({column, Margin() + fontMetrics().height() / 2}).position();
}

void HelpPage::ScrollTo(int position)
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top() - Margin());
}

bool HelpPage::FindText(const QString& text, QTextDocument::FindFlags direction)
{
    if (text.isEmpty()) {
        return true;
    }
    QTextCursor otherEnd(document());
    otherEnd.movePosition(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    return MarkNext(text, StartOfSearch(), direction) || MarkNext(text, otherEnd, direction);
}

bool HelpPage::MarkNext(const QString& text, const QTextCursor& start, QTextDocument::FindFlags direction)
{
    const QTextCursor found = document()->find(text, start, direction);
    if (found.isNull()) {
        return false;
    }
    setTextCursor(found);
    // With some lines around it, not at the very edge.
    const int height = viewport()->height();
    const QRect line = cursorRect();
    if (line.top() < Margin() || line.bottom() > height * 2 / 3) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + line.top() - height / 3);
    }
    return true;
}

QTextCursor HelpPage::StartOfSearch() const
{
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection() || !viewport()->rect().intersects(cursorRect())) {
        cursor.setPosition(ReadingPosition());
    }
    return cursor;
}

void HelpPage::SetZoom(int steps)
{
    m_zoom = std::clamp(steps, kSmallestZoom, kLargestZoom);
    const int place = ReadingPosition();
    setFont(ScaledFont(1 + m_zoom / 10.0));
    SetColumn();
    ScrollTo(place);
}

QSize HelpPage::sizeHint() const
{
    const QFontMetricsF metrics(ScaledFont(1));
    const double margins = 2.0 * Margin() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    return {qRound(kColumnDigits * metrics.horizontalAdvance(u'0') + margins),
            qRound(kStartLines * metrics.lineSpacing())};
}

QVariant HelpPage::loadResource(int type, const QUrl& /*name*/)
{
    // Given nothing, the document would look for a file of that name itself.
    if (type == QTextDocument::ImageResource) {
        QImage empty(1, 1, QImage::Format_ARGB32);
        empty.fill(Qt::transparent);
        return empty;
    }
    return QByteArrayLiteral(" ");
}

void HelpPage::doSetSource(const QUrl& /*name*/, QTextDocument::ResourceType /*type*/)
{
    // There is one document, and it is given by Show().
}

QString HelpPage::StyleSheet() const
{
    const QPalette colours = palette();
    const QColor base = colours.color(QPalette::Active, QPalette::Base);
    const QColor text = colours.color(QPalette::Active, QPalette::WindowText);
    const int unit = BaseUnit();
    return QStringLiteral("h1 { margin-top: 0px; margin-bottom: %1px; }"
                          "h2 { margin-top: %2px; margin-bottom: %1px; }"
                          "h3 { margin-top: %3px; margin-bottom: 0px; }"
                          "p, li { margin-top: %1px; margin-bottom: %1px; line-height: 120%; }"
                          "a { color: %5; text-decoration: none; }"
                          "table { border-collapse: collapse; margin-top: %1px; margin-bottom: %1px; }"
                          "td, th { border-bottom: 1px solid %6; padding: %1px %4px %1px 0px; text-align: left; }"
                          "pre { background-color: %7; margin-left: %3px; }")
        .arg(unit)
        .arg(7 * unit)
        .arg(4 * unit)
        .arg(3 * unit)
        .arg(LinkColor(colours, QPalette::Base).name(), HairlineColor(colours).name(), Mixed(base, text, 0.06).name());
}

void HelpPage::Render()
{
    document()->setDefaultStyleSheet(StyleSheet());
    setHtml(m_html);
    SetColumn();
}

void HelpPage::RenderAtSamePlace()
{
    const int place = ReadingPosition();
    Render();
    ScrollTo(place);
}

void HelpPage::SetColumn()
{
    document()->setIndentWidth(6.0 * BaseUnit());
    const double width = kColumnDigits * QFontMetricsF(font()).horizontalAdvance(u'0');
    const double side = std::max(1.0 * Margin(), (viewport()->width() - width) / 2);
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    if (!qFuzzyCompare(format.leftMargin(), side)) {
        format.setLeftMargin(side);
        format.setRightMargin(side);
        format.setTopMargin(Margin());
        format.setBottomMargin(Margin());
        document()->rootFrame()->setFrameFormat(format);
    }
}

bool HelpPage::event(QEvent* event)
{
    const bool isHandled = QTextBrowser::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        setFont(ScaledFont(1 + m_zoom / 10.0));
        RenderAtSamePlace();
    }
    return isHandled;
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        RenderAtSamePlace();
    }
}

void HelpPage::resizeEvent(QResizeEvent* event)
{
    SetColumn();
    QTextBrowser::resizeEvent(event);
}

void HelpPage::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    if (const int turned = event->angleDelta().y(); turned != 0) {
        SetZoom(m_zoom + (turned > 0 ? 1 : -1));
    }
    event->accept();
}

} // namespace quillon::ui
