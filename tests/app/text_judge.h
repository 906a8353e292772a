#pragma once

#include "tests/app/fixed_texts.h"
#include "tests/app/shown_texts.h"

#include <QRegularExpression>
#include <QStringList>

#include <set>
#include <vector>

namespace quillon::test {

/// Judges texts that are shown while every translation carries marks: each is translated, one of the fixed texts, or
/// data.
class TextJudge
{
public:
    /// @param names  what the test's own data are called; shown as they are
    explicit TextJudge(QStringList names);

    void Judge(const QString& window, const ShownText& shown);

    /// Texts that can be neither translated nor are fixed, each with the place where it stands first.
    [[nodiscard]] const QStringList& Missed() const { return m_missed; }

    /// Fixed texts that were shown nowhere, or as something else.
    [[nodiscard]] QStringList UnseenFixedTexts() const;

    /// How many of the texts so far are translations.
    [[nodiscard]] int Translated() const { return m_translated; }

private:
    struct Row
    {
        FixedText fixed;
        QRegularExpression pattern;
        bool seen = false;
    };

    [[nodiscard]] bool IsFixed(const QString& window, const QString& text);
    [[nodiscard]] bool IsData(QString text) const;

    QStringList m_names;
    std::vector<Row> m_rows;
    std::set<QString> m_judged; ///< windows and texts, so that what is shown again costs nothing
    QStringList m_missed;
    int m_translated = 0;
};

} // namespace quillon::test
