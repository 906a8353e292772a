#include "tests/ui/help/shipped_help.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

#include <stdexcept>

namespace quillon::test {

std::filesystem::path ShippedData()
{
    return QUILLON_DATA_FOLDER;
}

std::filesystem::path ShippedHelpFile()
{
    return ShippedData() / "Help" / "Quillon.hlp";
}

QString ShippedHelp()
{
    QFile file(ShippedHelpFile());
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read " + ShippedHelpFile().string());
    }
    return QString::fromUtf8(file.readAll());
}

QStringList AttributeValues(const QString& html, const QString& element, const QString& attribute)
{
    const QRegularExpression pattern(QStringLiteral("<%1\\s[^>]*\\b%2=\"([^\"]*)\"").arg(element, attribute));
    QStringList values;
    for (auto match = pattern.globalMatch(html); match.hasNext();) {
        values.append(match.next().captured(1));
    }
    return values;
}

QString ElementOfClass(const QString& html, const QString& element, const QString& name)
{
    const QRegularExpression pattern(QStringLiteral("<%1[^>]*class=\"%2\">(.*?)</%1>").arg(element, name),
                                     QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(html);
    if (!match.hasMatch()) {
        throw std::runtime_error("no " + element.toStdString() + " of class " + name.toStdString());
    }
    return match.captured(0);
}

QStringList Cells(const QString& table)
{
    const QRegularExpression pattern(QStringLiteral("<td[^>]*>(.*?)</td>"),
                                     QRegularExpression::DotMatchesEverythingOption);
    QStringList cells;
    for (auto match = pattern.globalMatch(table); match.hasNext();) {
        cells.append(ReadText(match.next().captured(1)));
    }
    return cells;
}

QString ReadText(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().simplified();
}

} // namespace quillon::test
