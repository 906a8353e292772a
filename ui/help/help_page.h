#pragma once

#include "ui/help/help_history.h"

#include <QTextBrowser>

namespace quillon::ui {

/// Shows the help document in a column of readable width, in the palette's colours. Nothing outside the document is
/// ever loaded, and only links within it lead anywhere.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpPage(QWidget* parent = nullptr);

    /// Shows a topic of a document, its heading at the top; the document's top when it has no such topic. Another
    /// document than before begins a new history.
    void Show(const QString& html, int context);
    /// Goes to a topic of the document on show.
    void GoTo(int context);
    /// To where one was before the last step, and back from there.
    void backward() override;
    void forward() override;

    /// Marks the next place that holds the text, letter case aside, and goes on from the other end. It starts behind
    /// what was found last, or where one reads when that is out of sight.
    /// @return false when the text is nowhere.
    bool FindText(const QString& text, QTextDocument::FindFlags direction);

    /// By a tenth of the application font's size; reset is that size.
    void ZoomIn() { SetZoom(m_zoom + 1); }

    void ZoomOut() { SetZoom(m_zoom - 1); }

    void ZoomReset() { SetZoom(0); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

signals:
    /// There may be more or fewer steps back or forward than before.
    void HistoryChanged(bool hasBack, bool hasForward);

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void FollowLink(const QUrl& link);
    [[nodiscard]] bool GoToAnchor(const QString& anchor);
    void GoToPosition(std::optional<int> position);
    void TellHistory();
    [[nodiscard]] int Margin() const;
    /// Text position of the line that is read first.
    [[nodiscard]] int ReadingPosition() const;
    void ScrollTo(int position);
    [[nodiscard]] QTextCursor StartOfSearch() const;
    bool MarkNext(const QString& text, const QTextCursor& start, QTextDocument::FindFlags direction);

    void SetZoom(int steps);
    /// Lays the document out in the palette and font of now.
    void Render();
    void RenderAtSamePlace();
    void SetColumn();
    [[nodiscard]] QString StyleSheet() const;

    QString m_html;
    HelpHistory m_history;
    int m_zoom = 0;
};

} // namespace quillon::ui
