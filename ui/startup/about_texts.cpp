#include "ui/startup/about_texts.h"

#include "ui/platform/addresses.h"

#include <QCoreApplication>
#include <QDir>
#include <QUrlQuery>

namespace quillon::ui {

namespace {

QString TitleAndVersion(const ProgramInfo& program)
{
    return program.title + QStringLiteral(", Version ") + QString::number(program.version.majorVersion()) + u'.' +
           QString::number(program.version.minorVersion()) + u' ' + QString::number(program.version.microVersion());
}

QString Subject(const ProgramInfo& program, const SystemInfo& system)
{
    return TitleAndVersion(program) + QStringLiteral(", ") + SystemLine(system);
}

/// Fields of a mail address. A value goes in with everything encoded that could end it.
class MailFields
{
public:
    void Add(const QString& name, const QString& value)
    {
        m_query.addQueryItem(name, QString::fromLatin1(QUrl::toPercentEncoding(value)));
    }

    [[nodiscard]] QUrl ToMaker() const
    {
        QUrl address;
        address.setScheme(QStringLiteral("mailto"));
        address.setPath(kMakerMail.toString());
        address.setQuery(m_query);
        return address;
    }

private:
    QUrlQuery m_query;
};

} // namespace

ProgramInfo ProgramInfo::OfThisProgram()
{
    return {QCoreApplication::applicationName(), QVersionNumber::fromString(QCoreApplication::applicationVersion()),
            QDir::toNativeSeparators(QCoreApplication::applicationFilePath())};
}

QString VersionLine(const ProgramInfo& program, const SystemInfo& system)
{
    return TitleAndVersion(program) + QStringLiteral(", for ") + system.Name;
}

QString SystemLine(const SystemInfo& system)
{
    return QStringLiteral("Running on ") + system.Name + u' ' + system.Version + QStringLiteral(" Build ") +
           system.Build + QStringLiteral(" (") + system.ServicePack + u')';
}

QUrl MailAddress(const ProgramInfo& program, const SystemInfo& system)
{
    MailFields fields;
    fields.Add(QStringLiteral("subject"), Subject(program, system));
    return fields.ToMaker();
}

QUrl CommentsAddress(const ProgramInfo& program, const SystemInfo& system)
{
    MailFields fields;
    fields.Add(QStringLiteral("subject"), QStringLiteral("Comments on ") + Subject(program, system));
    fields.Add(QStringLiteral("Body"), QCoreApplication::translate("CommentsAddress", "Hello,"));
    return fields.ToMaker();
}

} // namespace quillon::ui
