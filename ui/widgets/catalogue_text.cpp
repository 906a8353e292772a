#include "ui/widgets/catalogue_text.h"

#include "store/code_page.h"

#include <QCoreApplication>
#include <QStringDecoder>

namespace quillon::ui {

namespace {

QByteArray Bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QList<CatalogueEntry> Entries(const std::vector<std::string>& names, QString (*toText)(std::string_view))
{
    QList<CatalogueEntry> entries;
    entries.reserve(static_cast<qsizetype>(names.size()));
    for (const std::string& name : names) {
        entries.append({toText(name), Bytes(name)});
    }
    return entries;
}

} // namespace

QString SectionText(std::string_view bytes)
{
    return QString::fromStdString(store::ToUtf8(bytes));
}

QString MakerText(std::string_view bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(Bytes(bytes));
    return decoder.hasError() ? SectionText(bytes) : text;
}

QString NotRead(std::string_view maker)
{
    return QCoreApplication::translate("CatalogueText", "The file of “%1” could not be read").arg(MakerText(maker));
}

std::string RecordText(const QString& text)
{
    std::string record;
    for (const uint character : text.toUcs4()) {
        const std::string utf8 = QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1).toStdString();
        record += store::FromUtf8(utf8).value_or("?");
    }
    return record;
}

QList<CatalogueEntry> MakerEntries(const std::vector<std::string>& names)
{
    return Entries(names, MakerText);
}

QList<CatalogueEntry> SectionEntries(const std::vector<std::string>& names)
{
    return Entries(names, SectionText);
}

} // namespace quillon::ui
