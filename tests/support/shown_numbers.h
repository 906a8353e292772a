#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QString>

#include <string>

namespace quillon::support {

/// A text as it is shown, with a point in its numbers whatever the desktop's language has there: for tests that are
/// about something else, so that they hold in every language.
[[nodiscard]] inline std::string WithPoint(QString text)
{
    const QString separator = QLocale().decimalPoint();
    if (separator != QStringLiteral(".")) {
        const QString sign = QRegularExpression::escape(separator);
        text.replace(
            QRegularExpression(sign + QStringLiteral(R"((?=\d)|(?<=\d))") + sign + QStringLiteral(R"((?=$|\|))")),
            QStringLiteral("."));
    }
    return text.toStdString();
}

} // namespace quillon::support
