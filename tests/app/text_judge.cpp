#include "tests/app/text_judge.h"

#include "tests/support/pseudo_translator.h"

#include <algorithm>
#include <utility>

namespace quillon::test {

namespace {

/// Figures, and their signs in formulas and names.
const QRegularExpression& Figures()
{
    static const QRegularExpression kFigures(QStringLiteral(R"(^[\d\s.,:+*/()=–-]*$)"));
    return kFigures;
}

bool IsTranslated(const QString& text)
{
    return text.startsWith(kPseudoBegin) && text.endsWith(kPseudoEnd);
}

bool Matches(const QRegularExpression& pattern, const QString& text)
{
    return pattern.match(text).hasMatch();
}

/// The whole text matches; a star stands for anything.
QRegularExpression PatternOf(const char* text)
{
    const QString escaped = QRegularExpression::escape(QString::fromUtf8(text));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(QString(escaped).replace(QStringLiteral("\\*"), QStringLiteral(".*"))));
}

} // namespace

TextJudge::TextJudge(QStringList names)
    : m_names(std::move(names))
{
    // Longer names first, as they may hold shorter ones.
    std::ranges::sort(m_names, [](const QString& a, const QString& b) { return a.size() > b.size(); });
    for (const FixedText& fixed : kFixedTexts) {
        m_rows.push_back({fixed, PatternOf(fixed.text)});
    }
}

void TextJudge::Judge(const QString& window, const ShownText& shown)
{
    if (!m_judged.insert(window + u'|' + shown.text).second) {
        return;
    }
    if (IsTranslated(shown.text)) {
        ++m_translated;
    } else if (!IsFixed(window, shown.text) && !IsData(shown.text)) {
        m_missed << window + QStringLiteral(": “%1” (").arg(shown.text) + shown.where + u')';
    }
}

bool TextJudge::IsFixed(const QString& window, const QString& text)
{
    bool isFixed = false;
    for (Row& row : m_rows) {
        if (window == QLatin1String(row.fixed.window) && Matches(row.pattern, text)) {
            row.seen = true;
            isFixed = true;
        }
    }
    return isFixed && !text.contains(kPseudoBegin.trimmed());
}

bool TextJudge::IsData(QString text) const
{
    for (const QString& name : m_names) {
        text.remove(name);
    }
    return Matches(Figures(), text);
}

QStringList TextJudge::UnseenFixedTexts() const
{
    QStringList unseen;
    for (const Row& row : m_rows) {
        if (!row.seen) {
            unseen << QStringLiteral("%1: %2").arg(QLatin1String(row.fixed.window), QString::fromUtf8(row.fixed.text));
        }
    }
    return unseen;
}

} // namespace quillon::test
