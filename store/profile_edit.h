#pragma once

#include "store/private_profile.h"

#include <optional>
#include <string>

namespace quillon::store {

/// One change of a data file.
struct ProfileEdit
{
    std::string section;
    std::optional<std::string> key;   ///< none: the section goes, with all its keys
    std::optional<std::string> value; ///< none: the key goes
};

/// What an edit changes of a text; nothing when it is so already.
[[nodiscard]] inline std::optional<TextChange> ChangeBy(const ProfileEdit& edit, const PrivateProfile& profile)
{
    if (!edit.key) {
        return profile.SectionRemoval(edit.section);
    }
    return edit.value ? profile.ValueChange(edit.section, *edit.key, *edit.value)
                      : profile.KeyRemoval(edit.section, *edit.key);
}

/// Applies an edit. @return whether the text changed
inline bool Apply(PrivateProfile& profile, const ProfileEdit& edit)
{
    return profile.Make(ChangeBy(edit, profile));
}

} // namespace quillon::store
