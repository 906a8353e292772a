#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace quillon::reliability {

/// Looks over windows for texts that would be taken for markup, or lose a character to a shortcut key.
class HostileMarkupInspector
{
public:
    /// @param name  what stands in the data now; windows that show it have to show it as it is.
    void Expect(const QString& name) { m_name = name; }

    /// Draws a window and judges the texts of everything that is shown in it.
    void LookAt(QWidget& window);

    /// Notes when a text is not the one wanted.
    void Compare(const QString& where, const QString& text, const QString& wanted);

    [[nodiscard]] int Texts() const noexcept { return m_texts; }

    [[nodiscard]] const QStringList& Windows() const noexcept { return m_windows; }

    [[nodiscard]] const QStringList& Findings() const noexcept { return m_findings; }

private:
    void Judge(const QWidget& widget);
    void JudgeLabel(const QWidget& widget);
    void JudgeTip(const QWidget& widget, const QString& tip);
    void JudgeAccessible(QWidget& widget);
    void Note(const QWidget& widget, const QString& what, const QString& text);

    QString m_name;
    QStringList m_windows;
    QStringList m_findings;
    int m_texts = 0;
};

} // namespace quillon::reliability
