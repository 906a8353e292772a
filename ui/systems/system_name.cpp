#include "ui/systems/system_name.h"

#include "store/entry_name.h"
#include "store/profile_lines.h"
#include "store/saved_systems.h"
#include "ui/systems/save_system.h"
#include "ui/widgets/name_refusal.h"

namespace quillon::ui {

namespace {

/// Longer names do not reach the file at all.
constexpr qsizetype kLongestWritten = 255;

} // namespace

QString SystemNameRefusal(const QString& name)
{
    const std::string text = name.toStdString();
    if (store::EqualNames(text, store::kSavedSystems)) {
        return SaveSystem::tr("“SavedSystems” names the list of saved systems. Please choose another name.");
    }
    const store::NameFault fault = store::EntryNameFault(text);
    const bool isLeftToTheLimit = fault == store::NameFault::TooLong && name.size() > kLongestWritten;
    return isLeftToTheLimit ? QString()
                            : NameRefusal({SaveSystem::tr("The system name"), name, store::kLongestEntry}, fault);
}

} // namespace quillon::ui
