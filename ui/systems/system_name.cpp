#include "ui/systems/system_name.h"

#include "store/entry_name.h"
#include "store/profile_lines.h"
#include "store/saved_systems.h"

#include <array>

namespace quillon::ui {

namespace {

struct Refusal
{
    store::NameFault fault;
    const char* text;
};

constexpr std::array kRefusals{
    Refusal{store::NameFault::ControlCharacter, "The system name holds a control character."},
    Refusal{store::NameFault::NotInCodePage, "The system name holds a character that the data files cannot hold."},
    Refusal{store::NameFault::NotReadBack, "The system name stands in quotes, which would be lost in the data file."},
    Refusal{store::NameFault::TooLong, "The system name is longer than 254 characters."},
};

constexpr const char* kListName =
    "\u201CSavedSystems\u201D names the list of saved systems. Please choose another name.";

/// Longer names do not reach the file at all.
constexpr qsizetype kLongestWritten = 255;

} // namespace

QString SystemNameRefusal(const QString& name)
{
    const std::string text = name.toStdString();
    if (store::EqualNames(text, store::kSavedSystems)) {
        return QString::fromUtf8(kListName);
    }
    const store::NameFault fault = store::EntryNameFault(text);
    const bool isLeftToTheLimit = fault == store::NameFault::TooLong && name.size() > kLongestWritten;
    for (const Refusal& refusal : kRefusals) {
        if (refusal.fault == fault && !isLeftToTheLimit) {
            return QString::fromUtf8(refusal.text);
        }
    }
    return {};
}

} // namespace quillon::ui
