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

/// Applies an edit. @return whether the text changed
inline bool Apply(PrivateProfile& profile, const ProfileEdit& edit)
{
    if (!edit.key) {
        return profile.RemoveSection(edit.section);
    }
    return edit.value ? profile.SetValue(edit.section, *edit.key, *edit.value)
                      : profile.RemoveKey(edit.section, *edit.key);
}

} // namespace quillon::store
