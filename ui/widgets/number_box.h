#pragma once

#include <QColor>
#include <QLineEdit>

#include <optional>

namespace quillon::ui {

/// Text box for a number. Carries a mark while its text cannot be taken over: outline, triangle, tool tip and
/// accessible description say what is wrong. Read-only, it has the window's colour and a hairline: its figure follows
/// another control.
class NumberBox : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool marked READ IsMarked)

public:
    /// @param digits  the box asks for room for so many digits and grows from there
    explicit NumberBox(int digits, QWidget* parent = nullptr);

    /// Marks the text as not taken over. @param why  plain text, e.g. “12.5abc” is not a number
    void Mark(const QString& why);
    void ClearMark();

    [[nodiscard]] bool IsMarked() const noexcept { return m_marked; }

    /// Tool tip and description while nothing is marked.
    void SetHint(const QString& text);

    /// Fixed text colour on a white base in every palette, with a warning triangle and words when warning is not empty.
    void SetInk(const QColor& color, const QString& warning = {});

    [[nodiscard]] std::optional<QColor> Ink() const { return m_ink; }

    /// 1.15 times the application font, DemiBold: the figures one dials.
    void SetDialled(bool dialled);

    /// Read-only, but with the look of a live box: the spin controls beside it set the figure, typing does not.
    void SetByArrowsOnly();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;

private:
    void ApplyFont();
    void ApplyInk(const QColor& color);
    void Say();
    void PaintWarning(QPainter& painter) const;

    int m_digits;
    bool m_marked = false;
    bool m_dialled = false;
    bool m_byArrowsOnly = false;
    std::optional<QColor> m_ink;
    QString m_why;
    QString m_hint;
    QString m_warning;
    mutable QPalette m_following; ///< colours of a figure that follows another control
    mutable qint64 m_followingMadeFrom = 0;
};

} // namespace quillon::ui
