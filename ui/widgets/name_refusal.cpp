#include "ui/widgets/name_refusal.h"

#include <QCoreApplication>

namespace quillon::ui {

namespace {

/// %1 stands for the name's subject, %2 for how many characters there is room for.
const char* Sentence(store::NameFault fault, bool hasBlanksAround)
{
    switch (fault) {
    case store::NameFault::Empty:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 is empty.");
    case store::NameFault::ForbiddenCharacter:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 holds “/”, “\\” or “|”, which cannot be part of a file's name.");
    case store::NameFault::ControlCharacter:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 holds a control character.");
    case store::NameFault::FolderName:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 is the name of a folder.");
    case store::NameFault::BadEnding:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 ends in a blank or a point, which the name of a file cannot.");
    case store::NameFault::TooLong:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 is longer than %2 characters.");
    case store::NameFault::NotInCodePage:
        return QT_TRANSLATE_NOOP("NameRefusal", "%1 holds a character that the data files cannot hold.");
    case store::NameFault::NotReadBack:
        return hasBlanksAround
                   ? QT_TRANSLATE_NOOP("NameRefusal",
                                       "%1 begins or ends with a blank, which would be lost in the data file.")
                   : QT_TRANSLATE_NOOP("NameRefusal", "%1 stands in quotes, which would be lost in the data file.");
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
    const bool hasBlanksAround = name.text.trimmed() != name.text;
    const QString sentence =
        QCoreApplication::translate("NameRefusal", Sentence(fault, hasBlanksAround)).arg(name.subject);
    return fault == store::NameFault::TooLong ? sentence.arg(name.longest) : sentence;
}

} // namespace quillon::ui
