#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillon::test {

/// What a PDF document holds, read back with another program. All lengths are in millimetres.
struct PrintedPage
{
    /// @throws std::runtime_error when the file cannot be read as a PDF document
    explicit PrintedPage(const QString& path);

    /// Left top corner of the line that a word begins.
    /// @throws std::runtime_error when the word is not on the page exactly once
    [[nodiscard]] QPointF PlaceOf(const QString& word) const;

    int pages = 0;
    QSizeF size;
    QString text;          ///< of the whole page, each run of blanks as one
    QStringList fontFlags; ///< for each font: whether it is embedded, "yes" or "no"

private:
    struct Word
    {
        QString text;
        QPointF place;
    };

    std::vector<Word> m_words;
};

} // namespace quillon::test
