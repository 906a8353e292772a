#include "ui/widgets/name_refusal.h"

namespace quillon::ui {

namespace {

const char* Reason(store::NameFault fault, bool hasBlanksAround)
{
    switch (fault) {
    case store::NameFault::Empty:
        return "is empty.";
    case store::NameFault::ForbiddenCharacter:
        return "holds “/”, “\\” or “|”, which cannot be part of a file's name.";
    case store::NameFault::ControlCharacter:
        return "holds a control character.";
    case store::NameFault::FolderName:
        return "is the name of a folder.";
    case store::NameFault::BadEnding:
        return "ends in a blank or a point, which the name of a file cannot.";
    case store::NameFault::TooLong:
        return "is longer than %1 characters.";
    case store::NameFault::NotInCodePage:
        return "holds a character that the data files cannot hold.";
    case store::NameFault::NotReadBack:
        return hasBlanksAround ? "begins or ends with a blank, which would be lost in the data file."
                               : "stands in quotes, which would be lost in the data file.";
    case store::NameFault::None:
        break;
    }
    return "";
}

} // namespace

QString NameRefusal(const TypedName& name, store::NameFault fault)
{
    if (fault == store::NameFault::None) {
        return {};
    }
    QString reason = QString::fromUtf8(Reason(fault, name.text.trimmed() != name.text));
    if (fault == store::NameFault::TooLong) {
        reason = reason.arg(name.longest);
    }
    return QStringLiteral("The %1 %2").arg(name.kind, reason);
}

} // namespace quillon::ui
