#include "tests/ui/report/printed_page.h"

#include <QProcess>
#include <QRegularExpression>

#include <stdexcept>

namespace quillon::test {

namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;

QString OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() + ": " + process.readAllStandardError().toStdString());
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

QRegularExpressionMatch Match(const QString& text, const QString& pattern)
{
    QRegularExpressionMatch match = QRegularExpression(pattern, QRegularExpression::MultilineOption).match(text);
    if (!match.hasMatch()) {
        throw std::runtime_error("no " + pattern.toStdString() + " in:\n" + text.toStdString());
    }
    return match;
}

} // namespace

PrintedPage::PrintedPage(const QString& path)
    : text(OutputOf("pdftotext", {"-layout", path, "-"}).simplified())
{
    const QString info = OutputOf("pdfinfo", {path});
    pages = Match(info, "^Pages: +(\\d+)$").captured(1).toInt();
    const QRegularExpressionMatch paper = Match(info, "^Page size: +([\\d.]+) x ([\\d.]+) pts");
    size = QSizeF(paper.captured(1).toDouble(), paper.captured(2).toDouble()) * kMillimetresPerPoint;

    // Two lines of heading; then "name type encoding emb sub uni object ID", the type and the ID with blanks in them.
    const QStringList fonts = OutputOf("pdffonts", {path}).split('\n', Qt::SkipEmptyParts).mid(2);
    for (const QString& font : fonts) {
        const QStringList columns = font.simplified().split(' ');
        fontFlags << columns.value(columns.size() - 5);
    }

    const QRegularExpression word("<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\"[^>]*>([^<]*)</word>");
    auto found = word.globalMatch(OutputOf("pdftotext", {"-bbox", path, "-"}));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        m_words.push_back({match.captured(3),
                           QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()) * kMillimetresPerPoint});
    }
}

QPointF PrintedPage::PlaceOf(const QString& word) const
{
    QPointF place;
    int count = 0;
    for (const Word& there : m_words) {
        if (there.text == word) {
            place = there.place;
            ++count;
        }
    }
    if (count != 1) {
        throw std::runtime_error(word.toStdString() + " is there " + std::to_string(count) +
                                 " times in: " + text.toStdString());
    }
    return place;
}

} // namespace quillon::test
