#include "ui/help/help_document.h"

#include "store/file_reader.h"

#include <QStringDecoder>

#include <algorithm>
#include <string>

namespace quillon::ui {

namespace {

std::optional<std::string> ReadBytes(const std::filesystem::path& file)
{
    store::FileCalls calls;
    const store::FileStatus found = store::InspectFile(calls, file.c_str());
    if (found.state != store::FileState::Regular || static_cast<std::size_t>(found.stamp.size) > kLargestHelp) {
        return std::nullopt;
    }
    store::Bytes bytes;
    const bool isRead = store::ReadFile(calls, file.c_str(), bytes).state == store::FileState::Regular;
    return isRead && bytes.View().size() <= kLargestHelp ? std::optional(std::string(bytes.View())) : std::nullopt;
}

/// Counts every opening tag as one that stays open until a closing one comes; those that need none are few in number.
bool IsNestedTooDeep(const QString& html)
{
    int depth = 0;
    for (qsizetype at = html.indexOf(u'<'); at >= 0; at = html.indexOf(u'<', at + 1)) {
        const QStringView rest = QStringView(html).sliced(at + 1);
        if (rest.startsWith(u'/')) {
            depth = std::max(0, depth - 1);
        } else if (!rest.isEmpty() && rest.front().isLetter() && ++depth > kDeepestHelp) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<QString> ReadHelpDocument(const std::filesystem::path& file)
{
    const std::optional<std::string> bytes = ReadBytes(file);
    if (!bytes || bytes->find('\0') != std::string::npos) {
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString html = decoder(QByteArrayView(bytes->data(), static_cast<qsizetype>(bytes->size())));
    if (decoder.hasError() || IsNestedTooDeep(html)) {
        return std::nullopt;
    }
    return html;
}

} // namespace quillon::ui
